#include "CoverCanvas.h"

#include "Surface.h"

#include <algorithm>
#include <limits>

namespace varnhold::assets {

namespace {

constexpr int unit = 256; ///< of a stroke's place, a pixel
/// Samples of a pixel across and down; a large picture's pixels are small enough for fewer.
constexpr int mostSamples = 4;
constexpr int leastSamples = 2;

struct Extent
{
    int from = 0;
    int to = 0;
};

/// The least and the greatest place of a stroke along an axis.
Extent extentOf(const Stroke& stroke, int Point::*axis)
{
    int low = std::numeric_limits<int>::max();
    int high = std::numeric_limits<int>::min();
    for (const Point& point : stroke.points) {
        low = std::min(low, point.*axis);
        high = std::max(high, point.*axis);
    }
    const int reach = std::max(stroke.radius, stroke.width);
    return {low - reach, high + reach};
}

} // namespace

int sineOf(int turn)
{
    const int half = turn & 127;
    const int area = half * (128 - half);
    const int sine = 16 * 1024 * area / (5 * 128 * 128 - 4 * area);
    return (turn & 128) != 0 ? -sine : sine;
}

CoverCanvas::CoverCanvas(const CoverInks& inksUsed, std::uint32_t seed, int height)
    : inks(inksUsed),
      m_picture({(coverSize.width * height + coverSize.height / 2) / coverSize.height, height},
                inksUsed.skyLow),
      m_seed(seed)
{
}

std::int64_t CoverCanvas::scaled(std::int64_t place) const
{
    return place * m_picture.height() / coverSize.height;
}

std::int64_t CoverCanvas::placeOf(std::int64_t pixel) const
{
    return pixel * coverSize.height / m_picture.height();
}

int CoverCanvas::random(int below)
{
    return static_cast<int>(std::int64_t{noiseAt(m_seed, m_calls++, 0)} * below / 65536);
}

void CoverCanvas::blend(int x, int y, Color color, int part, int whole)
{
    const int opacity = alphaOf(color) * part;
    m_picture.set(x, y, mix(m_picture.at(x, y), rgb(color & 0xFFFFFFU), opacity, 255 * whole));
}

void CoverCanvas::sky()
{
    // Dark for long, so that the lettering stands out, then quickly lighter towards the horizon.
    constexpr int whole = coverSize.height * coverSize.height;
    for (int y = 0; y < m_picture.height(); ++y) {
        const int part = static_cast<int>(placeOf(placeOf(std::int64_t{y} * y)));
        for (int x = 0; x < m_picture.width(); ++x)
            m_picture.set(x, y, ditheredMix(inks.skyTop, inks.skyLow, part, whole, x, y));
    }
}

void CoverCanvas::lay(const Stroke& stroke)
{
    const int across = m_picture.height() > 2 * coverSize.height ? leastSamples : mostSamples;
    const auto pixels = [&](int Point::*axis, int end) {
        const Extent extent = extentOf(stroke, axis);
        return Extent{std::clamp(static_cast<int>(scaled(extent.from) / unit) - 1, 0, end),
                      std::clamp(static_cast<int>(scaled(extent.to) / unit) + 2, 0, end)};
    };
    const Extent columns = pixels(&Point::x, m_picture.width());
    const Extent rows = pixels(&Point::y, m_picture.height());
    const auto place = [&](int pixel, int sample) {
        return static_cast<int>(placeOf(pixel * unit + (2 * sample + 1) * unit / (2 * across)));
    };
    std::vector<int> places; // of the columns' samples
    for (int x = columns.from; x < columns.to; ++x)
        for (int sample = 0; sample < across; ++sample)
            places.push_back(place(x, sample));
    for (int y = rows.from; y < rows.to; ++y) {
        for (int x = columns.from; x < columns.to; ++x) {
            const int* const first = &places[static_cast<std::size_t>((x - columns.from) * across)];
            int covered = 0;
            for (int i = 0; i < across; ++i) {
                const int sampleY = place(y, i);
                for (int j = 0; j < across; ++j)
                    covered += stroke.covers(first[j], sampleY) ? 1 : 0;
            }
            if (covered > 0)
                blend(x, y, stroke.color, covered, across * across);
        }
    }
}

void CoverCanvas::disc(double x, double y, double radius, Color color)
{
    lay(assets::disc({x, y}, radius, color));
}

void CoverCanvas::ring(double x, double y, double radius, double width, Color color)
{
    lay(assets::ring({x, y}, radius, width, color));
}

void CoverCanvas::line(Point from, Point to, double width, Color color)
{
    lay(assets::line(from, to, width, color));
}

void CoverCanvas::box(double x, double y, double width, double height, Color color)
{
    lay(assets::box(x, y, width, height, color));
}

void CoverCanvas::shape(std::initializer_list<Point> points, Color color)
{
    lay(polygon(points, color));
}

void CoverCanvas::glow(int x, int y, int radius, Color color, int percent)
{
    const auto pixel = [&](int place, int end) {
        return std::clamp(static_cast<int>(scaled(place)), 0, end);
    };
    const int reach = radius * radius;
    for (int py = pixel(y - radius, m_picture.height()); py < pixel(y + radius, m_picture.height()); ++py) {
        for (int px = pixel(x - radius, m_picture.width()); px < pixel(x + radius, m_picture.width()); ++px) {
            const std::int64_t dx = placeOf(std::int64_t{px} * unit) - x * unit;
            const std::int64_t dy = placeOf(std::int64_t{py} * unit) - y * unit;
            const int left = reach - static_cast<int>((dx * dx + dy * dy) / (unit * unit));
            if (left > 0)
                blend(px, py, faint(color, percent), left / radius * (left / radius), reach);
        }
    }
}

void CoverCanvas::below(const Height& height, Color top, Color bottom)
{
    const int pictureHeight = m_picture.height();
    std::vector<int> edge;
    for (int x = 0; x < m_picture.width(); ++x) {
        const std::int64_t place = placeOf(std::int64_t{x} * unit);
        const int left = static_cast<int>(place / unit);
        const std::int64_t part = place % unit;
        const std::int64_t from = Point::units(height(left));
        const std::int64_t to = part == 0 ? from : Point::units(height(left + 1));
        edge.push_back(static_cast<int>(scaled((from * (unit - part) + to * part) / unit)));
    }
    const int highest = *std::min_element(edge.begin(), edge.end()) / unit;
    for (int x = 0; x < m_picture.width(); ++x) {
        const int line = edge[static_cast<std::size_t>(x)];
        for (int y = std::max(0, line / unit); y < pictureHeight; ++y) {
            const Color color =
                ditheredMix(top, bottom, y - std::min(y, highest), pictureHeight - highest, x, y);
            blend(x, y, color, std::clamp((y + 1) * unit - line, 0, unit), unit);
        }
    }
}

CoverCanvas::Height CoverCanvas::ridge(int base, int swing)
{
    const std::uint32_t seed = m_seed + static_cast<std::uint32_t>(random(60000));
    return [seed, base, swing](int x) {
        int height = base * unit;
        // Each layer is half as wide and half as high as the one before.
        for (int layer = 0, period = 96; period >= 6; ++layer, period /= 2) {
            const int cell = x / period;
            const int part = x % period;
            const auto at = [&](int i) { return noiseAt(seed, i, layer) - 32768; };
            const int value = (at(cell) * (period - part) + at(cell + 1) * part) / period;
            height += value * swing / 128 / (1 << layer);
        }
        return static_cast<double>(height) / unit;
    };
}

CoverCanvas::Height CoverCanvas::swell(double base, double swing, int period, int shift)
{
    return [=](int x) { return base + swing * sineOf((x + shift) * 256 / period) / 1024; };
}

void CoverCanvas::mirror()
{
    for (int y = 0; y < m_picture.height(); ++y) {
        for (int x = 0; x < m_picture.width() / 2; ++x) {
            const Color left = m_picture.at(x, y);
            m_picture.set(x, y, m_picture.at(m_picture.width() - 1 - x, y));
            m_picture.set(m_picture.width() - 1 - x, y, left);
        }
    }
}

void CoverCanvas::grain()
{
    for (int y = 0; y < m_picture.height(); ++y) {
        for (int x = 0; x < m_picture.width(); ++x)
            m_picture.set(x, y, shifted(m_picture.at(x, y), noiseAt(m_seed, x, y) * 5 / 65536 - 2));
    }
}

} // namespace varnhold::assets
