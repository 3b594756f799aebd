#pragma once

#include "controls/MorphListBox/MorphListDesign.h"

#include <QProxyStyle>

class QStyleOptionSlider;

namespace varnhold {

/// Check boxes, option buttons, scroll bars, the signs of message boxes and the line that shows the
/// keyboard focus, told apart on any skin's ground.
class ToolkitStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ToolkitStyle();

    void setScrollBarDesign(const MorphListDesign& design);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override;

private:
    void drawPickBar(const QStyleOptionSlider& bar, QPainter& painter) const;
    void drawScrollBar(const QStyleOptionSlider& bar, QPainter& painter, const QWidget* widget) const;

    MorphListDesign m_scrollBars;
};

} // namespace varnhold
