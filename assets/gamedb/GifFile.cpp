#include "GifFile.h"

#include "Files.h"

#include <algorithm>
#include <array>
#include <map>

namespace varnhold::assets {

namespace {

constexpr std::size_t mostColors = 256;
constexpr int pixelBits = 8;
constexpr int clearCode = 1 << pixelBits;
constexpr int endCode = clearCode + 1;
constexpr int mostCodes = 4096;
constexpr std::size_t blockSize = 255;

using Count = std::int64_t;
using Shade = std::pair<Color, Count>;

int channelOf(Color color, int channel)
{
    return static_cast<int>(color >> channel * 8 & 0xFF);
}

/// Colours that lie near one another and become one.
struct Cluster
{
    std::vector<Shade> shades;
    int widest = 0; ///< channel
    Count weight = 0;

    explicit Cluster(std::vector<Shade> members) : shades(std::move(members))
    {
        int range = -1;
        Count pixels = 0;
        for (int channel = 0; channel < 3; ++channel) {
            const auto [low, high] =
                std::minmax_element(shades.begin(), shades.end(), [channel](const Shade& a, const Shade& b) {
                    return channelOf(a.first, channel) < channelOf(b.first, channel);
                });
            const int here = channelOf(high->first, channel) - channelOf(low->first, channel);
            if (here > range) {
                range = here;
                widest = channel;
            }
        }
        for (const Shade& shade : shades)
            pixels += shade.second;
        // By its extent rather than by its pixels alone: a small lamp keeps its own colour.
        weight = shades.size() < 2 ? 0 : Count(range) * range * range * (pixels + 64);
    }

    /// Cuts in two where half of the pixels lie on either side; returns the upper part.
    Cluster cut()
    {
        std::sort(shades.begin(), shades.end(), [this](const Shade& a, const Shade& b) {
            const int one = channelOf(a.first, widest);
            const int other = channelOf(b.first, widest);
            return one != other ? one < other : a.first < b.first;
        });
        Count all = 0;
        for (const Shade& shade : shades)
            all += shade.second;
        Count below = 0;
        auto middle = shades.begin();
        while (middle + 1 != shades.end() && below * 2 < all)
            below += (middle++)->second;
        middle = std::max(middle, shades.begin() + 1);
        Cluster upper({middle, shades.end()});
        *this = Cluster({shades.begin(), middle});
        return upper;
    }

    [[nodiscard]] Color mean() const
    {
        Color color = 0;
        for (int channel = 0; channel < 3; ++channel) {
            Count sum = 0;
            Count pixels = 0;
            for (const Shade& shade : shades) {
                sum += shade.second * channelOf(shade.first, channel);
                pixels += shade.second;
            }
            color |= static_cast<Color>((sum + pixels / 2) / std::max(pixels, Count(1))) << channel * 8;
        }
        return rgb(color);
    }
};

std::vector<Cluster> clusters(const Picture& picture)
{
    std::map<Color, Count> counted;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            ++counted[picture.at(x, y)];
    }
    std::vector<Cluster> found{Cluster({counted.begin(), counted.end()})};
    while (found.size() < mostColors) {
        const auto largest =
            std::max_element(found.begin(), found.end(),
                             [](const Cluster& a, const Cluster& b) { return a.weight < b.weight; });
        if (largest->weight == 0)
            break;
        found.push_back(largest->cut());
    }
    return found;
}

/// Codes of growing length, lowest bit first.
class CodeWriter
{
public:
    void add(int code, int bits)
    {
        m_held |= static_cast<std::uint32_t>(code) << m_count;
        for (m_count += bits; m_count >= 8; m_count -= 8, m_held >>= 8)
            m_bytes.push_back(static_cast<char>(m_held & 0xFF));
    }
    std::string take()
    {
        if (m_count > 0)
            m_bytes.push_back(static_cast<char>(m_held & 0xFF));
        return std::move(m_bytes);
    }

private:
    std::string m_bytes;
    std::uint32_t m_held = 0;
    int m_count = 0;
};

std::string compressed(const std::vector<std::uint8_t>& pixels)
{
    CodeWriter out;
    std::vector<std::int16_t> longer; // code of a known run and one more pixel
    int next = 0;
    int bits = 0;
    const auto startAfresh = [&] {
        out.add(clearCode, bits == 0 ? pixelBits + 1 : bits);
        longer.assign(std::size_t{mostCodes} * mostColors, -1);
        next = endCode + 1;
        bits = pixelBits + 1;
    };
    startAfresh();
    int run = pixels.front();
    for (std::size_t i = 1; i < pixels.size(); ++i) {
        std::int16_t& known = longer[static_cast<std::size_t>(run) * mostColors + pixels[i]];
        if (known >= 0) {
            run = known;
            continue;
        }
        out.add(run, bits);
        known = static_cast<std::int16_t>(next);
        run = pixels[i];
        if (next++ == 1 << bits)
            ++bits;
        if (next == mostCodes)
            startAfresh();
    }
    out.add(run, bits);
    // The reader has counted one entry more by now.
    out.add(endCode, next == 1 << bits ? bits + 1 : bits);
    return out.take();
}

} // namespace

std::string gifFile(const Picture& picture)
{
    const std::vector<Cluster> colors = clusters(picture);
    std::map<Color, std::uint8_t> indexOf;
    LittleEndian out;
    out.text("GIF89a").u16(picture.width()).u16(picture.height()).u8(0xF7).u8(0).u8(0);
    for (std::size_t i = 0; i < mostColors; ++i) {
        const Color color = i < colors.size() ? colors[i].mean() : rgb(0);
        out.u8(redOf(color)).u8(greenOf(color)).u8(blueOf(color));
        if (i >= colors.size())
            continue;
        for (const Shade& shade : colors[i].shades)
            indexOf[shade.first] = static_cast<std::uint8_t>(i);
    }
    out.u8(',').u16(0).u16(0).u16(picture.width()).u16(picture.height()).u8(0).u8(pixelBits);

    std::vector<std::uint8_t> pixels;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            pixels.push_back(indexOf[picture.at(x, y)]);
    }
    const std::string codes = compressed(pixels);
    for (std::size_t at = 0; at < codes.size(); at += blockSize) {
        const std::string block = codes.substr(at, blockSize);
        out.u8(static_cast<int>(block.size())).text(block);
    }
    return out.u8(0).u8(';').take();
}

} // namespace varnhold::assets
