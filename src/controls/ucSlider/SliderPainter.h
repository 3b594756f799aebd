#pragma once

#include "controls/SystemColors.h"

#include <QPixmap>
#include <QRect>

class QPainter;

namespace varnhold {

/// One look of a slider at one moment.
struct SliderLook
{
    QSize size;
    QRect knob;
    bool vertical = true;
    int railStyle = 0;
    QPixmap railPicture;
    QPixmap sliderIcon; ///< null: a knob is drawn
    ColorValue backColor = systemcolors::buttonFace;
    bool enabled = true;
    bool hovered = false;
    bool pressed = false;
    bool focusShown = false; ///< reached by keyboard
};

/// Size of the knob that is drawn when no icon is set.
[[nodiscard]] QSize drawnKnobSize(bool vertical);

/// Paints the whole slider, its top left at the painter's origin. `ratio` is the device's, to which edges
/// are aligned.
void paintSlider(QPainter& painter, const SliderLook& look, qreal ratio);

} // namespace varnhold
