#pragma once

#include <QRect>
#include <QSize>

namespace varnhold {

/// The size that a slider takes when it is asked to have another. With a picture as rail (`rail` its size)
/// it is the picture's along the long side, and across the larger of knob and rail, plus 4 pixels when the
/// rail is the narrower one. Without one (`rail` empty) only the short side is given: the knob's.
[[nodiscard]] QSize sliderControlSize(QSize asked, bool vertical, QSize knob, QSize rail);

/// The groove of a rail with a system edge: centred, and as long as the middle of the knob can go.
[[nodiscard]] QRect grooveRect(QSize control, bool vertical, QSize knob);

/// Where a picture as rail is stretched to: the whole width of the control (height when vertical), centred
/// in its own thickness.
[[nodiscard]] QRect pictureRailRect(QSize control, bool vertical, QSize rail);

} // namespace varnhold
