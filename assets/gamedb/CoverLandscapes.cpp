#include "CoverScenes.h"

#include <algorithm>
#include <array>

namespace varnhold::assets {

namespace {

using Height = CoverCanvas::Height;

void stars(CoverCanvas& canvas, int count, int lowest)
{
    for (int i = 0; i < count; ++i) {
        const int x = canvas.random(256);
        const int y = canvas.random(lowest);
        canvas.disc(x, y, 0.5 + canvas.random(8) / 10.0, faint(canvas.inks.light, 30 + canvas.random(60)));
    }
}

void sun(CoverCanvas& canvas, int x, int y, int radius)
{
    canvas.glow(x, y, radius * 3, canvas.inks.light, 55);
    canvas.disc(x, y, radius, canvas.inks.light);
}

void glitter(CoverCanvas& canvas, int x, int top, int count)
{
    for (int i = 0; i < count; ++i) {
        const int y = top + i * 6 + canvas.random(4);
        const int length = 6 + canvas.random(10 + i * 3);
        const int left = x - length / 2 + canvas.random(9 + i * 4) - 4 - i * 2;
        canvas.box(left, y, length, 1.5, faint(canvas.inks.light, 60));
    }
}

void coast(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    canvas.sky();
    stars(canvas, 24, 150);
    const int low = 196 + canvas.random(10);
    canvas.below(canvas.ridge(low - 8, 16), inks.far, inks.far);
    canvas.below([low](int) { return low; }, inks.middle, inks.near);
    glitter(canvas, 178, low + 5, 9);
    canvas.glow(88, 146, 84, inks.light, 60);
    canvas.shape({{88, 143}, {270, 112}, {270, 150}, {88, 149}}, faint(inks.light, 42));
    canvas.shape({{88, 143}, {-10, 122}, {-10, 150}, {88, 149}}, faint(inks.light, 26));
    canvas.below([base = canvas.ridge(0, 7)](
                     int x) { return base(x) + 226 + (x < 120 ? 0 : (x - 120) * (x - 120) / 90.0); },
                 inks.near, mix(inks.near, rgb(0), 2, 5));
    canvas.shape({{73, 236}, {79, 158}, {97, 158}, {103, 236}}, inks.letter);
    canvas.shape({{78, 172}, {98, 172}, {99.25, 188}, {76.75, 188}}, inks.middle);
    canvas.shape({{75.5, 204}, {100.5, 204}, {101.75, 220}, {74.25, 220}}, inks.middle);
    canvas.shape({{90, 158}, {97, 158}, {103, 236}, {94, 236}}, faint(inks.near, 34));
    canvas.box(75, 154, 26, 4, inks.near);
    canvas.box(80, 138, 16, 16, inks.near);
    canvas.box(82, 140, 12, 14, inks.light);
    canvas.box(87.5, 139, 1, 15, inks.near);
    canvas.shape({{77, 139}, {88, 128}, {99, 139}}, inks.near);
    canvas.line({88, 130}, {88, 122}, 1.5, inks.near);
}

void waves(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    canvas.sky();
    sun(canvas, 90 + canvas.random(90), 160, 30);
    constexpr int rows = 6;
    for (int row = 0; row < rows; ++row) {
        const Color body = row < rows / 2 ? mix(inks.far, inks.middle, row * 2, rows)
                                          : mix(inks.middle, inks.near, row * 2 - rows, rows);
        const int base = 164 + row * 19;
        const Height wave = CoverCanvas::swell(base, 4.0 + row * 1.5, 74 + row * 15, canvas.random(200));
        const Height ripple = CoverCanvas::swell(0, 2.0 + row, 31 + row * 7, canvas.random(200));
        const auto crest = [=](double lower) { return [=](int x) { return wave(x) + ripple(x) + lower; }; };
        canvas.below(crest(0), mix(body, inks.light, 3, 5), body);
        canvas.below(crest(2.0 + row * 0.5), body, mix(body, inks.near, 1, 3));
    }
}

void boat(CoverCanvas& canvas, double x, double y, double size, Color sail)
{
    const auto at = [&](double px, double py) { return Point(x + px * size, y + py * size); };
    const CoverInks& inks = canvas.inks;
    canvas.shape({at(1, -2), at(1, -44), at(27, -6)}, sail);
    canvas.shape({at(-2, -6), at(-2, -38), at(-19, -6)}, mix(sail, inks.far, 1, 3));
    canvas.line(at(0, 0), at(0, -48), 1.6 * size, inks.near);
    canvas.shape({at(0, -48), at(-9, -45), at(0, -42)}, inks.skyTop);
    canvas.shape({at(-22, -2), at(30, -2), at(22, 7), at(-15, 7)}, inks.near);
    canvas.line(at(-34, 10), at(36, 10), 1.2 * size, faint(inks.light, 60));
    canvas.line(at(-20, 14), at(20, 14), 1.0 * size, faint(inks.light, 40));
}

void regatta(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    canvas.sky();
    sun(canvas, 196, 150, 15);
    canvas.below(canvas.ridge(180, 14), inks.far, inks.far);
    canvas.below([](int) { return 186; }, mix(inks.far, inks.middle, 2, 3), inks.near);
    glitter(canvas, 196, 190, 7);
    boat(canvas, 52, 200, 0.625, inks.light);
    boat(canvas, 214, 209, 0.75, mix(inks.light, inks.skyLow, 1, 3));
    canvas.below(CoverCanvas::swell(232, 3, 90, 30), faint(inks.middle, 70), faint(inks.near, 80));
    boat(canvas, 124, 242, 1.75, inks.letter == inks.near ? inks.light : inks.letter);
    canvas.below(CoverCanvas::swell(256, 3.5, 64, 10), mix(inks.middle, inks.near, 1, 2), inks.near);
}

void peaks(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    canvas.sky();
    sun(canvas, 60 + canvas.random(140), 142, 18);
    struct Range
    {
        int base;
        int swing;
        Color rock;
    };
    const std::array ranges{Range{188, 48, inks.far}, Range{216, 64, inks.middle}};
    for (const Range& range : ranges) {
        const Height top = canvas.ridge(range.base, range.swing);
        const Height tongue = canvas.ridge(range.base - 8, 30);
        const Color snow = mix(inks.light, range.rock, range.rock == inks.far ? 2 : 1, 6);
        canvas.below(top, snow, mix(snow, range.rock, 1, 2));
        canvas.below([=](int x) { return std::max(top(x) + 3, tongue(x)); }, range.rock,
                     mix(range.rock, inks.skyLow, 1, 3));
    }
    canvas.below(canvas.ridge(252, 26), inks.near, mix(inks.near, rgb(0), 1, 4));
}

void conifer(CoverCanvas& canvas, double x, double foot, double size, Color color)
{
    for (int tier = 0; tier < 4; ++tier) {
        const double top = foot - size * (1.0 - tier * 0.21);
        const double half = size * (0.10 + tier * 0.045);
        canvas.shape({{x, top}, {x + half, top + size * 0.34}, {x - half, top + size * 0.34}}, color);
    }
    canvas.box(x - size * 0.03, foot - size * 0.05, size * 0.06, size * 0.1, color);
}

void crown(CoverCanvas& canvas, double x, double foot, double size, Color color)
{
    canvas.box(x - size * 0.03, foot - size * 0.5, size * 0.06, size * 0.55, color);
    canvas.disc(x, foot - size * 0.66, size * 0.25, color);
    canvas.disc(x - size * 0.16, foot - size * 0.52, size * 0.19, color);
    canvas.disc(x + size * 0.17, foot - size * 0.54, size * 0.18, color);
}

void forest(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    canvas.sky();
    sun(canvas, 150 + canvas.random(50), 152, 26);
    const bool leafy = canvas.random(2) == 1;
    const std::array rows{inks.far, mix(inks.far, inks.middle, 2, 3), mix(inks.middle, inks.near, 1, 3),
                          inks.near};
    for (int row = 0; row < 4; ++row) {
        const Color color = rows.at(static_cast<std::size_t>(row));
        const Height ground = CoverCanvas::swell(190 + row * 27, 6, 170 + row * 30, canvas.random(200));
        const double size = 34 + row * 20;
        for (double x = canvas.random(20); x < 270; x += size * (0.32 + canvas.random(30) / 100.0)) {
            // A clearing in the nearer rows lets the light through.
            if (row >= 2 && x > 92 && x < 196)
                continue;
            const double height = size * (0.8 + canvas.random(40) / 100.0);
            (leafy ? crown : conifer)(canvas, x, ground(static_cast<int>(x)) + 4, height, color);
        }
        canvas.below(ground, color, mix(color, inks.near, 1, 3));
    }
}

void storm(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    canvas.sky();
    canvas.below(canvas.ridge(226, 18), inks.middle, inks.middle);
    for (int i = 0; i < 110; ++i) {
        const int x = canvas.random(300);
        const int y = 140 + canvas.random(120);
        const int length = 8 + canvas.random(14);
        canvas.line({static_cast<double>(x), static_cast<double>(y)},
                    {x - length * 0.375, static_cast<double>(y + length)}, 1.1, faint(inks.letter, 45));
    }
    const double bolt = 130 + canvas.random(70);
    canvas.glow(static_cast<int>(bolt), 190, 80, inks.light, 50);
    canvas.shape({{bolt + 8, 140},
                  {bolt - 16, 192},
                  {bolt - 1, 190},
                  {bolt - 14, 234},
                  {bolt + 20, 178},
                  {bolt + 5, 180},
                  {bolt + 24, 140}},
                 inks.light);
    for (int layer = 0; layer < 3; ++layer) {
        const Color cloud = mix(inks.middle, inks.near, layer, 3);
        for (int x = -10; x < 270; x += 22 + canvas.random(12))
            canvas.disc(x, 128 + layer * 9 + canvas.random(10), 17 - layer * 2 + canvas.random(9), cloud);
    }
    canvas.below(canvas.ridge(254, 12), inks.near, mix(inks.near, rgb(0), 1, 4));
    for (int x = 20; x < 250; x += 26 + canvas.random(26)) {
        const int high = 12 + canvas.random(10);
        canvas.box(x, 256 - high, 16, high + 10, inks.near);
        canvas.shape({{x - 3.0, 256.0 - high}, {x + 8.0, 244.0 - high}, {x + 19.0, 256.0 - high}}, inks.near);
        canvas.box(x + 6, 260 - high, 4, 5, inks.light);
    }
}

void windmill(CoverCanvas& canvas, double x, double foot, double size, int turn, Color body, Color sail)
{
    const auto at = [&](double px, double py) { return Point(x + px * size, foot + py * size); };
    canvas.shape({at(-17, 0), at(-10, -58), at(10, -58), at(17, 0)}, body);
    canvas.shape({at(-12, -57), at(0, -72), at(12, -57)}, mix(body, rgb(0), 1, 4));
    canvas.shape({at(-4, 0), at(-4, -12), at(4, -12), at(4, 0)}, canvas.inks.light);
    canvas.disc(x, foot - 36 * size, 3 * size, canvas.inks.light);
    for (int i = 0; i < 4; ++i) {
        const double dx = sineOf(turn + 64 * i) / 1024.0;
        const double dy = sineOf(turn + 64 * i + 64) / 1024.0;
        const auto on = [&](double along, double aside) {
            return at(dx * along + dy * aside, -60 + dy * along - dx * aside);
        };
        canvas.shape({on(14, 0), on(60, 0), on(60, 13), on(14, 9)}, faint(sail, 82));
        for (int rung = 20; rung < 60; rung += 8)
            canvas.line(on(rung, 0), on(rung, 11), 0.9 * size, body);
        canvas.line(on(0, 0), on(62, 0), 2.4 * size, body);
    }
    canvas.disc(x, foot - 60 * size, 3.5 * size, sail);
}

void mill(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    canvas.sky();
    sun(canvas, 214, 136, 18);
    canvas.below(canvas.ridge(206, 16), inks.far, inks.far);
    windmill(canvas, 208, 218, 0.4375, 20 + canvas.random(24), inks.middle, inks.light);
    canvas.below(CoverCanvas::swell(216, 8, 260, 40), inks.middle, mix(inks.middle, inks.near, 1, 2));
    windmill(canvas, 96, 250, 1.25, 14 + canvas.random(36), inks.near, inks.light);
    canvas.below(CoverCanvas::swell(250, 8, 300, 120), inks.near, mix(inks.near, rgb(0), 1, 4));
    for (int i = 0; i < 46; ++i) {
        const int x = canvas.random(256);
        canvas.line({static_cast<double>(x), 276}, {x + canvas.random(7) - 3.0, 262.0 - canvas.random(8)},
                    1.2, mix(inks.near, inks.light, 1, 3));
    }
}

void orbit(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    canvas.sky();
    stars(canvas, 70, 276);
    const int tilt = 18 + canvas.random(18);
    const auto around = [&](int turn, double reach) {
        return Point(134 + reach * sineOf(turn + 64) / 1024,
                     202 + (reach * 0.28 * sineOf(turn) + reach * tilt / 100 * sineOf(turn + 64)) / 1024);
    };
    const auto halfRing = [&](int first) {
        for (const double reach : {86.0, 96.0, 106.0}) {
            for (int turn = first; turn < first + 128; turn += 2)
                canvas.line(around(turn, reach), around(turn + 2, reach), reach == 96.0 ? 5 : 2.4,
                            reach == 96.0 ? inks.light : mix(inks.middle, inks.letter, 4, 5));
        }
    };
    halfRing(128); // behind the planet
    canvas.glow(134, 202, 96, inks.light, 30);
    canvas.disc(134, 202, 52, inks.near);
    canvas.disc(131, 199, 49, inks.middle);
    canvas.disc(126, 194, 41, mix(inks.middle, inks.far, 1, 2));
    canvas.disc(121, 189, 31, inks.far);
    canvas.disc(114, 183, 17, mix(inks.far, inks.light, 1, 3));
    halfRing(0);
    canvas.disc(206, 146, 8, inks.far);
    canvas.disc(208, 148, 6.5, inks.middle);
    // A comet far behind.
    canvas.shape({{38, 152}, {92, 128}, {40, 157}}, faint(inks.light, 55));
    canvas.disc(39, 154.5, 3, inks.light);
}

void flier(CoverCanvas& canvas, double x, double y, double size, Color color)
{
    const auto at = [&](double px, double py) { return Point(x + px * size, y + py * size); };
    canvas.shape({at(2, -5), at(16, -34), at(40, -62), at(66, -70), at(48, -44), at(36, -20), at(24, 0)},
                 mix(color, canvas.inks.far, 1, 3));
    canvas.shape({at(-64, 22), at(-34, 2), at(-4, -8), at(22, -12), at(34, -19), at(45, -17), at(58, -12),
                  at(44, -9), at(34, 3), at(8, 14), at(-26, 14), at(-56, 30), at(-46, 18)},
                 color);
    canvas.shape({at(-14, 2), at(-30, -26), at(-62, -48), at(-92, -50), at(-74, -38), at(-78, -32),
                  at(-58, -22), at(-60, -14), at(-40, -6), at(-38, 4), at(6, 8), at(18, -4)},
                 color);
    canvas.disc(x + 43 * size, y - 14.5 * size, 1.6 * size, canvas.inks.light);
}

void bird(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    canvas.sky();
    sun(canvas, 134, 194, 54);
    canvas.below(canvas.ridge(236, 18), inks.far, inks.middle);
    canvas.below(CoverCanvas::swell(254, 5, 200, canvas.random(200)), inks.middle, inks.middle);
    flier(canvas, 214, 158, 0.25, inks.middle);
    flier(canvas, 40, 160, 0.1875, inks.middle);
    flier(canvas, 142, 208, 1.0, inks.near);
    for (int i = 0; i < 40; ++i) {
        const double x = canvas.random(270) - 5;
        const double height = 14 + canvas.random(32);
        const double lean = canvas.random(14) - 4;
        canvas.line({x, 280}, {x + lean, 280 - height}, 1.6, inks.near);
        if (i % 4 == 0)
            canvas.line({x + lean, 280 - height}, {x + lean * 1.25, 272 - height}, 4, inks.near);
    }
}

constexpr std::array scenes{
    CoverScene{"coast", coast}, CoverScene{"waves", waves}, CoverScene{"regatta", regatta},
    CoverScene{"peaks", peaks}, CoverScene{"mill", mill},   CoverScene{"forest", forest},
    CoverScene{"storm", storm}, CoverScene{"orbit", orbit}, CoverScene{"bird", bird},
};

} // namespace

std::span<const CoverScene> landscapes()
{
    return scenes;
}

} // namespace varnhold::assets
