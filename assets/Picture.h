#pragma once

#include <cstdint>
#include <vector>

namespace varnhold::assets {

/// 0xAARRGGBB.
using Color = std::uint32_t;

constexpr Color rgb(std::uint32_t value)
{
    return 0xFF000000U | value;
}
constexpr int redOf(Color color)
{
    return static_cast<int>(color >> 16 & 0xFF);
}
constexpr int greenOf(Color color)
{
    return static_cast<int>(color >> 8 & 0xFF);
}
constexpr int blueOf(Color color)
{
    return static_cast<int>(color & 0xFF);
}
constexpr int alphaOf(Color color)
{
    return static_cast<int>(color >> 24);
}

/// Cut away from windows; drawn hard.
inline constexpr Color windowCut = rgb(0xFF00FF);
/// Cut away from button faces; drawn hard.
inline constexpr Color faceCut = rgb(0x0000FF);

/// `part` of `whole` on the way from one colour to the other; opaque.
Color mix(Color from, Color to, int part, int whole);
/// Each channel moved by `steps`, kept within 0 to 255; opaque.
Color shifted(Color color, int steps);

struct Size
{
    int width = 0;
    int height = 0;
    bool operator==(const Size&) const = default;
};

struct Area
{
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    [[nodiscard]] int right() const { return x + width; }
    [[nodiscard]] int bottom() const { return y + height; }
    [[nodiscard]] Area grown(int by) const { return {x - by, y - by, width + 2 * by, height + 2 * by}; }
};

class Picture
{
public:
    Picture(Size size, Color ground);

    [[nodiscard]] Size size() const { return m_size; }
    [[nodiscard]] int width() const { return m_size.width; }
    [[nodiscard]] int height() const { return m_size.height; }
    [[nodiscard]] Color at(int x, int y) const { return m_pixels[index(x, y)]; }
    /// Points outside are passed over.
    void set(int x, int y, Color color);
    void fill(const Area& area, Color color);
    /// One pixel wide, on the inside of the area's edge.
    void frame(const Area& area, Color color);

private:
    [[nodiscard]] std::size_t index(int x, int y) const
    {
        return static_cast<std::size_t>(y) * static_cast<std::size_t>(m_size.width) +
               static_cast<std::size_t>(x);
    }

    Size m_size;
    std::vector<Color> m_pixels;
};

} // namespace varnhold::assets
