#include "Surface.h"

#include <algorithm>

namespace varnhold::assets {

namespace {

constexpr int cornerRadius = 10;
constexpr int chamferSide = 8;
constexpr int notchDepth = 3;
constexpr int notchFromRight = 156;
constexpr int notchWidth = 72;

/// The order in which an 8 x 8 field lights up: 0 to 63.
int ditherAt(int x, int y)
{
    int value = 0;
    for (int bit = 0; bit < 3; ++bit) {
        const int a = (x ^ y) >> bit & 1;
        const int b = y >> bit & 1;
        value = value << 2 | a << 1 | b;
    }
    return value;
}

/// A run of noise along a row: values at every `period` pixels, straight lines between them.
int strokeAt(std::uint32_t seed, int x, int y, int period, int wrap)
{
    const int cell = x / period;
    const int cells = wrap > 0 ? wrap / period : 0;
    const auto value = [&](int i) { return noiseAt(seed, cells > 0 ? i % cells : i, y) - 32768; };
    const int part = x % period;
    return (value(cell) * (period - part) + value(cell + 1) * part) / period;
}

} // namespace

int noiseAt(std::uint32_t seed, int x, int y)
{
    std::uint32_t h = seed ^ static_cast<std::uint32_t>(x) * 0x27D4EB2FU;
    h ^= h >> 15;
    h += static_cast<std::uint32_t>(y) * 0x165667B1U;
    h *= 0x85EBCA6BU;
    h ^= h >> 13;
    h *= 0xC2B2AE35U;
    h ^= h >> 16;
    return static_cast<int>(h & 0xFFFFU);
}

Color ditheredMix(Color from, Color to, int part, int whole, int x, int y)
{
    const int threshold = ditherAt(x, y);
    const auto channel = [&](int a, int b) {
        const int fine = (a * (whole - part) + b * part) * 64 / whole;
        return static_cast<std::uint32_t>((fine + threshold) >> 6);
    };
    return rgb(channel(redOf(from), redOf(to)) << 16 | channel(greenOf(from), greenOf(to)) << 8 |
               channel(blueOf(from), blueOf(to)));
}

int grainAt(const SkinDesign& design, int x, int y, int wrap)
{
    const int row = wrap > 0 ? y % wrap : y;
    switch (design.texture) {
    case Texture::Paper:
        return 0;
    case Texture::Glass:
        return noiseAt(design.seed, wrap > 0 ? x % wrap : x, row) > 57000 ? 1 : 0;
    case Texture::Brushed:
        break;
    }
    const int longStroke = strokeAt(design.seed, x, row, 64, wrap);
    const int shortStroke = strokeAt(design.seed ^ 0x5BD1E995U, x, row, 16, wrap);
    return (longStroke * 5 + shortStroke * 3) / 32768;
}

Color groundAt(const SkinDesign& design, Size window, int x, int y)
{
    if (design.texture == Texture::Paper)
        return design.middle;
    const int bend = window.height * 2 / 5;
    const Color base = y < bend
                           ? ditheredMix(design.top, design.middle, y, bend, x, y)
                           : ditheredMix(design.middle, design.bottom, y - bend, window.height - bend, x, y);
    const int grain = grainAt(design, x, y);
    if (design.texture != Texture::Brushed)
        return shifted(base, grain);
    // The lamp: a wide warm glow above the left third.
    constexpr int steps = 64;
    const int dx = (x - window.width / 3) * 2;
    const int dy = y * 3;
    const int reach = window.width * window.width;
    const int glow = std::max(0, reach - dx * dx - dy * dy) / (reach / steps);
    const Color lit = mix(base, design.faces[1].light, 1, 6);
    return shifted(ditheredMix(base, lit, glow, steps, x, y), grain);
}

Color panelAt(const SkinDesign& design, int height, int x, int y)
{
    switch (design.texture) {
    case Texture::Paper:
        return design.panel;
    case Texture::Glass:
        return shifted(
            ditheredMix(design.panel, mix(design.panel, design.middle, 2, 3), y, std::max(height, 1), x, y),
            grainAt(design, x, y));
    case Texture::Brushed:
        break;
    }
    return shifted(design.panel, grainAt(design, x, y) / 2);
}

int foldSide(Size window)
{
    return window.width >= 440 ? 12 : 8;
}

bool isCutAway(const SkinDesign& design, Size window, int x, int y)
{
    if (x < 0 || y < 0 || x >= window.width || y >= window.height)
        return true;
    const int fromRight = window.width - 1 - x;
    const int fromBottom = window.height - 1 - y;
    const int side = std::min(x, fromRight);
    const int end = std::min(y, fromBottom);
    switch (design.outline) {
    case Outline::Rounded: {
        if (side >= cornerRadius || end >= cornerRadius)
            return false;
        const int dx = 2 * (cornerRadius - side) - 1;
        const int dy = 2 * (cornerRadius - end) - 1;
        return dx * dx + dy * dy > 4 * cornerRadius * cornerRadius;
    }
    case Outline::Folded:
        return fromRight + fromBottom < foldSide(window) - 1;
    case Outline::Chamfered:
        break;
    }
    const int notchStart = notchFromRight - notchWidth;
    const bool notched = y < notchDepth && fromRight >= notchStart + y && fromRight < notchFromRight - y;
    return notched || side + end < chamferSide - 1;
}

} // namespace varnhold::assets
