#pragma once

#include <QProxyStyle>

namespace varnhold {

/// Check boxes and option buttons that can be told apart on a dark ground.
class ToolkitStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ToolkitStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

} // namespace varnhold
