#include "platform/EdgeSnap.h"

#include "platform/Twips.h"

namespace varnhold {

namespace {

constexpr double nearEdge = 100;
constexpr double nearPanel = 480;

} // namespace

WindowPlace snapToEdges(WindowPlace place, int screenWidth, int screenHeight, const WorkArea& workArea)
{
    const double right = twipsFromPixels(screenWidth);
    const double bottom = twipsFromPixels(screenHeight);
    if (place.left < nearEdge)
        place.left = 0;
    if (place.top < nearEdge)
        place.top = 0;
    if (place.left + place.width > right - nearEdge)
        place.left = right - place.width;
    if (place.top + place.height > bottom - nearEdge)
        place.top = bottom - place.height;
    if (place.top + place.height > bottom - nearPanel)
        place.top = twipsFromPixels(workArea.bottom) - place.height;
    return place;
}

} // namespace varnhold
