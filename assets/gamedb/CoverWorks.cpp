#include "CoverScenes.h"

#include <algorithm>
#include <array>

namespace varnhold::assets {

namespace {

/// A quarter of a turn after the sine.
int cosineOf(int turn)
{
    return sineOf(turn + 64);
}

void city(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    canvas.sky();
    canvas.glow(150, 190, 130, inks.light, 50);
    canvas.disc(176, 152, 22, inks.light);
    const std::array walls{inks.far, inks.middle, inks.near};
    for (int row = 0; row < 3; ++row) {
        const Color wall = walls.at(static_cast<std::size_t>(row));
        for (int x = -8; x < 260;) {
            const int width = 16 + canvas.random(16) + row * 4;
            const int top = 164 + row * 32 + canvas.random(42) - 14;
            canvas.box(x, top, width, 280 - top, wall);
            const double middle = x + width / 2.0;
            switch (canvas.random(5)) {
            case 0: // a dome
                canvas.disc(middle, top, width * 0.375, wall);
                canvas.line({middle, top - width * 0.375}, {middle, top - width * 0.375 - 9}, 1.5, wall);
                break;
            case 1: // a spire
                canvas.shape({{x + 2.0, top + 1.0}, {middle, top - 26.0}, {x + width - 2.0, top + 1.0}},
                             wall);
                break;
            case 2: // a gable
                canvas.shape({{x - 2.0, top + 1.0}, {middle, top - 10.0}, {x + width + 2.0, top + 1.0}},
                             wall);
                break;
            default:
                canvas.box(x + width - 8, top - 7, 4, 8, wall);
                break;
            }
            for (int wy = top + 7; wy < 262 && row > 0; wy += 10) {
                for (int wx = x + 4; wx + 4 < x + width; wx += 7) {
                    if (canvas.random(3) == 0)
                        canvas.box(wx, wy, 3, 4, faint(inks.light, row == 1 ? 60 : 95));
                }
            }
            x += width + (row == 2 ? canvas.random(10) : 0);
        }
    }
}

void circuit(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    canvas.sky();
    canvas.glow(150, 160, 110, inks.light, 55);
    canvas.disc(150, 160, 26, inks.light);
    canvas.below(canvas.ridge(168, 22), inks.far, inks.far);
    canvas.below([](int) { return 178; }, inks.middle, mix(inks.middle, inks.near, 1, 3));
    // Rows of road from the horizon on, each longer than the one before.
    constexpr int rows = 50;
    const auto nearness = [](int row) { return static_cast<double>(row * row) / (rows * rows); };
    const auto on = [&](int row, double aside) {
        const double near = nearness(row);
        const double bend = 40.0 * sineOf(static_cast<int>(near * 200)) / 1024;
        return Point(150 - 64 * near + bend + (2 + 96 * near) * aside, 178 + 100 * near);
    };
    const auto strip = [&](int from, int to, double left, double right, Color color) {
        Stroke stroke{Stroke::Kind::Polygon, color, {}};
        for (int row = from; row <= to; ++row)
            stroke.points.push_back(on(row, left));
        for (int row = to; row >= from; --row)
            stroke.points.push_back(on(row, right));
        canvas.lay(stroke);
    };
    for (int row = 0; row < rows; row += 3)
        strip(row, std::min(row + 3, rows), -1.125, 1.125, row % 2 == 0 ? inks.letter : inks.skyTop);
    strip(0, rows, -1, 1, inks.near);
    for (int row = 6; row < rows; row += 6)
        strip(row, std::min(row + 3, rows), -0.03125, 0.03125, inks.letter);
    // The car, from behind.
    const auto car = [](double x, double y) { return Point(96 + x, 246 + y); };
    canvas.shape({car(-36, 16), car(36, 16), car(32, 22), car(-32, 22)}, faint(rgb(0), 50));
    canvas.shape({car(-32, -4), car(32, -4), car(36, 4), car(34, 16), car(-34, 16), car(-36, 4)},
                 inks.skyTop);
    canvas.shape({car(-21, -4), car(-14, -18), car(14, -18), car(21, -4)}, mix(inks.skyTop, rgb(0), 1, 3));
    canvas.shape({car(-17, -5), car(-12, -15), car(12, -15), car(17, -5)}, inks.skyLow);
    canvas.box(64, 250, 14, 4, inks.light);
    canvas.box(114, 250, 14, 4, inks.light);
    canvas.box(66, 261, 12, 8, rgb(0x15151A));
    canvas.box(114, 261, 12, 8, rgb(0x15151A));
    canvas.box(62, 224, 68, 4, mix(inks.skyTop, rgb(0), 1, 4));
    canvas.box(76, 227, 4, 6, inks.near);
    canvas.box(112, 227, 4, 6, inks.near);
}

void gear(CoverCanvas& canvas, double x, double y, double radius, int teeth, int turn, Color color)
{
    Stroke wheel{Stroke::Kind::Polygon, color, {}};
    const auto corner = [&](int angle, double reach) {
        wheel.points.emplace_back(x + reach * cosineOf(angle) / 1024, y + reach * sineOf(angle) / 1024);
    };
    for (int i = 0; i < teeth; ++i) {
        const auto at = [&](int eighth) { return turn + (i * 8 + eighth) * 256 / (teeth * 8); };
        corner(at(0), radius);
        corner(at(4), radius);
        corner(at(5), radius * 1.15);
        corner(at(7), radius * 1.15);
    }
    canvas.lay(wheel);
    const Color rim = mix(color, canvas.inks.light, 1, 3);
    canvas.ring(x, y, radius * 0.9, radius * 0.05, rim);
    for (int i = 0; i < 5; ++i) {
        const int angle = turn + i * 256 / 5;
        canvas.disc(x + radius * 0.56 * cosineOf(angle) / 1024, y + radius * 0.56 * sineOf(angle) / 1024,
                    radius * 0.19, mix(canvas.inks.near, rgb(0), 1, 3));
    }
    canvas.disc(x, y, radius * 0.2, rim);
    canvas.disc(x, y, radius * 0.09, canvas.inks.near);
}

void gears(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    canvas.sky();
    const int turn = canvas.random(40);
    canvas.glow(150, 200, 130, inks.light, 40);
    gear(canvas, 216, 150, 30, 12, turn, inks.far);
    gear(canvas, 40, 168, 36, 14, turn + 3, inks.far);
    gear(canvas, 226, 250, 56, 20, turn + 9, inks.middle);
    gear(canvas, 34, 268, 46, 16, turn + 5, inks.middle);
    gear(canvas, 130, 212, 60, 22, turn, inks.near);
    // A clock's hands on the foremost wheel.
    canvas.line({130, 212}, {130, 168}, 5, inks.light);
    canvas.line({130, 212}, {158, 226}, 5, inks.light);
    canvas.disc(130, 212, 6, inks.light);
    canvas.disc(130, 212, 2.5, inks.near);
}

void kite(CoverCanvas& canvas, double x, double y, double size, Color one, Color other)
{
    const auto at = [&](double px, double py) { return Point(x + px * size, y + py * size); };
    const auto tail = [&](int i) {
        return Point(x + (-6.0 * i + 9.0 * sineOf(i * 26) / 1024) * size / 2, y + (38 + i * 5.0) * size);
    };
    for (int i = 0; i < 13; ++i)
        canvas.line(tail(i), tail(i + 1), 1.4 * size, canvas.inks.near);
    for (int i = 3; i < 13; i += 3) {
        const double bx = tail(i).x / 256.0;
        const double by = tail(i).y / 256.0;
        canvas.shape({{bx, by}, {bx - 7 * size, by - 4 * size}, {bx - 7 * size, by + 4 * size}}, one);
        canvas.shape({{bx, by}, {bx + 7 * size, by - 4 * size}, {bx + 7 * size, by + 4 * size}}, other);
    }
    canvas.line(at(0, 0), {x + (150 - x) * 0.75, 282}, 0.8, faint(canvas.inks.near, 75));
    canvas.shape({at(0, -38), at(26, -6), at(0, -6)}, one);
    canvas.shape({at(0, -38), at(-26, -6), at(0, -6)}, other);
    canvas.shape({at(26, -6), at(0, 40), at(0, -6)}, other);
    canvas.shape({at(-26, -6), at(0, 40), at(0, -6)}, one);
    canvas.line(at(0, -38), at(0, 40), 1.2 * size, canvas.inks.near);
    canvas.line(at(-26, -6), at(26, -6), 1.2 * size, canvas.inks.near);
}

void kites(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    canvas.sky();
    for (int i = 0; i < 5; ++i) {
        const int x = canvas.random(250);
        const int y = 144 + canvas.random(76);
        for (int puff = 0; puff < 4; ++puff)
            canvas.disc(x + puff * 11, y - (puff % 2) * 5, 9 + canvas.random(4),
                        mix(inks.skyLow, inks.letter, 2, 5));
    }
    canvas.below(canvas.ridge(246, 14), inks.far, inks.far);
    canvas.below(CoverCanvas::swell(258, 5, 190, canvas.random(190)), inks.middle, inks.near);
    kite(canvas, 204, 160, 0.5625, inks.middle, inks.light);
    kite(canvas, 52, 172, 0.6875, inks.light, inks.middle);
    kite(canvas, 134, 182, 1.125, inks.skyTop, inks.light);
}

void rails(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    constexpr double goal = 146; // where the rails meet
    canvas.sky();
    canvas.glow(146, 178, 120, inks.light, 60);
    canvas.disc(146, 176, 28, inks.light);
    canvas.below(canvas.ridge(178, 20), inks.far, inks.far);
    canvas.below([](int) { return 186; }, inks.middle, inks.near);
    for (int row = 2; row < 26; ++row) {
        const double near = static_cast<double>(row * row) / (25 * 25);
        const double y = 186 + 96 * near;
        canvas.box(goal - 4 - 84 * near, y, 8 + 168 * near, 1 + 5 * near, mix(inks.near, rgb(0), 1, 4));
    }
    for (const int side : {-1, 1}) {
        canvas.shape({{goal + side * 1.0, 186},
                      {goal + side * 1.75, 186},
                      {goal + side * 68.0, 284},
                      {goal + side * 59.0, 284}},
                     inks.letter);
        canvas.shape({{goal + side * 1.5, 186},
                      {goal + side * 1.75, 186},
                      {goal + side * 68.0, 284},
                      {goal + side * 65.0, 284}},
                     inks.far);
    }
    // Posts along the line, and the wire between their heads.
    const auto head = [](int post) {
        const double near = post * post / 16.0;
        return Point(146 + 8 + 96 * near, 182 - 58 * near);
    };
    for (int post = 1; post <= 4; ++post) {
        const double near = post * post / 16.0;
        const double x = head(post).x / 256.0;
        const double y = head(post).y / 256.0;
        canvas.line({x, y - 4 * near}, {x, 188 + 62 * near}, 1 + 3 * near, inks.near);
        canvas.line({x - 12 * near, y + 4 * near}, {x + 12 * near, y + 4 * near}, 1 + 2 * near, inks.near);
        if (post > 1)
            canvas.line(head(post - 1), {x, y + 4 * near}, 0.8, faint(inks.near, 80));
    }
    // A signal that says go.
    canvas.line({44, 276}, {44, 150}, 5, inks.near);
    canvas.box(35, 142, 18, 36, mix(inks.near, rgb(0), 1, 4));
    canvas.glow(44, 152, 24, inks.light, 80);
    canvas.disc(44, 152, 6, inks.light);
    canvas.disc(44, 167, 6, inks.near);
    canvas.box(24, 270, 40, 10, inks.near);
}

void maze(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    canvas.sky();
    constexpr int rings = 6;
    canvas.disc(133, 202, 76, faint(inks.near, 85));
    const int first = canvas.random(256);
    for (int ring = 1; ring <= rings; ++ring) {
        const double radius = 8 + ring * 10.5;
        const int gate = first + ring * 97;
        const int open = 15 * 16 / static_cast<int>(radius / 2);
        for (int turn = gate + open; turn < gate + 256 - open; turn += 3)
            canvas.line({133 + radius * cosineOf(turn) / 1024, 202 + radius * sineOf(turn) / 1024},
                        {133 + radius * cosineOf(turn + 3) / 1024, 202 + radius * sineOf(turn + 3) / 1024},
                        3.6,
                        ring == rings              ? inks.light
                        : inks.letter == inks.near ? inks.skyLow
                                                   : inks.letter);
        if (ring == rings)
            continue;
        const int wall = gate + 60 + canvas.random(120);
        canvas.line(
            {133 + radius * cosineOf(wall) / 1024, 202 + radius * sineOf(wall) / 1024},
            {133 + (radius + 10.5) * cosineOf(wall) / 1024, 202 + (radius + 10.5) * sineOf(wall) / 1024}, 3.6,
            inks.far);
    }
    canvas.glow(133, 202, 26, inks.light, 80);
    canvas.disc(133, 202, 6.5, inks.light);
}

void airship(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    canvas.sky();
    canvas.glow(70, 190, 110, inks.light, 50);
    const auto cloud = [&](int x, int y, int size, Color color) {
        for (int puff = 0; puff < 6; ++puff)
            canvas.disc(x + puff * size * 0.875, y - (puff % 3) * size * 0.375 + canvas.random(5),
                        size * (0.75 + canvas.random(40) / 100.0), color);
        canvas.box(x - size * 0.75, y, size * 6, size * 0.75, color);
    };
    cloud(-20, 176, 13, mix(inks.skyLow, inks.letter, 1, 3));
    cloud(176, 216, 13, mix(inks.skyLow, inks.letter, 1, 3));
    const auto hull = [](int turn, double across, double down) {
        return Point(138 + across * cosineOf(turn) / 1024, 182 + down * sineOf(turn) / 1024);
    };
    const auto ellipse = [&](double across, double down, Color color) {
        Stroke body{Stroke::Kind::Polygon, color, {}};
        for (int turn = 0; turn < 256; turn += 4)
            body.points.push_back(hull(turn, across, down));
        canvas.lay(body);
    };
    canvas.shape({{54, 182}, {26, 152}, {42, 150}, {84, 174}}, inks.near);
    canvas.shape({{54, 182}, {26, 212}, {42, 214}, {84, 190}}, inks.near);
    ellipse(96, 36, inks.near);
    ellipse(96, 32, inks.middle);
    ellipse(95, 22, mix(inks.middle, inks.far, 1, 2));
    ellipse(93, 11, inks.far);
    canvas.box(40, 181, 192, 2, inks.light);
    for (int rib = -2; rib <= 2; ++rib) {
        const double across = rib * 26.0;
        for (int turn = -60; turn < 60; turn += 6)
            canvas.line(
                {138 + across + across / 6 * cosineOf(turn) / 1024, 182 + 33.0 * sineOf(turn) / 1024},
                {138 + across + across / 6 * cosineOf(turn + 6) / 1024, 182 + 33.0 * sineOf(turn + 6) / 1024},
                1.1, mix(inks.middle, inks.near, 2, 3));
    }
    canvas.shape({{104, 216}, {172, 216}, {164, 234}, {112, 234}}, mix(inks.near, rgb(0), 1, 4));
    for (int x = 114; x < 160; x += 12)
        canvas.box(x, 221, 7, 6, inks.light);
    canvas.line({98, 226}, {112, 226}, 2, inks.near);
    canvas.line({98, 216}, {98, 236}, 2.5, inks.near);
    cloud(10, 262, 19, mix(inks.skyLow, inks.letter, 3, 4));
    cloud(120, 276, 24, inks.skyLow);
    canvas.below(canvas.ridge(272, 8), inks.far, inks.middle);
}

void signal(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    canvas.sky();
    for (int i = 0; i < 50; ++i)
        canvas.disc(canvas.random(256), canvas.random(200), 0.5 + canvas.random(7) / 10.0,
                    faint(inks.light, 70));
    for (int ring = 1; ring <= 6; ++ring)
        canvas.ring(133, 150, 15.0 * ring + 1, 2.2, faint(inks.light, 74 - ring * 10));
    canvas.below(canvas.ridge(226, 34), inks.far, inks.middle);
    const auto leg = [](double part, int side) {
        return Point(133 + side * (2 + 24 * part), 152 + 104 * part);
    };
    for (const int side : {-1, 1})
        canvas.line(leg(0, side), leg(1, side), 3, inks.near);
    constexpr int bays = 7;
    for (int bay = 0; bay < bays; ++bay) {
        const double upper = bay / 7.0;
        const double lower = (bay + 1) / 7.0;
        canvas.line(leg(upper, -1), leg(lower, 1), 1.5, inks.near);
        canvas.line(leg(upper, 1), leg(lower, -1), 1.5, inks.near);
        canvas.line(leg(lower, -1), leg(lower, 1), 1.5, inks.near);
    }
    canvas.below(canvas.ridge(256, 18), inks.near, mix(inks.near, rgb(0), 1, 4));
    canvas.box(172, 238, 28, 22, mix(inks.near, rgb(0), 1, 4));
    canvas.shape({{167, 240}, {186, 226}, {205, 240}}, mix(inks.near, rgb(0), 1, 4));
    canvas.box(182, 245, 8, 8, inks.light);
    canvas.glow(133, 150, 34, inks.light, 90);
    canvas.disc(133, 150, 5, inks.light);
}

void bridge(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    canvas.sky();
    canvas.glow(190, 196, 110, inks.light, 55);
    canvas.disc(190, 190, 24, inks.light);
    canvas.below(canvas.ridge(204, 22), inks.far, inks.far);
    canvas.below([](int) { return 212; }, mix(inks.far, inks.middle, 2, 3), inks.near);
    for (int i = 0; i < 26; ++i)
        canvas.box(canvas.random(256), 218 + canvas.random(60), 8 + canvas.random(22), 1.5,
                   faint(inks.light, 50));
    constexpr double deck = 228;
    constexpr std::array towers{70.0, 196.0};
    const auto cable = [&](double x) {
        const double from = x < towers[0] ? towers[0] - 126 : x < towers[1] ? towers[0] : towers[1];
        const double along = (x - from - 63) / 63;
        return 142 + 76 * (1 - along * along);
    };
    for (int x = 0; x < 264; x += 9)
        canvas.line({static_cast<double>(x), cable(x)}, {static_cast<double>(x), deck}, 0.9,
                    faint(inks.near, 85));
    for (int x = -4; x < 260; x += 3)
        canvas.line({static_cast<double>(x), cable(x)}, {x + 3.0, cable(x + 3.0)}, 2.6, inks.near);
    for (const double x : towers) {
        canvas.shape({{x - 9, 262}, {x - 6, 136}, {x - 1.5, 136}, {x - 3, 262}}, inks.near);
        canvas.shape({{x + 3, 262}, {x + 1.5, 136}, {x + 6, 136}, {x + 9, 262}}, inks.near);
        for (const double y : {138.0, 164.0, 194.0})
            canvas.box(x - 7, y, 14, 4, inks.near);
        canvas.shape({{x - 16, 262}, {x + 16, 262}, {x + 20, 272}, {x - 20, 272}}, inks.near);
        canvas.disc(x, 133, 3, inks.light);
    }
    canvas.box(0, deck, 256, 7, inks.near);
    canvas.box(0, deck - 3, 256, 1.25, inks.near);
    // A coach with lit windows crosses.
    canvas.box(112, deck - 14, 44, 13, mix(inks.near, rgb(0), 1, 3));
    for (int x = 116; x < 152; x += 8)
        canvas.box(x, deck - 11, 5, 4, inks.light);
}

constexpr std::array scenes{
    CoverScene{"city", city},       CoverScene{"circuit", circuit}, CoverScene{"gears", gears},
    CoverScene{"kites", kites},     CoverScene{"rails", rails},     CoverScene{"maze", maze},
    CoverScene{"airship", airship}, CoverScene{"signal", signal},   CoverScene{"bridge", bridge},
};

} // namespace

std::span<const CoverScene> works()
{
    return scenes;
}

} // namespace varnhold::assets
