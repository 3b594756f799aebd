#pragma once

#include "controls/SystemColors.h"

namespace varnhold {

/// How well two colours can be told apart: WCAG 2's ratio, 1 to 21. Text wants 4.5, marks and edges 3.
[[nodiscard]] double contrastRatio(ColorValue one, ColorValue other);

/// Black or white, whichever stands out more on the colour.
[[nodiscard]] ColorValue blackOrWhiteOn(ColorValue background);

} // namespace varnhold
