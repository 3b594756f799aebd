#pragma once

#include "SkinDesign.h"

#include <string>

namespace varnhold::assets {

/// The text of a skin's Skin.ini. Colours are decimal, with red in the low byte.
std::string skinIni(const SkinDesign& design);

} // namespace varnhold::assets
