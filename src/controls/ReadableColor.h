#pragma once

#include "controls/SystemColors.h"

#include <optional>

namespace varnhold {

/// The colour in which notes of a stored colour show on a ground: itself where it can be read there (4.5 to
/// 1), else one of its hue that can. Black on a dark skin shows white, the blue of a link a lighter blue.
[[nodiscard]] ColorValue readableOn(ColorValue text, ColorValue ground);

/// What lies under a text: luminance of its darkest and its lightest pixel.
struct GroundTones
{
    double darkest = 0;
    double lightest = 0;
};

/// How a text is drawn so that it can be read.
struct TextInk
{
    ColorValue color = 0;
    std::optional<ColorValue> rim; ///< a thin line round the letters
};

/// The stored colour where it reaches 4.5 to 1 on every pixel of the ground; else the nearest of its hue
/// that does; where none can, black or white, whichever is better, with a rim of the other.
[[nodiscard]] TextInk readableInk(ColorValue stored, const GroundTones& ground);

} // namespace varnhold
