#include "Drawing.h"

#include <algorithm>

namespace varnhold::assets {

namespace {

using Wide = std::int64_t;

constexpr int samplesAcross = 8;

Wide squared(Wide value)
{
    return value * value;
}

bool nearLine(const Stroke& stroke, int x, int y)
{
    const Point& from = stroke.points[0];
    const Point& to = stroke.points[1];
    const Wide dx = to.x - from.x;
    const Wide dy = to.y - from.y;
    const Wide px = x - from.x;
    const Wide py = y - from.y;
    const Wide along = px * dx + py * dy;
    const Wide length = dx * dx + dy * dy;
    const Wide reach = squared(stroke.width) / 4;
    if (along <= 0)
        return px * px + py * py <= reach;
    if (along >= length)
        return squared(x - to.x) + squared(y - to.y) <= reach;
    return squared(px * dy - py * dx) <= reach * length;
}

bool inPolygon(const std::vector<Point>& points, int x, int y)
{
    bool inside = false;
    for (std::size_t i = 0, before = points.size() - 1; i < points.size(); before = i++) {
        const Point& a = points[i];
        const Point& b = points[before];
        if ((a.y > y) == (b.y > y))
            continue;
        const Wide side = Wide(b.x - a.x) * (y - a.y) - Wide(x - a.x) * (b.y - a.y);
        if ((side > 0) == (b.y > a.y))
            inside = !inside;
    }
    return inside;
}

} // namespace

bool Stroke::covers(int x, int y) const
{
    switch (kind) {
    case Kind::Box:
        return x >= points[0].x && y >= points[0].y && x < points[1].x && y < points[1].y;
    case Kind::Line:
        return nearLine(*this, x, y);
    case Kind::Disc:
        return squared(x - points[0].x) + squared(y - points[0].y) <= squared(radius);
    case Kind::Ring: {
        const Wide distance = squared(x - points[0].x) + squared(y - points[0].y);
        return distance <= squared(radius) && distance >= squared(radius - width);
    }
    case Kind::Polygon:
        return inPolygon(points, x, y);
    }
    return false;
}

Stroke box(double x, double y, double width, double height, Color color)
{
    return {Stroke::Kind::Box, color, {Point(x, y), Point(x + width, y + height)}};
}

Stroke line(Point from, Point to, double width, Color color)
{
    return {Stroke::Kind::Line, color, {from, to}, Point::units(width)};
}

Stroke disc(Point centre, double radius, Color color)
{
    return {Stroke::Kind::Disc, color, {centre}, 0, Point::units(radius)};
}

Stroke ring(Point centre, double radius, double width, Color color)
{
    return {Stroke::Kind::Ring, color, {centre}, Point::units(width), Point::units(radius)};
}

Stroke polygon(std::initializer_list<Point> points, Color color)
{
    return {Stroke::Kind::Polygon, color, points};
}

Picture render(const Drawing& drawing, int side, Color ground)
{
    return render(drawing, {side, side}, side, ground);
}

Picture render(const Drawing& drawing, Size size, int scale, Color ground)
{
    Picture picture(size, ground);
    // Sample points lie between the 256ths that edges lie on, so no point is ever on an edge at scale 16.
    const auto place = [scale](int pixel, int sample) {
        return (pixel * 2 * samplesAcross + 2 * sample + 1) * 256 / scale;
    };
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            int red = 0;
            int green = 0;
            int blue = 0;
            int alpha = 0;
            for (int sample = 0; sample < samplesAcross * samplesAcross; ++sample) {
                const int px = place(x, sample % samplesAcross);
                const int py = place(y, sample / samplesAcross);
                const auto top = std::find_if(drawing.rbegin(), drawing.rend(),
                                              [&](const Stroke& stroke) { return stroke.covers(px, py); });
                const Color color = top == drawing.rend() ? ground : top->color;
                if (alphaOf(color) == 0)
                    continue;
                ++alpha;
                red += redOf(color);
                green += greenOf(color);
                blue += blueOf(color);
            }
            if (alpha == 0)
                continue;
            const auto mean = [alpha](int sum) {
                return static_cast<std::uint32_t>((sum + alpha / 2) / alpha);
            };
            const auto cover = static_cast<std::uint32_t>(alpha * 255 / (samplesAcross * samplesAcross));
            picture.set(x, y, cover << 24 | mean(red) << 16 | mean(green) << 8 | mean(blue));
        }
    }
    return picture;
}

} // namespace varnhold::assets
