#pragma once

#include "controls/SystemColors.h"

#include <span>

namespace varnhold {

/// How well two colours can be told apart: WCAG 2's ratio, 1 to 21. Text wants 4.5, marks and edges 3.
[[nodiscard]] double contrastRatio(ColorValue one, ColorValue other);

/// Relative luminance, 0 to 1.
[[nodiscard]] double luminanceOf(ColorValue color);
[[nodiscard]] double contrastOf(double oneLuminance, double otherLuminance);

/// Black or white, whichever stands out more on the colour.
[[nodiscard]] ColorValue blackOrWhiteOn(ColorValue background);

/// The first of the colours that reaches the ratio on every ground; where none does, the one of them, black
/// and white that does best on its worst ground.
[[nodiscard]] ColorValue firstThatStandsOut(std::span<const ColorValue> colors,
                                            std::span<const ColorValue> grounds, double ratio);

/// The ink moved toward the first ground by `share` (0 to 1), or by as much less as keeps the ratio on every
/// ground; an ink that does not reach it as it is comes back as firstThatStandsOut().
[[nodiscard]] ColorValue tonedDown(ColorValue ink, std::span<const ColorValue> grounds, double share,
                                   double ratio);

} // namespace varnhold
