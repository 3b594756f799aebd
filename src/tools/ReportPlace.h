#pragma once

#include "platform/Screen.h"

#include <vector>

namespace varnhold {

class SettingsFile;

/// A window in logical pixels: the corner of its frame, the size of its inside.
struct WindowPlace
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;
    bool operator==(const WindowPlace&) const = default;
};

/// As the last window was left. A key that is missing, empty or no number counts as `main` has it; a size is
/// at least `smallest` and at most that of all screens together, and a place where no caption could be
/// grasped is moved in until it can.
WindowPlace readReportPlace(const SettingsFile& file, const WindowPlace& main, const WindowPlace& smallest,
                            const std::vector<ScreenAreas>& screens);
/// `withCorner` is false where a desktop tells no window its place.
void writeReportPlace(SettingsFile& file, const WindowPlace& place, bool withCorner);

} // namespace varnhold
