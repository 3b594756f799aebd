#include "controls/MorphListBox/MorphListGradient.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numeric>
#include <utility>

namespace varnhold {

namespace {

constexpr quint32 opaque = 0xFF000000U;
constexpr float radians = 0.017453292F;
constexpr int scale = 1000; // of the steps in x and y

/// Direction of a linear gradient, worked out for its size.
struct Direction
{
    int stepX; ///< ramp entries times `scale` that a pixel to the right goes on
    int stepY;
    int length;  ///< of the ramp
    bool upward; ///< y counts from the bottom edge
    bool swapped;
};

quint32 mixed(ColorValue from, ColorValue to, int k, int last)
{
    // Integer division truncates towards zero, in falling channels too.
    const auto channel = [=](int a, int b) { return last > 0 ? a + (b - a) * k / last : a; };
    return opaque | quint32(channel(redOf(from), redOf(to))) << 16U |
           quint32(channel(greenOf(from), greenOf(to))) << 8U | quint32(channel(blueOf(from), blueOf(to)));
}

Direction directionOf(const MorphGradient& gradient)
{
    const float turned = std::isfinite(gradient.angle) ? std::fmod(gradient.angle, 360.0F) : 0.0F;
    int a = int(90.0F - turned) % 360;
    if (a < 0)
        a += 360;
    const int quadrant = a / 90;
    const int rest = a % 90;
    const bool odd = quadrant % 2 != 0;
    const double w = gradient.width;
    const double h = gradient.height;
    const double diagonal = std::atan(odd ? h / w : w / h) * 57.2957763671875;
    const double length =
        std::sqrt(w * w + h * h) * std::sin((90 - std::abs(rest - diagonal)) * 0.01745329238474369);
    const float angle = odd ? 1.5707964F - float(rest) * radians : float(rest) * radians;
    Direction direction{};
    direction.stepX = int(std::sin(angle) * float(scale));
    direction.stepY = std::max(0, int(std::cos(angle) * float(scale)));
    direction.length = std::max(1, int(length));
    // Quadrants 1 and 3 run against the rows, 2 and 3 against the colours, so a full turn of the angle turns
    // the gradient round once without a jump. A gradient that is the same from both ends keeps its colours.
    direction.upward = odd;
    direction.swapped = quadrant > 1 && !gradient.middleOut;
    return direction;
}

/// Looks up ramp entries along a line: entry (start + i * step) / scale for i from 0.
void lookUp(const quint32* ramp, quint64 start, quint64 step, quint32* pixels, int count)
{
    // Dividing by the scale is a multiplication and a shift, and the multiplication adds up along the line.
    // It is exact for sums below 2^32, that is for edges of two million pixels.
    constexpr int shift = 42;
    constexpr quint64 reciprocal = ((quint64(1) << shift) + scale - 1) / scale;
    quint64 sum = start * reciprocal;
    step *= reciprocal;
    int i = 0;
    for (; i + 4 <= count; i += 4, sum += 4 * step) {
        pixels[i] = ramp[sum >> shift];
        pixels[i + 1] = ramp[(sum + step) >> shift];
        pixels[i + 2] = ramp[(sum + 2 * step) >> shift];
        pixels[i + 3] = ramp[(sum + 3 * step) >> shift];
    }
    for (; i < count; ++i, sum += step)
        pixels[i] = ramp[sum >> shift];
}

void paintLinear(const MorphGradient& gradient, quint32* pixels, qsizetype stride)
{
    const int width = gradient.width;
    const int height = gradient.height;
    const Direction direction = directionOf(gradient);
    const auto stepX = quint64(direction.stepX);
    const auto stepY = quint64(direction.stepY);
    ColorValue from = GetLngColor(gradient.color1);
    ColorValue to = GetLngColor(gradient.color2);
    if (direction.swapped)
        std::swap(from, to);
    std::vector<quint32> ramp = morphRamp(direction.length, from, to, gradient.middleOut);
    // Indexes past the ramp take its last entry; with the table grown to hold them no pixel needs a test.
    const quint64 farthest = quint64(width - 1) * stepX + quint64(height - 1) * stepY;
    ramp.resize(std::max(ramp.size(), size_t(farthest / scale) + 1), ramp.back());
    const auto rowAt = [&](int y) { return pixels + (direction.upward ? height - 1 - y : y) * stride; };

    if (direction.stepX == 0) {
        for (int y = 0; y < height; ++y)
            std::fill_n(rowAt(y), width, ramp[size_t(y) * stepY / scale]);
        return;
    }
    // A row `period` further on is the same row moved by `offset` pixels. At 45 degrees that is the next row,
    // so all rows are pieces of one line; at an angle without such luck the period is longer than the
    // picture.
    const int common = std::gcd(direction.stepX, direction.stepY);
    const int period = direction.stepX / common;
    const int offset = direction.stepY / common;
    if (qint64(period) * width + qint64(height) * offset > qint64(width) * height / 2) {
        for (int y = 0; y < height; ++y)
            lookUp(ramp.data(), quint64(y) * stepY, stepX, rowAt(y), width);
        return;
    }
    std::vector<quint32> line;
    for (int first = 0; first < std::min(period, height); ++first) {
        line.resize(size_t(width) + size_t((height - 1 - first) / period) * size_t(offset));
        lookUp(ramp.data(), quint64(first) * stepY, stepX, line.data(), int(line.size()));
        for (int y = first; y < height; y += period) {
            std::memcpy(rowAt(y), line.data() + qsizetype(y / period) * offset,
                        size_t(width) * sizeof(quint32));
        }
    }
}

void paintCircular(const MorphGradient& gradient, quint32* pixels, qsizetype stride)
{
    const ColorValue outside = GetLngColor(gradient.color1);
    const ColorValue inside = GetLngColor(gradient.color2);
    const double w = gradient.width;
    const double h = gradient.height;
    const int radius = int(std::sqrt(w * w + h * h)) / 2;
    std::vector<quint32> colors(size_t(radius) + 2);
    std::vector<qint64> rings(size_t(radius) + 2); // squared distance at which a ring begins
    for (int n = 1; n <= radius + 1; ++n) {
        colors[size_t(n)] = mixed(outside, inside, std::max(0, radius - n), radius);
        rings[size_t(n)] = rings[size_t(n) - 1] + 2 * n - 1;
    }
    colors[0] = mixed(outside, inside, 1, 2);

    const int halfWidth = (gradient.width + 1) / 2;
    const int halfHeight = (gradient.height + 1) / 2;
    int firstRing = 0;
    for (int dy = 0; dy < halfHeight; ++dy) {
        quint32* const lower = pixels + (gradient.height - halfHeight + dy) * stride;
        quint32* const upper = pixels + (halfHeight - 1 - dy) * stride;
        const qint64 square = qint64(dy) * dy;
        while (firstRing < radius && rings[size_t(firstRing) + 1] <= square)
            ++firstRing;
        int ring = firstRing;
        quint32* const right = lower + gradient.width - halfWidth;
        quint32* const left = lower + halfWidth - 1;
        for (int dx = 0; dx < halfWidth; ++dx) {
            while (ring < radius && rings[size_t(ring) + 1] <= square + qint64(dx) * dx)
                ++ring;
            right[dx] = left[-dx] = colors[size_t(ring)];
        }
        if (upper != lower)
            std::memcpy(upper, lower, size_t(gradient.width) * sizeof(quint32));
    }
}

} // namespace

std::vector<quint32> morphRamp(int length, ColorValue color1, ColorValue color2, bool middleOut)
{
    const ColorValue from = GetLngColor(color1);
    const ColorValue to = GetLngColor(color2);
    const size_t entries = size_t(std::max(1, length));
    const size_t run = middleOut ? (entries + 1) / 2 : entries;
    std::vector<quint32> ramp(entries);
    for (size_t k = 0; k < run; ++k) {
        ramp[k] = mixed(from, to, int(k), int(run) - 1);
        if (middleOut)
            ramp[entries - 1 - k] = ramp[k];
    }
    return ramp;
}

void paintMorphGradient(const MorphGradient& gradient, quint32* pixels, qsizetype stride)
{
    if (gradient.width < 1 || gradient.height < 1)
        return;
    if (gradient.circular)
        paintCircular(gradient, pixels, stride);
    else
        paintLinear(gradient, pixels, stride);
}

} // namespace varnhold
