#pragma once

#include <cmath>

namespace varnhold {

/// Lengths are stored and told in twips, 15 to a logical pixel.
inline constexpr int twipsPerPixel = 15;

constexpr double twipsFromPixels(double pixels)
{
    return pixels * twipsPerPixel;
}

inline int pixelsFromTwips(double twips)
{
    return static_cast<int>(std::lround(twips / twipsPerPixel));
}

} // namespace varnhold
