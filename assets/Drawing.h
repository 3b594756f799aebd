#pragma once

#include "Picture.h"

#include <array>
#include <initializer_list>
#include <utility>
#include <vector>

namespace varnhold::assets {

/// A point of a drawing that is 16 wide and 16 high, in 256ths. Written as a number with a binary fraction,
/// so that the conversion is exact.
struct Point
{
    constexpr Point(double px, double py) : x(units(px)), y(units(py)) {}
    static constexpr int units(double value) { return static_cast<int>(value * 256); }

    int x;
    int y;
};

/// One stroke of a drawing. Later strokes lie above earlier ones.
struct Stroke
{
    enum class Kind { Box, Line, Disc, Ring, Polygon };

    Kind kind;
    Color color;
    std::vector<Point> points; ///< Box: corners; Line: ends; Disc, Ring: centre
    int width = 0;             ///< Line, Ring: of the pen; 256ths
    int radius = 0;            ///< Disc, Ring: outer; 256ths

    [[nodiscard]] bool covers(int x, int y) const;
};

/// As a ground: nothing. As a stroke: takes away what lies below.
inline constexpr Color seeThrough = 0;

using Drawing = std::vector<Stroke>;

Stroke box(double x, double y, double width, double height, Color color);
Stroke line(Point from, Point to, double width, Color color);
Stroke disc(Point centre, double radius, Color color);
Stroke ring(Point centre, double radius, double width, Color color);
Stroke polygon(std::initializer_list<Point> points, Color color);

/// The drawing at `side` x `side` pixels over a ground of one colour; the ground may be see-through. Edges
/// are as soft as the share of 64 points of a pixel that a stroke covers.
Picture render(const Drawing& drawing, int side, Color ground);
/// The same for a drawing that is not square: `scale` pixels stand for its 16.
Picture render(const Drawing& drawing, Size size, int scale, Color ground);

} // namespace varnhold::assets
