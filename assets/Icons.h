#pragma once

#include "Drawing.h"
#include "SkinDesign.h"

#include <span>
#include <string_view>

namespace varnhold::assets {

/// Names of the region and origin icons' files.
std::span<const std::string_view> rowIconNames();

/// What one of those files shows, see-through around the sign.
Drawing rowIcon(std::string_view file);

/// The knob of a slider, see-through around it.
Drawing sliderKnob(const SkinDesign& design);

} // namespace varnhold::assets
