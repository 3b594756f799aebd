#include "controls/Contrast.h"

#include <algorithm>
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

double luminance(ColorValue color)
{
    const ColorValue resolved = GetLngColor(color);
    return 0.2126 * linear(redOf(resolved)) + 0.7152 * linear(greenOf(resolved)) +
           0.0722 * linear(blueOf(resolved));
}

} // namespace

double contrastRatio(ColorValue one, ColorValue other)
{
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
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

} // namespace varnhold
