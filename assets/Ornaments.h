#pragma once

#include "SkinDesign.h"

namespace varnhold::assets {

/// Pictures for the grounds of lists that repeat in both directions without a seam.
Picture drawListTile(const SkinDesign& design);
Picture drawUpdatesTile(const SkinDesign& design);

/// What stands where a title has no cover.
Picture drawBlankCover(const SkinDesign& design);

} // namespace varnhold::assets
