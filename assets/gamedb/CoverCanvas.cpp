#include "CoverCanvas.h"

#include "Surface.h"

#include <algorithm>
#include <limits>

namespace varnhold::assets {

namespace {

constexpr int unit = 256;        ///< of a stroke's place, a pixel
constexpr int samplesAcross = 4; ///< of a pixel
constexpr int samples = samplesAcross * samplesAcross;

struct Extent
{
    int from = 0;
    int to = 0; ///< the first pixel behind it
};

Extent extentOf(const Stroke& stroke, int Point::*axis, int end)
{
    int low = std::numeric_limits<int>::max();
    int high = std::numeric_limits<int>::min();
    for (const Point& point : stroke.points) {
        low = std::min(low, point.*axis);
        high = std::max(high, point.*axis);
    }
    const int reach = std::max(stroke.radius, stroke.width);
    return {std::clamp((low - reach) / unit - 1, 0, end), std::clamp((high + reach) / unit + 2, 0, end)};
}

} // namespace

int sineOf(int turn)
{
    const int half = turn & 127;
    const int area = half * (128 - half);
    const int sine = 16 * 1024 * area / (5 * 128 * 128 - 4 * area);
    return (turn & 128) != 0 ? -sine : sine;
}

CoverCanvas::CoverCanvas(const CoverInks& inksUsed, std::uint32_t seed)
    : inks(inksUsed), m_picture(coverSize, inksUsed.skyLow), m_seed(seed)
{
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
    for (int y = 0; y < coverSize.height; ++y) {
        for (int x = 0; x < coverSize.width; ++x)
            m_picture.set(x, y, ditheredMix(inks.skyTop, inks.skyLow, y * y, whole, x, y));
    }
}

void CoverCanvas::lay(const Stroke& stroke)
{
    const Extent across = extentOf(stroke, &Point::x, coverSize.width);
    const Extent down = extentOf(stroke, &Point::y, coverSize.height);
    const auto place = [](int pixel, int sample) {
        return pixel * unit + (2 * sample + 1) * unit / (2 * samplesAcross);
    };
    for (int y = down.from; y < down.to; ++y) {
        for (int x = across.from; x < across.to; ++x) {
            int covered = 0;
            for (int i = 0; i < samples; ++i)
                covered += stroke.covers(place(x, i % samplesAcross), place(y, i / samplesAcross)) ? 1 : 0;
            if (covered > 0)
                blend(x, y, stroke.color, covered, samples);
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
    const int reach = radius * radius;
    for (int py = std::max(0, y - radius); py < std::min(coverSize.height, y + radius); ++py) {
        for (int px = std::max(0, x - radius); px < std::min(coverSize.width, x + radius); ++px) {
            const int left = reach - (px - x) * (px - x) - (py - y) * (py - y);
            if (left > 0)
                blend(px, py, faint(color, percent), left / radius * (left / radius), reach);
        }
    }
}

void CoverCanvas::below(const Height& height, Color top, Color bottom)
{
    std::vector<int> edge;
    for (int x = 0; x < coverSize.width; ++x)
        edge.push_back(Point::units(height(x)));
    const int highest = *std::min_element(edge.begin(), edge.end()) / unit;
    for (int x = 0; x < coverSize.width; ++x) {
        const int line = edge[static_cast<std::size_t>(x)];
        for (int y = std::max(0, line / unit); y < coverSize.height; ++y) {
            const Color color =
                ditheredMix(top, bottom, y - std::min(y, highest), coverSize.height - highest, x, y);
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
    for (int y = 0; y < coverSize.height; ++y) {
        for (int x = 0; x < coverSize.width / 2; ++x) {
            const Color left = m_picture.at(x, y);
            m_picture.set(x, y, m_picture.at(coverSize.width - 1 - x, y));
            m_picture.set(coverSize.width - 1 - x, y, left);
        }
    }
}

void CoverCanvas::grain()
{
    for (int y = 0; y < coverSize.height; ++y) {
        for (int x = 0; x < coverSize.width; ++x)
            m_picture.set(x, y, shifted(m_picture.at(x, y), noiseAt(m_seed, x, y) * 5 / 65536 - 2));
    }
}

} // namespace varnhold::assets
