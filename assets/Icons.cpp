#include "Icons.h"

#include <array>

namespace varnhold::assets {

namespace {

constexpr std::array<std::string_view, 7> names{"flag-us.ico",  "flag-uk.ico", "flag-jp.ico", "flag-asia.ico",
                                                "flag-kor.ico", "psn.ico",     "unknown.ico"};

constexpr Color flagWhite = rgb(0xF7F7F5);
constexpr Color flagRed = rgb(0xC8283C);
constexpr Color flagBlue = rgb(0x2A4A8C);
constexpr Color flagEdge = rgb(0x6C7684);

/// Cloth of 14 x 10 in the middle of the icon, with an edge that shows on light and dark rows.
Drawing flag(Color cloth)
{
    return {box(0, 2, 16, 12, flagEdge), box(1, 3, 14, 10, cloth)};
}

Drawing unitedStates()
{
    Drawing drawing = flag(flagWhite);
    for (const double top : {3.0, 5.0, 7.0, 9.0, 11.0})
        drawing.push_back(box(1, top, 14, 1, flagRed));
    drawing.push_back(box(1, 3, 6, 5, flagBlue));
    for (const Point& star : {Point(2, 4), Point(4, 4), Point(6, 4), Point(3, 6), Point(5, 6)})
        drawing.push_back(box(star.x / 256.0 - 0.5, star.y / 256.0, 1, 1, flagWhite));
    return drawing;
}

Drawing unitedKingdom()
{
    Drawing drawing = flag(flagBlue);
    drawing.push_back(polygon({{1, 3}, {3.25, 3}, {15, 11.25}, {15, 13}, {12.75, 13}, {1, 4.75}}, flagWhite));
    drawing.push_back(polygon({{15, 3}, {12.75, 3}, {1, 11.25}, {1, 13}, {3.25, 13}, {15, 4.75}}, flagWhite));
    drawing.push_back(polygon({{1, 3}, {2, 3}, {15, 12.25}, {15, 13}, {14, 13}, {1, 3.75}}, flagRed));
    drawing.push_back(polygon({{15, 3}, {14, 3}, {1, 12.25}, {1, 13}, {2, 13}, {15, 3.75}}, flagRed));
    drawing.push_back(box(6, 3, 4, 10, flagWhite));
    drawing.push_back(box(1, 6, 14, 4, flagWhite));
    drawing.push_back(box(7, 3, 2, 10, flagRed));
    drawing.push_back(box(1, 7, 14, 2, flagRed));
    return drawing;
}

Drawing japan()
{
    Drawing drawing = flag(flagWhite);
    drawing.push_back(disc({8, 8}, 3, flagRed));
    return drawing;
}

/// No one country's: a sun over the sea.
Drawing asia()
{
    Drawing drawing = flag(rgb(0xF3C24A));
    drawing.push_back(disc({8, 9.5}, 3.5, flagRed));
    drawing.push_back(box(1, 9, 14, 4, rgb(0x1F7A8C)));
    drawing.push_back(box(3, 11, 4, 1, rgb(0x8AD0DA)));
    drawing.push_back(box(9, 11, 4, 1, rgb(0x8AD0DA)));
    return drawing;
}

Drawing korea()
{
    Drawing drawing = flag(flagWhite);
    drawing.push_back(disc({8, 8}, 3, flagRed));
    drawing.push_back(box(4, 8, 8, 4, flagWhite));
    drawing.push_back(ring({8, 8}, 3, 3, flagRed));
    drawing.push_back(polygon({{4.5, 8}, {11.5, 8}, {11, 10}, {9, 11.25}, {7, 11.25}, {5, 10}}, flagBlue));
    drawing.push_back(disc({6.5, 8}, 1.5, flagRed));
    drawing.push_back(disc({9.5, 8}, 1.5, flagBlue));
    constexpr Color bars = rgb(0x202428);
    for (const Point& corner : {Point(2, 4), Point(12, 4), Point(2, 11), Point(12, 11)})
        drawing.push_back(box(corner.x / 256.0, corner.y / 256.0, 2, 1, bars));
    return drawing;
}

/// From the network: a globe with its lines.
Drawing network()
{
    constexpr Color sea = rgb(0x2F6FC4);
    constexpr Color light = rgb(0xE6F0FC);
    Drawing drawing{disc({8, 8}, 7, rgb(0x1D4682)), disc({8, 8}, 6, sea), box(2, 5, 12, 1, light),
                    box(2, 10, 12, 1, light)};
    for (const double side : {-1.0, 1.0}) {
        drawing.push_back(line({8, 2}, {8 + side * 2.5, 5}, 1, light));
        drawing.push_back(line({8 + side * 2.5, 5}, {8 + side * 2.5, 11}, 1, light));
        drawing.push_back(line({8 + side * 2.5, 11}, {8, 14}, 1, light));
    }
    drawing.push_back(ring({8, 8}, 20, 13, seeThrough));
    drawing.push_back(ring({8, 8}, 7, 1, rgb(0x1D4682)));
    return drawing;
}

Drawing questionMark()
{
    return {disc({8, 8}, 7, rgb(0x59626E)),        disc({8, 8}, 6, rgb(0x7A8592)),
            ring({8, 6.25}, 2.75, 1.5, flagWhite), box(4, 6.25, 4, 3, rgb(0x7A8592)),
            box(7.25, 7.5, 1.5, 2, flagWhite),     box(7.25, 10.5, 1.5, 1.5, flagWhite)};
}

} // namespace

std::span<const std::string_view> rowIconNames()
{
    return names;
}

Drawing rowIcon(std::string_view file)
{
    if (file == names[0])
        return unitedStates();
    if (file == names[1])
        return unitedKingdom();
    if (file == names[2])
        return japan();
    if (file == names[3])
        return asia();
    if (file == names[4])
        return korea();
    if (file == names[5])
        return network();
    return questionMark();
}

Drawing sliderKnob(const SkinDesign& design)
{
    const FaceColors& face = design.faces[0];
    switch (design.outline) {
    case Outline::Rounded:
        return {disc({8, 8}, 7.5, design.rim), disc({8, 8}, 6.5, face.bottom), disc({8, 7}, 5.5, face.top),
                disc({8, 8}, 2.5, design.accent)};
    case Outline::Folded:
        return {box(3, 1, 10, 14, design.rim), box(4, 2, 8, 12, design.panel), box(6, 5, 4, 1, design.rim),
                box(6, 7, 4, 2, design.accent), box(6, 10, 4, 1, design.rim)};
    case Outline::Chamfered:
        break;
    }
    return {
        polygon({{5, 1}, {11, 1}, {15, 5}, {15, 11}, {11, 15}, {5, 15}, {1, 11}, {1, 5}}, face.rim),
        polygon({{5.5, 2}, {10.5, 2}, {14, 5.5}, {14, 10.5}, {10.5, 14}, {5.5, 14}, {2, 10.5}, {2, 5.5}},
                face.light),
        polygon({{6, 3}, {10, 3}, {14, 6}, {14, 10.5}, {10.5, 14}, {6, 14}, {3, 10}, {3, 6}}, face.bottom),
        disc({8, 8}, 2.5, design.accent)};
}

} // namespace varnhold::assets
