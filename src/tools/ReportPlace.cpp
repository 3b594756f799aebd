#include "tools/ReportPlace.h"

#include "platform/Conversion.h"
#include "platform/RunTimeError.h"
#include "platform/Twips.h"
#include "state/SettingsFile.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int captionWidth = 80; ///< of a caption, enough to grasp it by
constexpr int captionHeight = 32;
const QString section = u"Position"_s;

int readPixels(const SettingsFile& file, const QString& key, int fallback)
{
    constexpr double most = 1e9; // twips, beyond any desktop
    try {
        return pixelsFromTwips(std::clamp(doubleFromText(file.INI_Read(section, key, {})), -most, most));
    } catch (const RunTimeError&) {
        return fallback;
    }
}

/// How far `from` to `to` lies outside; 0 where it does not.
int outside(int from, int to, int least, int most)
{
    return std::max({0, least - from, to - most});
}

struct Reach
{
    int left, right, top, bottom; ///< of the frame's corner
};

/// Where the corner may be so that the caption can be grasped on this screen.
Reach reachOn(const WorkArea& area, const WindowPlace& place)
{
    const int grip = std::min(captionWidth, place.width);
    return {area.left - place.width + grip, std::max(area.left, area.right - grip), area.top,
            std::max(area.top, area.bottom - captionHeight)};
}

} // namespace

WindowPlace readReportPlace(const SettingsFile& file, const WindowPlace& main, const WindowPlace& smallest,
                            const std::vector<ScreenAreas>& screens)
{
    WindowPlace place{readPixels(file, u"RTFbox X"_s, main.x), readPixels(file, u"RTFbox Y"_s, main.y),
                      readPixels(file, u"RTFbox W"_s, main.width),
                      readPixels(file, u"RTFbox H"_s, main.height)};
    place.width = std::max(place.width, smallest.width);
    place.height = std::max(place.height, smallest.height);
    if (screens.empty())
        return place;
    WorkArea all = screens.front().whole;
    for (const ScreenAreas& screen : screens) {
        all.left = std::min(all.left, screen.whole.left);
        all.top = std::min(all.top, screen.whole.top);
        all.right = std::max(all.right, screen.whole.right);
        all.bottom = std::max(all.bottom, screen.whole.bottom);
    }
    place.width = std::min(place.width, std::max(smallest.width, all.right - all.left));
    place.height = std::min(place.height, std::max(smallest.height, all.bottom - all.top));

    const auto distance = [&place](const ScreenAreas& screen) {
        const Reach reach = reachOn(screen.work, place);
        return outside(place.x, place.x, reach.left, reach.right) +
               outside(place.y, place.y, reach.top, reach.bottom);
    };
    const auto nearest = std::ranges::min_element(screens, {}, distance);
    const Reach reach = reachOn(nearest->work, place);
    place.x = std::clamp(place.x, reach.left, reach.right);
    place.y = std::clamp(place.y, reach.top, reach.bottom);
    return place;
}

void writeReportPlace(SettingsFile& file, const WindowPlace& place, bool withCorner)
{
    const auto write = [&file](const QString& key, int pixels) {
        file.INI_Write(section, key, QString::number(pixels * twipsPerPixel));
    };
    if (withCorner) {
        write(u"RTFbox X"_s, place.x);
        write(u"RTFbox Y"_s, place.y);
    }
    write(u"RTFbox W"_s, place.width);
    write(u"RTFbox H"_s, place.height);
}

} // namespace varnhold
