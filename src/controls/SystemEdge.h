#pragma once

#include "controls/SystemColors.h"

namespace varnhold {

/// The bevels of the platform, two rings of one pixel each (flat has one), lit from the top left.
enum class EdgeKind { sunken, raised, etched, bump, flat };

/// One ring of a bevel: its left and top sides in one colour, right and bottom in the other.
struct EdgeRing
{
    ColorValue leftTop = 0;
    ColorValue rightBottom = 0;
};

struct SystemEdge
{
    EdgeRing outer;
    EdgeRing inner;
    int rings = 2;
};

/// The bevel's colours on a face of that colour. The system's button face gives the classic system colours;
/// any other face is shaded in the same proportions, so that the bevel suits a dark skin too.
[[nodiscard]] SystemEdge systemEdge(EdgeKind kind, ColorValue face = systemcolors::buttonFace);

} // namespace varnhold
