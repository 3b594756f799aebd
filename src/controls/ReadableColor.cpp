#include "controls/ReadableColor.h"

#include "controls/Contrast.h"

#include <algorithm>

namespace varnhold {

namespace {

constexpr ColorValue black = 0x000000;
constexpr ColorValue white = 0xFFFFFF;
constexpr double readable = 4.5;
constexpr double comfortable = 5.5; // a changed colour leaves room for the ground's picture

/// As light as the colour is dark, in the same hue.
ColorValue inverted(ColorValue color)
{
    const int red = redOf(color);
    const int green = greenOf(color);
    const int blue = blueOf(color);
    const int shift = 255 - std::max({red, green, blue}) - std::min({red, green, blue});
    return colorOf(red + shift, green + shift, blue + shift);
}

ColorValue between(ColorValue from, ColorValue to, int step, int steps)
{
    const auto mix = [&](int first, int last) { return first + (last - first) * step / steps; };
    return colorOf(mix(redOf(from), redOf(to)), mix(greenOf(from), greenOf(to)),
                   mix(blueOf(from), blueOf(to)));
}

double worstOn(const GroundTones& ground, ColorValue color)
{
    const double own = luminanceOf(color);
    return std::min(contrastOf(own, ground.darkest), contrastOf(own, ground.lightest));
}

/// The nearest on the way from the colour to black or to white that reaches the contrast.
std::optional<ColorValue> nearestOn(const GroundTones& ground, ColorValue color, double contrast)
{
    constexpr int steps = 64;
    for (int step = 1; step <= steps; ++step) {
        for (const ColorValue end : {white, black}) {
            const ColorValue found = between(color, end, step, steps);
            if (worstOn(ground, found) >= contrast)
                return found;
        }
    }
    return std::nullopt;
}

} // namespace

TextInk readableInk(ColorValue stored, const GroundTones& ground)
{
    if (worstOn(ground, stored) >= readable)
        return {stored, std::nullopt};
    const ColorValue plain = GetLngColor(stored);
    for (const double contrast : {comfortable, readable}) {
        if (const std::optional<ColorValue> found = nearestOn(ground, plain, contrast))
            return {*found, std::nullopt};
    }
    const bool blackIsBetter = worstOn(ground, black) > worstOn(ground, white);
    return {blackIsBetter ? black : white, blackIsBetter ? white : black};
}

ColorValue readableOn(ColorValue text, ColorValue ground)
{
    if (contrastRatio(text, ground) >= readable)
        return text;
    const ColorValue plain = GetLngColor(text);
    const ColorValue start =
        contrastRatio(inverted(plain), ground) > contrastRatio(plain, ground) ? inverted(plain) : plain;
    const ColorValue end = blackOrWhiteOn(ground);
    constexpr int steps = 32;
    int step = 0;
    while (step < steps && contrastRatio(between(start, end, step, steps), ground) < comfortable)
        ++step;
    return between(start, end, step, steps);
}

} // namespace varnhold
