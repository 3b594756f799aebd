#pragma once

#include "controls/SystemColors.h"

namespace varnhold {

/// The colour in which notes of a stored colour show on a ground: itself where it can be read there (4.5 to
/// 1), else one of its hue that can. Black on a dark skin shows white, the blue of a link a lighter blue.
[[nodiscard]] ColorValue readableOn(ColorValue text, ColorValue ground);

} // namespace varnhold
