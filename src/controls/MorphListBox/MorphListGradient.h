#pragma once

#include "controls/SystemColors.h"

#include <vector>

namespace varnhold {

/// A rectangle of a linear or circular gradient.
struct MorphGradient
{
    int width = 0; ///< pixels; nothing is drawn when width or height is under 1
    int height = 0;
    ColorValue color1 = 0; ///< system indexes are resolved
    ColorValue color2 = 0;
    float angle = 0;        ///< degrees, any value: 0 runs to the right, 90 down, 180 to the left, 270 up
    bool middleOut = false; ///< color1 to color2 and back; a circular gradient knows no middle-out
    bool circular = false;  ///< color1 at the corners, color2 inside
};

/// Colours from color1 to color2 as pixels 0xffRRGGBB: `length` entries, at least 1; with middleOut there
/// and back.
std::vector<quint32> morphRamp(int length, ColorValue color1, ColorValue color2, bool middleOut);

/// Writes the gradient as pixels 0xffRRGGBB. Row y begins at pixels + y * stride; `stride` is in pixels and
/// no less than the width.
void paintMorphGradient(const MorphGradient& gradient, quint32* pixels, qsizetype stride);

} // namespace varnhold
