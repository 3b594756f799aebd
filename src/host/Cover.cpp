#include "host/Cover.h"

#include <QtGlobal>

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstdlib>

namespace varnhold::host {

namespace {

// Every 8 by 8 block is of one colour: a baseline picture then needs nothing but the blocks' mean values,
// each coded as its difference from the one before, and an end mark.
constexpr int blocksAcross = 32;
constexpr int blocksDown = 37;
constexpr int components = 3;
constexpr int longestCategory = 11;
constexpr int categoryBits = 4; ///< all categories have codes of one length
constexpr int endOfBlockBits = 1;

class BitWriter
{
public:
    explicit BitWriter(QByteArray& out) : m_out(out) {}

    void add(quint32 bits, int count)
    {
        for (int i = count - 1; i >= 0; --i) {
            m_byte = (m_byte << 1) | ((bits >> i) & 1U);
            if (++m_count == 8)
                flush();
        }
    }

    /// The last byte is filled up with ones.
    void end()
    {
        while (m_count != 0)
            add(1, 1);
    }

private:
    void flush()
    {
        m_out.append(static_cast<char>(m_byte));
        if (m_byte == 0xff)
            m_out.append('\0');
        m_byte = 0;
        m_count = 0;
    }

    QByteArray& m_out;
    quint32 m_byte = 0;
    int m_count = 0;
};

void addSegment(QByteArray& out, char marker, const QByteArray& content)
{
    const auto size = static_cast<quint16>(content.size() + 2);
    out.append('\xff')
        .append(marker)
        .append(static_cast<char>(size >> 8))
        .append(static_cast<char>(size & 0xff));
    out.append(content);
}

QByteArray bytes(std::initializer_list<int> values)
{
    QByteArray made;
    for (const int value : values)
        made.append(static_cast<char>(value));
    return made;
}

/// Eight bits a sample, then the size.
QByteArray frame(int width, int height)
{
    return bytes({8, height >> 8, height & 255, width >> 8, width & 255});
}

void addHeader(QByteArray& out)
{
    constexpr int width = blocksAcross * 8;
    constexpr int height = blocksDown * 8;
    out.append("\xff\xd8");
    addSegment(out, '\xe0', QByteArray("JFIF\0", 5) + bytes({1, 1, 0, 0, 1, 0, 1, 0, 0}));
    // All steps are 8, so that a difference of means stands for one grey level.
    addSegment(out, '\xdb', bytes({0}) + QByteArray(64, 8));
    addSegment(out, '\xc0', frame(width, height) + bytes({components, 1, 0x11, 0, 2, 0x11, 0, 3, 0x11, 0}));
    // Means: the categories 0 to 11 as twelve codes of four bits. The rest: one code, "end of block".
    QByteArray means = bytes({0x00, 0, 0, 0, longestCategory + 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    for (int category = 0; category <= longestCategory; ++category)
        means.append(static_cast<char>(category));
    addSegment(out, '\xc4', means);
    addSegment(out, '\xc4', bytes({0x10, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    addSegment(out, '\xda', bytes({components, 1, 0x00, 2, 0x00, 3, 0x00, 0, 63, 0}));
}

void addDifference(BitWriter& out, int difference)
{
    const auto magnitude = static_cast<quint32>(std::abs(difference));
    const int category = std::bit_width(magnitude);
    out.add(static_cast<quint32>(category), categoryBits);
    // Negative values are written as their complement.
    out.add(difference < 0 ? ~magnitude : magnitude, category);
    out.add(0, endOfBlockBits);
}

/// Luma and both chromas of a block, each from -128 to 127.
std::array<int, components> blockColour(quint32 seed, int x, int y)
{
    const double across = static_cast<double>(x) / blocksAcross;
    const double down = static_cast<double>(y) / blocksDown;
    const double phase = static_cast<double>(seed % 628) / 100.0;
    const double wave = std::sin(6.0 * across + phase) + std::cos(5.0 * down + 2.0 * phase);
    const bool edge = x == 0 || y == 0 || x == blocksAcross - 1 || y == blocksDown - 1;
    const double luma = edge ? -90.0 : 30.0 * wave - 40.0 * down;
    const double blue = 55.0 * std::cos(phase + 1.5 * down);
    const double red = 55.0 * std::sin(phase + 1.5 * across);
    const auto level = [](double value) {
        return static_cast<int>(std::lround(std::clamp(value, -128.0, 127.0)));
    };
    return {level(luma), level(blue), level(red)};
}

} // namespace

QByteArray coverJpeg(const QString& id)
{
    quint32 seed = 2166136261U;
    for (const QChar character : id)
        seed = (seed ^ character.unicode()) * 16777619U;

    QByteArray jpeg;
    addHeader(jpeg);
    BitWriter bits(jpeg);
    std::array<int, components> last{};
    for (int y = 0; y < blocksDown; ++y) {
        for (int x = 0; x < blocksAcross; ++x) {
            const std::array<int, components> colour = blockColour(seed, x, y);
            for (std::size_t i = 0; i < components; ++i)
                addDifference(bits, colour.at(i) - last.at(i));
            last = colour;
        }
    }
    bits.end();
    jpeg.append("\xff\xd9");
    return jpeg;
}

QByteArray manyScansJpeg(int scans)
{
    constexpr int side = 8000;
    constexpr int blocks = side / 8 * (side / 8);
    QByteArray jpeg("\xff\xd8");
    addSegment(jpeg, '\xdb', bytes({0}) + QByteArray(64, 8));
    addSegment(jpeg, '\xc2', frame(side, side) + bytes({1, 1, 0x11, 0}));
    // One code, of one bit: "nothing more in this block and in so many behind it", with 14 bits for how many.
    constexpr int runBits = 14;
    addSegment(jpeg, '\xc4', bytes({0x10, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, runBits << 4}));
    QByteArray scan;
    addSegment(scan, '\xda', bytes({1, 1, 0x00, 1, 63, 0}));
    BitWriter bits(scan);
    for (int left = blocks; left > 0;) {
        const int run = std::min(left, (2 << runBits) - 1);
        bits.add(0, 1);
        bits.add(static_cast<quint32>(run - (1 << runBits)), runBits);
        left -= run;
    }
    bits.end();
    return jpeg + scan.repeated(scans) + "\xff\xd9";
}

QByteArray hugeSizeJpeg()
{
    QByteArray jpeg = coverJpeg({});
    const qsizetype at = jpeg.indexOf("\xff\xc0") + 5;
    return jpeg.replace(at, 4, QByteArray(4, '\xff'));
}

} // namespace varnhold::host
