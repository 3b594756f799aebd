#pragma once

#include "Picture.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace varnhold::assets {

enum class Outline { Rounded, Folded, Chamfered };
enum class Texture { Glass, Paper, Brushed };

/// A button face's colours; the index of a face in its family is 0 idle, 1 under the mouse, 2 pressed.
struct FaceColors
{
    Color top;
    Color bottom;
    Color rim;
    Color light; ///< of the edge that faces the light
    Color shade; ///< of the edge that turns away from it
};

/// The seventeen colours of the game list, in the order of the section "Custom LstView".
using ListColors = std::array<Color, 17>;

/// All that makes one skin differ from the next. The shapes and pictures themselves are shared.
struct SkinDesign
{
    std::string_view name; ///< of its folder
    Outline outline;
    Texture texture;
    std::uint32_t seed;

    // Window ground, from top to bottom, and what stands out from it.
    Color top;
    Color middle;
    Color bottom;
    Color rim;       ///< the outermost line
    Color rimLight;  ///< the line inside it along the top
    Color panel;     ///< inside of wells
    Color panelEdge; ///< round wells
    Color grooveDark;
    Color grooveLight;
    Color strip; ///< ground of the title row

    // Colours of controls.
    Color ink;
    Color quiet;
    Color accent;
    Color back;

    std::array<FaceColors, 3> faces;

    // Menu glyphs.
    Color plate;
    Color glyphInk;
    Color glyphSoft;

    ListColors list;
};

/// The delivered skins, the default one first.
std::span<const SkinDesign> skinDesigns();

} // namespace varnhold::assets
