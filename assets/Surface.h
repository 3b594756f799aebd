#pragma once

#include "SkinDesign.h"

namespace varnhold::assets {

/// The same number for the same place and seed on every machine: 0 to 65535.
int noiseAt(std::uint32_t seed, int x, int y);

/// A colour on the way between two, with the step between neighbouring values dithered by place, so that a
/// long gradient between close colours shows no bands.
Color ditheredMix(Color from, Color to, int part, int whole, int x, int y);

/// How much lighter or darker (channel steps) the skin's material is at a place. With `wrap` (pixels, a
/// power of two) it repeats without a seam.
int grainAt(const SkinDesign& design, int x, int y, int wrap = 0);

/// The window's material at a place of a window of this size.
Color groundAt(const SkinDesign& design, Size window, int x, int y);

/// The inside of a well: quieter than the window's ground. `height` is the well's.
Color panelAt(const SkinDesign& design, int height, int x, int y);

/// Whether a window's outline cuts this place away.
bool isCutAway(const SkinDesign& design, Size window, int x, int y);

/// Side of the folded corner.
int foldSide(Size window);

} // namespace varnhold::assets
