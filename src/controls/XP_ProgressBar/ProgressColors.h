#pragma once

#include "controls/SystemColors.h"

namespace varnhold {

/// Towards white: each channel becomes min(255, c x (255 - base) / 255 + base) in integer arithmetic.
/// base 0 to 255.
[[nodiscard]] ColorValue ShiftColorXP(ColorValue color, int base);

/// Each channel is the integer part of c1 x (255 - alpha) / 255 + c2 x alpha / 255. alpha 0 to 255.
[[nodiscard]] ColorValue BlendColor(ColorValue first, ColorValue second, int alpha);

/// Colour of one line of a gradient that is `steps` lines long: the start plus `line` steps of
/// (end - start) / steps in single precision, rounded to even at a half. The last line therefore stays one
/// step short of the end colour. `first` itself when steps is not above 0.
[[nodiscard]] ColorValue gradientColor(ColorValue first, ColorValue second, int line, int steps);

/// Black or white, whichever can be read better on that colour.
[[nodiscard]] ColorValue contrastColor(ColorValue background);

} // namespace varnhold
