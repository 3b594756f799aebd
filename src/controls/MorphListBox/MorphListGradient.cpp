#include "controls/MorphListBox/MorphListGradient.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <utility>

namespace varnhold {

namespace {

constexpr quint32 opaque = 0xFF000000U;
constexpr float radians = 0.017453292F;
constexpr quint64 scale = 1000; // of the steps in x and y

/// Direction of a linear gradient, worked out for its size.
struct Direction
{
    int stepX; ///< ramp entries times `scale` that a pixel to the right goes on
    int stepY;
    int length;  ///< of the ramp
    bool upward; ///< y counts from the bottom edge
    bool swapped;
};

/// The rows of a picture, in the order in which the direction runs.
struct PixelRows
{
    quint32* pixels;
    qsizetype stride;
    int width;
    int height;
    bool upward;

    [[nodiscard]] quint32* at(int y) const { return pixels + (upward ? height - 1 - y : y) * stride; }
};

/// Colours between two, as pixels: entry k of 0 to `last`.
class Mixture
{
public:
    Mixture(ColorValue from, ColorValue to, int last)
        : m_channels{Channel(redOf(from), redOf(to)), Channel(greenOf(from), greenOf(to)),
                     Channel(blueOf(from), blueOf(to))},
          m_reciprocal(last > 0 ? ((quint64(1) << shift) + quint64(last) - 1) / quint64(last) : 0)
    {
    }

    [[nodiscard]] quint32 at(size_t k) const
    {
        return opaque | at(m_channels[0], k) << 16U | at(m_channels[1], k) << 8U | at(m_channels[2], k);
    }

private:
    struct Channel
    {
        Channel(int a, int b) : from(quint32(a)), span(quint64(std::abs(b - a))), falls(b < a) {}

        quint32 from;
        quint64 span;
        bool falls;
    };

    [[nodiscard]] quint32 at(const Channel& channel, quint64 k) const
    {
        // span * k / last as a multiplication: exact up to a million entries. The change is cut, not the
        // sum, so falling channels truncate towards zero too.
        const auto change = quint32(channel.span * k * m_reciprocal >> shift);
        return channel.falls ? channel.from - change : channel.from + change;
    }

    static constexpr int shift = 48;
    std::array<Channel, 3> m_channels;
    quint64 m_reciprocal;
};

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

/// Row by row, a run of pixels for each ramp entry: for steps so small that runs are long, and for pictures
/// of a few pixels.
void paintRuns(const std::vector<quint32>& ramp, quint64 stepX, quint64 stepY, const PixelRows& rows)
{
    for (int y = 0; y < rows.height; ++y) {
        const quint64 start = quint64(y) * stepY;
        quint32* const row = rows.at(y);
        for (int x = 0; x < rows.width;) {
            const quint64 entry = (start + quint64(x) * stepX) / scale;
            const quint64 next = (entry + 1) * scale - start; // this far along the row the next entry begins
            const int end = next > quint64(rows.width) * stepX ? rows.width : int((next + stepX - 1) / stepX);
            std::fill(row + x, row + end, ramp[entry]);
            x = end;
        }
    }
}

/// The multiples 0, step, 2 * step, ... each as a whole number of units, its place, and the rest, its phase.
/// They can be visited phase by phase.
class Multiples
{
public:
    Multiples(quint64 step, quint64 unit, size_t count) : m_places(count), m_next(count), m_first(unit, none)
    {
        // From the end, so that the visits of a phase go forward.
        quint64 place = count * step / unit;
        quint64 phase = count * step % unit;
        for (size_t i = count; i-- > 0;) {
            place -= step / unit;
            if (phase < step % unit) {
                phase += unit;
                --place;
            }
            phase -= step % unit;
            m_places[i] = place;
            m_next[i] = std::exchange(m_first[phase], int(i));
        }
    }
    [[nodiscard]] size_t place(size_t i) const { return m_places[i]; }
    template <typename Visit> void visit(size_t phase, Visit&& visit) const
    {
        for (int i = m_first[phase]; i != none; i = m_next[size_t(i)])
            visit(size_t(i));
    }

private:
    static constexpr int none = -1;
    std::vector<size_t> m_places;
    std::vector<int> m_next;  // of the same phase
    std::vector<int> m_first; // by phase
};

/// Copies every row from one line that has ramp entry (i * stepX + phase) / scale at place i: row y begins at
/// place y * stepY / stepX, with the rest as its phase. While the phase goes from 0 to stepX an entry spreads
/// to the place before its first, and to no other. So the line is made once, the rows are taken in the order
/// of their phases, and in between no more pixels change than the ramp has entries.
void paintFromLine(const std::vector<quint32>& ramp, quint64 stepX, quint64 stepY, size_t length,
                   const PixelRows& rows)
{
    std::vector<quint32> line(length);
    const Multiples entries(scale, stepX, ramp.size());
    for (size_t entry = 0, first = 0; entry < ramp.size() && first < length; ++entry) {
        // Up to the place of the next entry, which takes it over in its phase. In phase 0 that is at once.
        const size_t end = entry + 1 < ramp.size() ? std::min(length, entries.place(entry + 1) + 1) : length;
        std::fill(line.begin() + qint64(first), line.begin() + qint64(end), ramp[entry]);
        first = end;
    }
    const Multiples starts(stepY, stepX, size_t(rows.height));
    for (size_t phase = 0; phase < stepX; ++phase) {
        entries.visit(phase, [&](size_t entry) {
            if (entries.place(entry) < length)
                line[entries.place(entry)] = ramp[entry];
        });
        starts.visit(phase, [&](size_t y) {
            std::memcpy(rows.at(int(y)), line.data() + starts.place(y), size_t(rows.width) * sizeof(quint32));
        });
    }
}

void paintLinear(const MorphGradient& gradient, quint32* pixels, qsizetype stride)
{
    const Direction direction = directionOf(gradient);
    const auto stepX = quint64(direction.stepX);
    const auto stepY = quint64(direction.stepY);
    const auto width = quint64(gradient.width);
    const auto height = quint64(gradient.height);
    ColorValue from = GetLngColor(gradient.color1);
    ColorValue to = GetLngColor(gradient.color2);
    if (direction.swapped)
        std::swap(from, to);
    std::vector<quint32> ramp = morphRamp(direction.length, from, to, gradient.middleOut);
    // Indexes past the ramp take its last entry; with the table grown to hold them no pixel needs a test.
    const quint64 farthest = width * stepX + (height - 1) * stepY;
    ramp.resize(std::max(ramp.size(), size_t(farthest / scale) + 1), ramp.back());

    const PixelRows rows{pixels, stride, gradient.width, gradient.height, direction.upward};
    const quint64 line = stepX > 0 ? width + (height - 1) * stepY / stepX : 0;
    if (line == 0 || line > width * height / 2)
        paintRuns(ramp, stepX, stepY, rows);
    else
        paintFromLine(ramp, stepX, stepY, line, rows);
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
    const Mixture mixture(outside, inside, radius);
    for (int n = 1; n <= radius + 1; ++n) {
        colors[size_t(n)] = mixture.at(size_t(std::max(0, radius - n)));
        rings[size_t(n)] = rings[size_t(n) - 1] + 2 * n - 1;
    }
    colors[0] = Mixture(outside, inside, 2).at(1);

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
    const Mixture mixture(from, to, int(run) - 1);
    std::vector<quint32> ramp(entries);
    for (size_t k = 0; k < run; ++k) {
        ramp[k] = mixture.at(k);
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
