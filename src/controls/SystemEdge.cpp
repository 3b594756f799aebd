#include "controls/SystemEdge.h"

namespace varnhold {

namespace {

struct Shades
{
    ColorValue highlight;
    ColorValue light;
    ColorValue shadow;
    ColorValue darkShadow;
};

ColorValue mixed(ColorValue color, int other, int percent)
{
    const auto channel = [&](int value) { return value + (other - value) * percent / 100; };
    return colorOf(channel(redOf(color)), channel(greenOf(color)), channel(blueOf(color)));
}

bool isDark(ColorValue color)
{
    return 2 * redOf(color) + 5 * greenOf(color) + blueOf(color) < 8 * 96;
}

Shades shadesOf(ColorValue face)
{
    const ColorValue resolved = GetLngColor(face);
    if (resolved == GetLngColor(systemcolors::buttonFace)) {
        return {GetLngColor(systemcolors::buttonHighlight), GetLngColor(systemcolors::light),
                GetLngColor(systemcolors::buttonShadow), GetLngColor(systemcolors::darkShadow)};
    }
    // On a dark face a shade darker cannot be told from it, so the light sides carry the shape.
    const ColorValue light = isDark(resolved) ? mixed(resolved, 255, 18) : resolved;
    return {mixed(resolved, 255, 40), light, mixed(resolved, 0, 40), mixed(resolved, 0, 70)};
}

} // namespace

SystemEdge systemEdge(EdgeKind kind, ColorValue face)
{
    const Shades shades = shadesOf(face);
    const EdgeRing raisedOuter{shades.light, shades.darkShadow};
    const EdgeRing raisedInner{shades.highlight, shades.shadow};
    const EdgeRing sunkenOuter{shades.shadow, shades.highlight};
    const EdgeRing sunkenInner{shades.darkShadow, shades.light};
    switch (kind) {
    case EdgeKind::sunken:
        return {sunkenOuter, sunkenInner, 2};
    case EdgeKind::raised:
        return {raisedOuter, raisedInner, 2};
    case EdgeKind::etched:
        return {sunkenOuter, raisedInner, 2};
    case EdgeKind::bump:
        return {raisedOuter, sunkenInner, 2};
    case EdgeKind::flat:
        break;
    }
    const ColorValue line = isDark(GetLngColor(face)) ? shades.highlight : shades.shadow;
    return {{line, line}, {line, line}, 1};
}

} // namespace varnhold
