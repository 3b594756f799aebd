#include "platform/pictures/DrawScaled.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <vector>

namespace varnhold {

namespace {

/// Four channels of a pixel, reckoned side by side.
using Channels [[gnu::vector_size(16)]] = float;

/// Which samples make up one that is drawn, and how much each counts; together 1.
struct Taps
{
    int first = 0;
    std::vector<float> weights;
};

double cubic(double distance)
{
    const double x = std::abs(distance);
    if (x < 1)
        return (1.5 * x - 2.5) * x * x + 1;
    if (x < 2)
        return ((-0.5 * x + 2.5) * x - 4) * x + 2;
    return 0;
}

std::vector<Taps> tapsOf(int from, int to)
{
    constexpr double reach = 2;
    const double step = static_cast<double>(from) / to;
    const double spread = std::max(step, 1.0);
    std::vector<Taps> all(static_cast<std::size_t>(to));
    for (int i = 0; i < to; ++i) {
        const double middle = (i + 0.5) * step - 0.5;
        const int first = std::max(0, static_cast<int>(std::ceil(middle - reach * spread)));
        const int last = std::min(from - 1, static_cast<int>(std::floor(middle + reach * spread)));
        std::vector<double> weights;
        double sum = 0;
        for (int at = first; at <= last; ++at) {
            weights.push_back(cubic((at - middle) / spread));
            sum += weights.back();
        }
        Taps& taps = all[static_cast<std::size_t>(i)];
        taps.first = first;
        for (const double weight : weights)
            taps.weights.push_back(static_cast<float>(weight / sum));
    }
    return all;
}

Channels channelsOf(quint32 pixel)
{
    constexpr quint32 byte = 0xFF;
    return Channels{static_cast<float>(pixel & byte), static_cast<float>(pixel >> 8U & byte),
                    static_cast<float>(pixel >> 16U & byte), static_cast<float>(pixel >> 24U)};
}

/// The drawn pixel over the one that is there. The interpolation overshoots at steps, so it is held within
/// what a pixel can be.
quint32 over(const Channels& drawn, quint32 ground)
{
    constexpr float full = 255;
    const float alpha = std::clamp(drawn[3], 0.0F, full);
    const float left = 1 - alpha / full;
    const Channels below = channelsOf(ground);
    const auto byteOf = [&](int channel) {
        const float own = channel == 3 ? alpha : std::clamp(drawn[channel], 0.0F, alpha);
        return static_cast<quint32>(std::min(full, own + below[channel] * left) + 0.5F);
    };
    return byteOf(3) << 24U | byteOf(2) << 16U | byteOf(1) << 8U | byteOf(0);
}

int halfToEven(double value)
{
    return static_cast<int>(std::nearbyint(value));
}

} // namespace

QRect scaledPlace(const QSize& picture, const QSize& target, bool aspect)
{
    if (picture.isEmpty() || target.isEmpty())
        return {};
    if (!aspect)
        return {{}, target};
    const double ratio = static_cast<double>(picture.width()) / picture.height();
    QSize size = target;
    if (static_cast<double>(target.width()) / target.height() > ratio)
        size.setWidth(std::max(1, halfToEven(target.height() * ratio)));
    else
        size.setHeight(std::max(1, halfToEven(target.width() / ratio)));
    size = size.boundedTo(target);
    return {{halfToEven((target.width() - size.width()) / 2.0),
             halfToEven((target.height() - size.height()) / 2.0)},
            size};
}

void drawScaled(const PixelRows<const quint32>& picture, const PixelRows<quint32>& target, bool aspect)
{
    const QRect place = scaledPlace({picture.width, picture.height}, {target.width, target.height}, aspect);
    if (place.isEmpty())
        return;
    const std::vector<Taps> across = tapsOf(picture.width, place.width());
    const std::vector<Taps> down = tapsOf(picture.height, place.height());

    // Each row of the picture is read once: scaled across, then added to all drawn rows that it counts for.
    // Those wait until the last row that counts for them has come.
    const auto width = static_cast<std::size_t>(place.width());
    std::vector<Channels> whole(static_cast<std::size_t>(picture.width));
    std::vector<Channels> scaled(width);
    std::vector<std::vector<Channels>> waiting(down.size());
    std::size_t firstOpen = 0;
    std::size_t nextToOpen = 0;
    for (int y = 0; y < picture.height; ++y) {
        const quint32* const pixels = picture.row(y);
        for (std::size_t x = 0; x < whole.size(); ++x)
            whole[x] = channelsOf(pixels[x]);
        for (std::size_t x = 0; x < width; ++x) {
            const Taps& taps = across[x];
            const Channels* sample = whole.data() + taps.first;
            Channels sum{};
            for (const float weight : taps.weights)
                sum += *sample++ * weight;
            scaled[x] = sum;
        }
        while (nextToOpen < down.size() && down[nextToOpen].first <= y)
            waiting[nextToOpen++].resize(width);
        for (std::size_t row = firstOpen; row < nextToOpen; ++row) {
            const Taps& taps = down[row];
            const auto at = static_cast<std::size_t>(y - taps.first);
            if (at >= taps.weights.size())
                continue;
            const float weight = taps.weights[at];
            Channels* const sums = waiting[row].data();
            for (std::size_t x = 0; x < width; ++x)
                sums[x] += scaled[x] * weight;
        }
        for (; firstOpen < nextToOpen; ++firstOpen) {
            const Taps& taps = down[firstOpen];
            if (taps.first + static_cast<int>(taps.weights.size()) - 1 > y)
                break;
            quint32* const drawn = target.row(place.y() + static_cast<int>(firstOpen)) + place.x();
            for (std::size_t x = 0; x < width; ++x)
                drawn[x] = over(waiting[firstOpen][x], drawn[x]);
            waiting[firstOpen] = {};
        }
    }
}

} // namespace varnhold
