#pragma once

#include "CoverCanvas.h"
#include "TitleList.h"

#include <span>

namespace varnhold::assets {

std::span<const CoverInks> coverInks();

/// The covers are one series: a scene in a few inks, its title above, a spine at the left and the imprint
/// below. Throws std::runtime_error for a scene or inks that there are none of.
Picture drawCover(const CoverOrder& order, int height = coverSize.height);

/// A cover for a title that orders none: scene, inks and lettering follow from id and name.
CoverOrder coverOrderFor(const QString& id, const QString& name);

} // namespace varnhold::assets
