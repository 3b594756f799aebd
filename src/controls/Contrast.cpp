#include "controls/Contrast.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace varnhold {

namespace {

constexpr ColorValue black = 0x000000;
constexpr ColorValue white = 0xFFFFFF;
constexpr double mostContrast = 21;

double linear(int channel)
{
    const double part = channel / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

ColorValue mixed(ColorValue one, ColorValue other, double share)
{
    ColorValue result = 0;
    for (const int shift : {0, 8, 16}) {
        const double from = (one >> shift) & 0xFF;
        const double to = (other >> shift) & 0xFF;
        result |= static_cast<ColorValue>(std::lround(from + (to - from) * share)) << shift;
    }
    return result;
}

std::array<double, 256> linearTable()
{
    std::array<double, 256> table{};
    for (int channel = 0; channel < 256; ++channel)
        table.at(static_cast<std::size_t>(channel)) = linear(channel);
    return table;
}

} // namespace

double luminanceOf(ColorValue color)
{
    static const std::array<double, 256> table = linearTable();
    const ColorValue plain = GetLngColor(color);
    const auto part = [plain](unsigned shift) { return table[(plain >> shift) & 0xFFU]; };
    return 0.2126 * part(0) + 0.7152 * part(8) + 0.0722 * part(16);
}

double contrastOf(double oneLuminance, double otherLuminance)
{
    return (std::max(oneLuminance, otherLuminance) + 0.05) / (std::min(oneLuminance, otherLuminance) + 0.05);
}

double contrastRatio(ColorValue one, ColorValue other)
{
    return contrastOf(luminanceOf(one), luminanceOf(other));
}

ColorValue blackOrWhiteOn(ColorValue background)
{
    return contrastRatio(white, background) > contrastRatio(black, background) ? white : black;
}

ColorValue firstThatStandsOut(std::span<const ColorValue> colors, std::span<const ColorValue> grounds,
                              double ratio)
{
    const auto worst = [grounds](ColorValue color) {
        double least = mostContrast;
        for (const ColorValue ground : grounds)
            least = std::min(least, contrastRatio(color, ground));
        return least;
    };
    std::vector<ColorValue> candidates(colors.begin(), colors.end());
    for (const ColorValue color : candidates) {
        if (worst(color) >= ratio)
            return color;
    }
    candidates.insert(candidates.end(), {black, white});
    return *std::max_element(candidates.begin(), candidates.end(),
                             [&](ColorValue one, ColorValue other) { return worst(one) < worst(other); });
}

ColorValue tonedDown(ColorValue ink, std::span<const ColorValue> grounds, double share, double ratio)
{
    constexpr int steps = 5;
    std::vector<ColorValue> candidates;
    for (int step = steps; step >= 0; --step)
        candidates.push_back(mixed(GetLngColor(ink), GetLngColor(grounds.front()), share * step / steps));
    return firstThatStandsOut(candidates, grounds, ratio);
}

} // namespace varnhold
