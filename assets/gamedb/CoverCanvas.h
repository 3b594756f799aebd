#pragma once

#include "Drawing.h"

#include <functional>
#include <string_view>

namespace varnhold::assets {

/// The inks that a cover is printed in, from far to near.
struct CoverInks
{
    std::string_view name;
    Color skyTop;
    Color skyLow;
    Color far;
    Color middle;
    Color near;
    Color light; ///< lamps, suns, sails
    Color letter;
};

inline constexpr Size coverSize{256, 296};

/// The same colour, more or less see-through.
constexpr Color faint(Color color, int percent)
{
    return (color & 0xFFFFFFU) | static_cast<Color>(percent * 255 / 100) << 24;
}

/// 1024 times the sine of `turn` 256ths of a full turn, the same on every machine.
int sineOf(int turn);

/// A cover under work. Places are pixels of a cover of the usual size from the top left, however large the
/// picture is; later things lie above earlier ones.
class CoverCanvas
{
public:
    using Height = std::function<double(int x)>;

    /// `height`: of the picture in pixels.
    CoverCanvas(const CoverInks& inks, std::uint32_t seed, int height = coverSize.height);

    const CoverInks& inks;

    /// A number from 0 to `below` less one, another at each call.
    int random(int below);

    void sky();
    void lay(const Stroke& stroke);
    void disc(double x, double y, double radius, Color color);
    void ring(double x, double y, double radius, double width, Color color);
    void line(Point from, Point to, double width, Color color);
    void box(double x, double y, double width, double height, Color color);
    void shape(std::initializer_list<Point> points, Color color);
    /// A disc whose colour fades out towards its edge.
    void glow(int x, int y, int radius, Color color, int percent);
    /// All that lies below a line, from one colour at the line's highest point to another at the bottom.
    void below(const Height& height, Color top, Color bottom);
    /// A ragged ridge: `base` is its mean height, `swing` how far it goes up and down.
    [[nodiscard]] Height ridge(int base, int swing);
    /// A long swell: `period` pixels a wave.
    static Height swell(double base, double swing, int period, int shift);
    /// Exchanges left and right.
    void mirror();
    void grain();

    Picture take() { return std::move(m_picture); }

private:
    /// From a place, in any unit, to the picture's pixels in that unit, and back.
    [[nodiscard]] std::int64_t scaled(std::int64_t place) const;
    [[nodiscard]] std::int64_t placeOf(std::int64_t pixel) const;
    void blend(int x, int y, Color color, int part, int whole);

    Picture m_picture;
    std::uint32_t m_seed;
    int m_calls = 0;
};

} // namespace varnhold::assets
