#include "Ornaments.h"

#include "Drawing.h"
#include "Surface.h"

#include <algorithm>
#include <array>

namespace varnhold::assets {

namespace {

constexpr int tileSide = 64;
constexpr int updateRowHeight = 18;
constexpr int plateLift = 14;
constexpr int fade = 12; ///< pixels in which what runs to the right edge goes out
constexpr Size coverSize{90, 104};

/// Height of a low swell over a quarter of the tile, in pixels.
constexpr std::array swell{0, 0, 1, 1, 2, 2, 2, 2, 2, 2, 2, 2, 1, 1, 0, 0};

/// A tile without a mark: only the grain of its ground.
Picture drawGround(const SkinDesign& design, Size size)
{
    Picture tile(size, design.panel);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x)
            tile.set(x, y, shifted(design.panel, grainAt(design, x, y, tileSide) / 2));
    }
    return tile;
}

Drawing harbour(const SkinDesign& design)
{
    constexpr Color moon = rgb(0xE9F1FB);
    Drawing drawing{
        polygon({{6, 5.5}, {16, 6}, {16, 10.5}, {6, 6.25}}, mix(design.plate, design.accent, 1, 6)),
        polygon({{6, 5.625}, {16, 7}, {16, 9.25}, {6, 6.125}}, mix(design.plate, design.accent, 1, 3)),
        disc({12, 3.75}, 2.25, moon), disc({13, 3}, 1.875, seeThrough)};
    // The lighthouse on its rock.
    drawing.push_back(polygon({{1.5, 14}, {3, 12.5}, {6.5, 12.5}, {8.5, 14}}, design.panelEdge));
    drawing.push_back(polygon({{3.75, 12.5}, {4.25, 6.5}, {5.5, 6.5}, {6, 12.5}}, design.glyphSoft));
    drawing.push_back(box(4.125, 8, 1.5, 1, design.plate));
    drawing.push_back(box(4, 10, 1.75, 1, design.plate));
    drawing.push_back(box(4.25, 5.25, 1.25, 1.25, design.accent));
    drawing.push_back(polygon({{3.75, 5.25}, {4.875, 4.25}, {6, 5.25}}, design.glyphSoft));
    for (const Point& wave :
         {Point(9.5, 13), Point(11, 14.25), Point(2.5, 15.25), Point(7, 15.25), Point(12, 15.75)})
        drawing.push_back(box(wave.x / 256.0, wave.y / 256.0, 2.5, 0.25, design.glyphSoft));
    return drawing;
}

Drawing emptyMount(const SkinDesign& design)
{
    return {line({3, 4}, {13, 14}, 0.25, design.grooveDark), line({13, 4}, {3, 14}, 0.25, design.grooveDark),
            disc({8, 9}, 2.5, design.panel), ring({8, 9}, 2.5, 0.25, design.rim),
            box(7, 8.875, 2, 0.25, design.accent)};
}

Drawing rivetedPlate(const SkinDesign& design)
{
    const FaceColors& face = design.faces[0];
    Drawing drawing;
    for (const Point& at : {Point(3, 4), Point(13, 4), Point(3, 14.5), Point(13, 14.5)}) {
        const Point above(at.x / 256.0, at.y / 256.0 - 0.125);
        drawing.push_back(disc(at, 0.625, face.rim));
        drawing.push_back(disc(above, 0.5, face.light));
    }
    drawing.push_back(ring({8, 9.25}, 3.75, 0.375, face.rim));
    drawing.push_back(ring({8, 9.125}, 3.75, 0.25, design.rim));
    drawing.push_back(ring({8, 9.125}, 1, 0.25, design.accent));
    return drawing;
}

} // namespace

Picture drawListTile(const SkinDesign& design)
{
    return drawGround(design, {tileSide, tileSide}); // the font decides where its rows lie
}

Picture drawUpdatesTile(const SkinDesign& design)
{
    constexpr int rows = 4;
    Picture tile = drawGround(design, {tileSide, rows * updateRowHeight});
    for (int y = 0; y < tile.height(); ++y) {
        const int row = y / updateRowHeight;
        const int fromFoot = updateRowHeight - 1 - y % updateRowHeight;
        for (int x = 0; x < tileSide; ++x) {
            // Water: crests that every second row shifts by half a wave. Or ruled with dots.
            const int place = (x + row % 2 * (tileSide / 8)) % (tileSide / 4);
            if (design.texture == Texture::Glass && fromFoot == 2 - swell.at(static_cast<std::size_t>(place)))
                tile.set(x, y, mix(design.panel, design.panelEdge, 1, 4));
            else if (design.texture == Texture::Paper && fromFoot == 0 && x % 4 == 0)
                tile.set(x, y, mix(design.panel, design.grooveDark, 1, 2));
        }
    }
    return tile;
}

Picture drawBlankCover(const SkinDesign& design)
{
    Drawing drawing;
    switch (design.texture) {
    case Texture::Glass:
        drawing = harbour(design);
        break;
    case Texture::Paper:
        drawing = emptyMount(design);
        break;
    case Texture::Brushed:
        drawing = rivetedPlate(design);
        break;
    }
    Picture cover = render(drawing, coverSize, coverSize.width, seeThrough);
    for (int y = 0; y < cover.height(); ++y) {
        for (int x = 0; x < cover.width(); ++x) {
            // Its ground is that of the column, in which it also shows large, so that no edge is seen; only
            // the plate has one of its own.
            const Color panel = panelAt(design, cover.height(), x, y);
            const Color ground = design.texture == Texture::Brushed ? shifted(panel, plateLift) : panel;
            const Color sign = cover.at(x, y);
            const int fromRight = cover.width() - 1 - x;
            const int shown = design.texture == Texture::Glass ? std::min(fromRight, fade) : fade;
            cover.set(x, y, mix(ground, rgb(sign & 0xFFFFFFU), alphaOf(sign) * shown / fade, 255));
        }
    }
    if (design.texture == Texture::Brushed) {
        cover.frame({0, 0, cover.width(), cover.height()}, design.grooveDark);
        cover.fill({1, 1, cover.width() - 2, 1}, design.grooveLight);
    }
    return cover;
}

} // namespace varnhold::assets
