#include "controls/ReadableColor.h"

#include "controls/Contrast.h"

#include <algorithm>

namespace varnhold {

namespace {

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

} // namespace

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
