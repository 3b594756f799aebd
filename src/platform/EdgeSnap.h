#pragma once

#include "platform/Screen.h"

namespace varnhold {

/// Outer place of a window, in twips.
struct WindowPlace
{
    double left = 0;
    double top = 0;
    double width = 0;
    double height = 0;
    bool operator==(const WindowPlace&) const = default;
};

/// Where a dropped window comes to rest near an edge of the screen. The rules run in a fixed order and each
/// sees what those before it did; the last one keeps a window above the desktop's panel. Screen sizes and
/// work area are in pixels.
WindowPlace snapToEdges(WindowPlace place, int screenWidth, int screenHeight, const WorkArea& workArea);

} // namespace varnhold
