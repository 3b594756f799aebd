#include "MenuGlyphs.h"

#include "Drawing.h"

#include <algorithm>
#include <array>

namespace varnhold::assets {

namespace {

// Colours that each skin fills in; see-through values that no stroke is ever drawn with.
constexpr Color ink = 1;
constexpr Color soft = 2;
constexpr Color accent = 3;
constexpr Color plate = 4;

struct Glyph
{
    std::string_view name;
    Drawing drawing;
};

Drawing operator+(Drawing first, const Drawing& second)
{
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

/// A frame of one pixel.
Drawing frame(double x, double y, double width, double height, Color color = ink)
{
    return {box(x, y, width, 1, color), box(x, y + height - 1, width, 1, color), box(x, y, 1, height, color),
            box(x + width - 1, y, 1, height, color)};
}

Drawing page(double x = 3)
{
    return frame(x, 1, 10, 14);
}

Drawing folder(Color color = ink)
{
    return Drawing{box(1, 3, 6, 1, color), box(1, 3, 1, 10, color), box(7, 4, 1, 1, color),
                   box(7, 5, 7, 1, color), box(14, 5, 1, 8, color), box(1, 12, 14, 1, color)};
}

/// The arrow of things that come down: a shaft, a head and a tray.
Drawing comingDown(Color color)
{
    return {box(7, 1, 2, 7, color), polygon({{3.5, 7}, {12.5, 7}, {8, 11.5}}, color)};
}

Drawing barrel(Color color = ink)
{
    return {box(3, 2, 10, 1, color),  box(2, 3, 1, 10, color), box(13, 3, 1, 10, color),
            box(3, 13, 10, 1, color), box(3, 5, 10, 1, color), box(3, 9, 10, 1, color),
            box(5, 7, 2, 1, accent),  box(5, 11, 2, 1, accent)};
}

Drawing pencil()
{
    return {line({4.5, 11.5}, {11.5, 4.5}, 3.5, ink), line({4.5, 11.5}, {11.5, 4.5}, 1.25, plate),
            polygon({{2, 14}, {3, 10}, {6, 13}}, ink), line({11.75, 4.25}, {12.5, 3.5}, 3.5, accent)};
}

Drawing rows(std::initializer_list<double> tops, double left, double width, Color color = ink)
{
    Drawing drawing;
    for (const double top : tops)
        drawing.push_back(box(left, top, width, 1, color));
    return drawing;
}

Drawing pictureFrame()
{
    return frame(1, 2, 14, 12) +
           Drawing{disc({5, 6}, 1.5, accent),
                   polygon({{2, 13}, {6.5, 8.5}, {9, 11}, {11, 9}, {14, 12}, {14, 13}}, ink)};
}

Drawing swatch(Color color)
{
    return frame(2, 2, 12, 12) + Drawing{box(4, 4, 8, 8, color)};
}

Drawing boxes(bool filled)
{
    Drawing drawing;
    for (const double top : {1.0, 6.0, 11.0}) {
        drawing = drawing + frame(1, top, 4, 4) + rows({top + 1}, 7, 8);
        if (filled)
            drawing.push_back(box(2, top + 1, 2, 2, accent));
    }
    return drawing;
}

Drawing turningArrow()
{
    return {ring({8, 8}, 6, 1.75, ink), box(8, 0, 8, 7.5, plate),
            polygon({{8, 0.5}, {8, 6}, {12.5, 3.25}}, ink)};
}

Drawing chain()
{
    return {ring({5, 10.5}, 3.75, 1.75, ink), ring({11, 5.5}, 3.75, 1.75, ink),
            line({5.75, 9.75}, {10.25, 6.25}, 3.75, plate), line({5.75, 9.75}, {10.25, 6.25}, 1.75, accent)};
}

Drawing gear()
{
    Drawing drawing;
    for (const Point& tooth : {Point(8, 1.75), Point(12.5, 3.5), Point(14.25, 8), Point(12.5, 12.5),
                               Point(8, 14.25), Point(3.5, 12.5), Point(1.75, 8), Point(3.5, 3.5)})
        drawing.push_back(line({8, 8}, {tooth.x / 256.0, tooth.y / 256.0}, 2.5, ink));
    return drawing + Drawing{disc({8, 8}, 5, ink), disc({8, 8}, 3, plate), disc({8, 8}, 1.5, accent)};
}

Drawing lens()
{
    return {line({10, 10}, {14, 14}, 2.5, accent), ring({6.5, 6.5}, 5.25, 1.75, ink)};
}

Drawing bin()
{
    return {box(6, 1, 4, 1, ink),  box(2, 3, 12, 1, ink),   box(5, 1, 1, 2, ink),
            box(10, 1, 1, 2, ink), box(3, 5, 1, 9, ink),    box(12, 5, 1, 9, ink),
            box(4, 14, 8, 1, ink), box(6, 6, 1, 6, accent), box(9, 6, 1, 6, accent)};
}

Drawing scissors()
{
    return {line({4.5, 1.5}, {10, 10.5}, 1.5, ink), line({11.5, 1.5}, {6, 10.5}, 1.5, ink),
            ring({4.75, 12}, 2.75, 1.5, accent), ring({11.25, 12}, 2.75, 1.5, accent)};
}

Drawing twoPages()
{
    return frame(5, 5, 10, 10) +
           Drawing{box(1, 1, 10, 1, ink), box(1, 1, 1, 10, ink), box(10, 1, 1, 3, ink),
                   box(1, 10, 3, 1, ink)} +
           rows({8, 11}, 7, 6, accent);
}

Drawing clipboard()
{
    return frame(2, 3, 10, 12) + Drawing{box(4, 1, 6, 4, ink), box(6, 2, 2, 1, plate)} +
           Drawing{box(7, 8, 8, 7, plate)} + frame(8, 8, 7, 7, accent);
}

Drawing backArrow()
{
    return {ring({8.5, 9}, 5, 1.75, ink),
            box(0, 9.5, 8, 6.5, plate),
            box(0, 0, 8.5, 9.5, plate),
            box(6, 4, 3, 1.75, ink),
            polygon({{7, 0.75}, {7, 9}, {1.5, 4.875}}, ink),
            box(6, 12.25, 3, 1.75, ink)};
}

std::vector<Glyph> makeGlyphs()
{
    std::vector<Glyph> glyphs;
    glyphs.push_back({"db", barrel()});
    glyphs.push_back(
        {"open", folder() + Drawing{polygon({{1, 13}, {3.5, 8}, {15, 8}, {13, 13}}, ink),
                                    polygon({{2.75, 12}, {4.25, 9}, {13.5, 9}, {12.25, 12}}, accent)}});
    glyphs.push_back(
        {"add", frame(1, 1, 14, 14, soft) + Drawing{box(7, 4, 2, 8, accent), box(4, 7, 8, 2, accent)}});
    glyphs.push_back({"copy", twoPages()});
    glyphs.push_back({"edit", pencil()});
    glyphs.push_back({"search", lens()});
    glyphs.push_back({"update", turningArrow() + Drawing{disc({8, 8}, 2, accent)}});
    glyphs.push_back({"settings", gear()});
    glyphs.push_back({"thumbnail", frame(1, 1, 6, 6) + frame(9, 1, 6, 6) + frame(1, 9, 6, 6) +
                                       frame(9, 9, 6, 6) +
                                       Drawing{box(3, 3, 2, 2, accent), box(11, 11, 2, 2, accent)}});
    glyphs.push_back({"link", chain()});
    glyphs.push_back(
        {"raw", Drawing{line({4.5, 4}, {1.5, 8}, 1.5, ink), line({1.5, 8}, {4.5, 12}, 1.5, ink),
                        line({11.5, 4}, {14.5, 8}, 1.5, ink), line({14.5, 8}, {11.5, 12}, 1.5, ink),
                        line({9.25, 3}, {6.75, 13}, 1.5, accent)}});
    glyphs.push_back({"exit", Drawing{box(2, 1, 8, 1, ink), box(2, 1, 1, 14, ink), box(2, 14, 8, 1, ink),
                                      box(9, 1, 1, 4, ink), box(9, 11, 1, 4, ink), box(6, 7, 6, 2, accent),
                                      polygon({{11, 4}, {11, 12}, {15, 8}}, accent)}});
    glyphs.push_back({"unchecked", frame(3, 3, 10, 10)});
    glyphs.push_back(
        {"icon",
         Drawing{box(2, 1, 2, 14, ink),
                 polygon({{4, 2}, {8, 1}, {11, 3}, {15, 2}, {15, 9}, {11, 10}, {8, 8}, {4, 9}}, accent)}});
    glyphs.push_back({"move", Drawing{box(1, 4, 9, 2, accent), polygon({{9, 1}, {9, 9}, {14.5, 5}}, accent),
                                      box(6, 10, 9, 2, ink), polygon({{7, 7}, {7, 15}, {1.5, 11}}, ink)}});
    glyphs.push_back({"cover", pictureFrame()});
    glyphs.push_back({"path", folder() + Drawing{line({5, 9}, {7, 11}, 1.75, accent),
                                                 line({7, 11}, {11.5, 7}, 1.75, accent)}});
    glyphs.push_back({"delete", bin()});
    glyphs.push_back({"dl-check", frame(1, 3, 11, 11) + Drawing{box(8, 2, 6, 6, plate)} +
                                      Drawing{line({4, 8}, {6.5, 10.5}, 2, accent),
                                              line({6.5, 10.5}, {13.5, 2.5}, 2, accent)}});
    glyphs.push_back({"select_all", boxes(true)});
    glyphs.push_back({"deselect_all", boxes(false)});
    glyphs.push_back({"dl", comingDown(accent) + Drawing{box(1, 11, 1, 4, ink), box(14, 11, 1, 4, ink),
                                                         box(1, 14, 14, 1, ink)}});
    glyphs.push_back({"list", page() + rows({4, 7, 10}, 5, 6, accent)});
    glyphs.push_back(
        {"explore", folder() + Drawing{box(7, 6, 9, 10, plate), ring({10.5, 10}, 3.5, 1.5, accent),
                                       line({13, 12.5}, {15, 14.5}, 1.75, accent), box(7, 5, 8, 1, ink)}});
    glyphs.push_back({"dir", folder() + Drawing{box(2, 7, 12, 1, accent)}});
    glyphs.push_back({"undo", backArrow()});
    glyphs.push_back({"cut", scissors()});
    glyphs.push_back({"paste", clipboard()});
    glyphs.push_back(
        {"selectall", page() + Drawing{box(5, 3, 6, 10, accent)} + rows({5, 8, 11}, 5, 6, plate)});
    glyphs.push_back(
        {"font", Drawing{line({2, 13.5}, {6.5, 2.5}, 1.75, ink), line({6.5, 2.5}, {11, 13.5}, 1.75, ink),
                         box(3.5, 9, 6, 1.5, ink), box(12, 9, 3, 1, accent), box(14, 9, 1, 5, accent),
                         box(11, 11, 1, 2, accent), box(12, 11, 2, 1, accent), box(12, 13, 3, 1, accent)}});
    constexpr std::pair<std::string_view, std::uint32_t> colors[] = {
        {"black", 0x101010}, {"blue", 0x2C50E8},   {"cyan", 0x18D8E8},  {"gray", 0x8C8C8C},
        {"green", 0x1FBF3A}, {"orange", 0xFF8A1F}, {"pink", 0xFF80C0},  {"purple", 0x80248C},
        {"red", 0xE02424},   {"white", 0xFAFAFA},  {"yellow", 0xFFE21F}};
    for (const auto& [name, value] : colors)
        glyphs.push_back({name, swatch(rgb(value))});
    glyphs.push_back({"custom", frame(2, 2, 12, 12) +
                                    Drawing{box(4, 4, 4, 4, rgb(0xE02424)), box(8, 4, 4, 4, rgb(0xFFE21F)),
                                            box(4, 8, 4, 4, rgb(0x2C50E8)), box(8, 8, 4, 4, rgb(0x1FBF3A))}});
    glyphs.push_back({"refresh", turningArrow()});
    glyphs.push_back({"skin", Drawing{disc({8, 8}, 7, ink), disc({8, 8}, 5.5, plate),
                                      disc({13, 12.5}, 3.25, plate), ring({11, 11}, 2.25, 1.25, ink),
                                      disc({5, 6}, 1.25, accent), disc({8.5, 4.75}, 1.25, accent),
                                      disc({11.5, 7}, 1.25, accent), disc({5.25, 9.75}, 1.25, accent)}});
    return glyphs;
}

const std::vector<Glyph>& glyphs()
{
    static const std::vector<Glyph> all = makeGlyphs();
    return all;
}

} // namespace

std::vector<std::string_view> menuGlyphNames()
{
    std::vector<std::string_view> names;
    for (const Glyph& glyph : glyphs())
        names.push_back(glyph.name);
    return names;
}

Picture drawMenuGlyph(const SkinDesign& design, std::string_view name)
{
    const auto glyph = std::find_if(glyphs().begin(), glyphs().end(),
                                    [name](const Glyph& candidate) { return candidate.name == name; });
    Drawing drawing = glyph->drawing;
    const std::array palette{Color(0), design.glyphInk, design.glyphSoft, design.accent, design.plate};
    for (Stroke& stroke : drawing) {
        if (stroke.color < palette.size())
            stroke.color = palette.at(stroke.color);
    }
    return render(drawing, menuGlyphSide, design.plate);
}

} // namespace varnhold::assets
