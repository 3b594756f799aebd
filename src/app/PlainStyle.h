#pragma once

#include <QProxyStyle>

namespace varnhold::plainlook {

/// Check boxes and option buttons that can be told apart on a dark ground.
class PlainStyle : public QProxyStyle
{
    Q_OBJECT

public:
    PlainStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
};

} // namespace varnhold::plainlook
