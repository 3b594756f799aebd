#pragma once

#include "CoverCanvas.h"

#include <span>

namespace varnhold::assets {

/// What a cover can show. A scene leaves the upper third to the lettering.
struct CoverScene
{
    std::string_view name;
    void (*draw)(CoverCanvas& canvas);
};

std::span<const CoverScene> landscapes(); ///< land, sea and sky
std::span<const CoverScene> works();      ///< what people build

} // namespace varnhold::assets
