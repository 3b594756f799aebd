#include "ButtonFaces.h"

#include "Surface.h"

#include <algorithm>

namespace varnhold::assets {

namespace {

/// How far a plate's corner goes, counted along both edges; 0 is square.
int cornerOf(const SkinDesign& design)
{
    switch (design.outline) {
    case Outline::Rounded:
        return 2;
    case Outline::Folded:
        return 0;
    case Outline::Chamfered:
        break;
    }
    return 3;
}

bool inPlate(const Area& plate, int corner, int x, int y)
{
    if (x < plate.x || y < plate.y || x >= plate.right() || y >= plate.bottom())
        return false;
    return std::min(x - plate.x, plate.right() - 1 - x) + std::min(y - plate.y, plate.bottom() - 1 - y) >=
           corner;
}

Picture drawPlate(const SkinDesign& design, Size size, const Area& plate, int face)
{
    const FaceColors& colors = design.faces[static_cast<std::size_t>(face)];
    const int corner = cornerOf(design);
    const auto in = [&](int x, int y) { return inPlate(plate, corner, x, y); };
    const auto onRim = [&](int x, int y) {
        return in(x, y) && !(in(x - 1, y) && in(x + 1, y) && in(x, y - 1) && in(x, y + 1));
    };
    Picture picture(size, faceCut);
    for (int y = plate.y; y < plate.bottom(); ++y) {
        for (int x = 0; x < size.width; ++x) {
            if (!in(x, y))
                continue;
            Color color = ditheredMix(colors.top, colors.bottom, y - plate.y, plate.height, x, y);
            if (design.texture == Texture::Brushed)
                color = shifted(color, grainAt(design, x, y) / 2);
            if (onRim(x, y))
                color = colors.rim;
            else if (onRim(x, y - 1) || (design.texture != Texture::Glass && onRim(x - 1, y)))
                color = colors.light;
            else if (design.texture != Texture::Glass && (onRim(x, y + 1) || onRim(x + 1, y)))
                color = colors.shade;
            picture.set(x, y, color);
        }
    }
    return picture;
}

/// Flat glass stands a pixel above the window, on a shadow; pressed, it goes down onto it.
Picture drawGlass(const SkinDesign& design, Size size, int face)
{
    const bool pressed = face == 2;
    Picture picture = drawPlate(design, size, {0, pressed ? 1 : 0, size.width, size.height - 1}, face);
    if (!pressed) {
        const Color shadow = design.faces[static_cast<std::size_t>(face)].shade;
        picture.fill({2, size.height - 1, size.width - 4, 1}, shadow);
    }
    return picture;
}

} // namespace

Picture drawFace(const SkinDesign& design, Size size, int face)
{
    if (design.texture == Texture::Glass)
        return drawGlass(design, size, face);
    return drawPlate(design, size, {0, 0, size.width, size.height}, face);
}

} // namespace varnhold::assets
