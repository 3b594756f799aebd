#pragma once

#include "SkinDesign.h"

#include <string_view>
#include <vector>

namespace varnhold::assets {

inline constexpr int menuGlyphSide = 16;

/// Names of the menu glyphs' files, without folder and ending.
std::vector<std::string_view> menuGlyphNames();

/// A glyph of that list, in the skin's ink on a flat plate of the skin's; the corner pixels are plate.
Picture drawMenuGlyph(const SkinDesign& design, std::string_view name);

} // namespace varnhold::assets
