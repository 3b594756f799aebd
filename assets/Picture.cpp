#include "Picture.h"

#include <algorithm>

namespace varnhold::assets {

namespace {

Color fromChannels(int red, int green, int blue)
{
    const auto byte = [](int value) { return static_cast<std::uint32_t>(std::clamp(value, 0, 255)); };
    return rgb(byte(red) << 16 | byte(green) << 8 | byte(blue));
}

} // namespace

Color mix(Color from, Color to, int part, int whole)
{
    const auto channel = [&](int a, int b) { return (a * (whole - part) + b * part + whole / 2) / whole; };
    return fromChannels(channel(redOf(from), redOf(to)), channel(greenOf(from), greenOf(to)),
                        channel(blueOf(from), blueOf(to)));
}

Color shifted(Color color, int steps)
{
    return fromChannels(redOf(color) + steps, greenOf(color) + steps, blueOf(color) + steps);
}

Picture::Picture(Size size, Color ground)
    : m_size(size),
      m_pixels(static_cast<std::size_t>(size.width) * static_cast<std::size_t>(size.height), ground)
{
}

void Picture::set(int x, int y, Color color)
{
    if (x >= 0 && y >= 0 && x < m_size.width && y < m_size.height)
        m_pixels[index(x, y)] = color;
}

void Picture::fill(const Area& area, Color color)
{
    for (int y = area.y; y < area.bottom(); ++y) {
        for (int x = area.x; x < area.right(); ++x)
            set(x, y, color);
    }
}

void Picture::frame(const Area& area, Color color)
{
    fill({area.x, area.y, area.width, 1}, color);
    fill({area.x, area.bottom() - 1, area.width, 1}, color);
    fill({area.x, area.y, 1, area.height}, color);
    fill({area.right() - 1, area.y, 1, area.height}, color);
}

} // namespace varnhold::assets
