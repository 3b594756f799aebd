#include "controls/XP_ProgressBar/ProgressColors.h"

#include <cmath>

namespace varnhold {

namespace {

template <typename Mix> ColorValue channelwise(ColorValue first, ColorValue second, const Mix& mix)
{
    const ColorValue a = GetLngColor(first);
    const ColorValue b = GetLngColor(second);
    return colorOf(mix(redOf(a), redOf(b)), mix(greenOf(a), greenOf(b)), mix(blueOf(a), blueOf(b)));
}

double linearLight(int channel)
{
    const double part = channel / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

} // namespace

ColorValue ShiftColorXP(ColorValue color, int base)
{
    return channelwise(color, color, [base](int c, int) { return c * (255 - base) / 255 + base; });
}

ColorValue BlendColor(ColorValue first, ColorValue second, int alpha)
{
    return channelwise(first, second,
                       [alpha](int a, int b) { return (a * (255 - alpha) + b * alpha) / 255; });
}

ColorValue gradientColor(ColorValue first, ColorValue second, int line, int steps)
{
    return channelwise(first, second, [line, steps](int from, int to) {
        if (steps <= 0)
            return from;
        const float step = static_cast<float>(to - from) / static_cast<float>(steps);
        const float channel = static_cast<float>(from) + step * static_cast<float>(line);
        return static_cast<int>(std::nearbyint(channel));
    });
}

ColorValue contrastColor(ColorValue background)
{
    const ColorValue color = GetLngColor(background);
    const double luminance = 0.2126 * linearLight(redOf(color)) + 0.7152 * linearLight(greenOf(color)) +
                             0.0722 * linearLight(blueOf(color));
    // The two contrast ratios, (1 + 0.05) / (l + 0.05) and (l + 0.05) / 0.05, are equal at 0.179.
    return luminance > 0.179 ? 0x000000 : 0xFFFFFF;
}

} // namespace varnhold
