#pragma once

#include <QProxyStyle>

namespace varnhold {

/// Check boxes, option buttons and short scroll bars that can be told apart on any skin's ground.
class ToolkitStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ToolkitStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

} // namespace varnhold
