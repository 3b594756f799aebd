#pragma once

#include "controls/XP_ProgressBar/ProgressState.h"
#include "controls/XP_ProgressBar/ProgressSurface.h"

namespace varnhold {

/// The whole drawing of a bar: clamps the percentage, clears the client, runs the look and the text.
void PBarDraw(ProgressState& state, ProgressSurface& surface);

/// One line of the rectangle's full extent for each step: vertical lines from left to right, or horizontal
/// ones from top to bottom when `vertical`. An empty rectangle draws nothing.
void DrawGradient(ColorValue first, ColorValue second, const BarRect& rect, ProgressSurface& surface,
                  bool vertical);

/// What the bar says: the percentage and " %", or "Searching.." in the searching look.
[[nodiscard]] QString progressText(const ProgressState& state);

} // namespace varnhold
