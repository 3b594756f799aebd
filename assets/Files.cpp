#include "Files.h"

namespace varnhold::assets {

namespace {

constexpr int infoHeaderSize = 40;
constexpr int bmpHeaderSize = 14 + infoHeaderSize;
constexpr int dotsPerMetre = 3780; // 96 an inch

void addInfoHeader(LittleEndian& out, Size size, int bits)
{
    out.u32(infoHeaderSize).u32(size.width).u32(size.height).u16(1).u16(bits).u32(0).u32(0);
    out.u32(dotsPerMetre).u32(dotsPerMetre).u32(0).u32(0);
}

std::string iconImage(const Picture& picture)
{
    LittleEndian out;
    // An icon's header counts the rows of the colours and of the mask.
    addInfoHeader(out, {picture.width(), picture.height() * 2}, 32);
    for (int y = picture.height() - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width(); ++x)
            out.u32(picture.at(x, y));
    }
    const int maskBytes = (picture.width() + 31) / 32 * 4;
    for (int y = picture.height() - 1; y >= 0; --y) {
        for (int byte = 0; byte < maskBytes; ++byte) {
            int bits = 0;
            for (int x = byte * 8; x < byte * 8 + 8; ++x) {
                const bool clear = x >= picture.width() || alphaOf(picture.at(x, y)) < 128;
                bits = bits << 1 | (clear ? 1 : 0);
            }
            out.u8(bits);
        }
    }
    return out.take();
}

} // namespace

LittleEndian& LittleEndian::u8(int value)
{
    m_bytes.push_back(static_cast<char>(value & 0xFF));
    return *this;
}

LittleEndian& LittleEndian::u16(int value)
{
    return u8(value).u8(value >> 8);
}

LittleEndian& LittleEndian::u32(std::int64_t value)
{
    return u16(static_cast<int>(value & 0xFFFF)).u16(static_cast<int>(value >> 16 & 0xFFFF));
}

LittleEndian& LittleEndian::text(std::string_view value)
{
    m_bytes.append(value);
    return *this;
}

std::string bmpFile(const Picture& picture)
{
    const int padding = (4 - picture.width() * 3 % 4) % 4;
    const int dataSize = (picture.width() * 3 + padding) * picture.height();
    LittleEndian out;
    out.text("BM").u32(bmpHeaderSize + dataSize).u32(0).u32(bmpHeaderSize);
    addInfoHeader(out, picture.size(), 24);
    for (int y = picture.height() - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width(); ++x) {
            const Color color = picture.at(x, y);
            out.u8(blueOf(color)).u8(greenOf(color)).u8(redOf(color));
        }
        for (int i = 0; i < padding; ++i)
            out.u8(0);
    }
    return out.take();
}

std::string icoFile(std::span<const Picture> sizes)
{
    LittleEndian out;
    std::string images;
    const int count = static_cast<int>(sizes.size());
    out.u16(0).u16(1).u16(count);
    for (const Picture& picture : sizes) {
        const std::string image = iconImage(picture);
        out.u8(picture.width()).u8(picture.height()).u8(0).u8(0).u16(1).u16(32);
        out.u32(static_cast<std::int64_t>(image.size()));
        out.u32(6 + 16 * count + static_cast<std::int64_t>(images.size()));
        images += image;
    }
    return out.text(images).take();
}

std::string wavFile(std::span<const std::int16_t> samples)
{
    const auto dataSize = static_cast<std::int64_t>(samples.size() * 2);
    LittleEndian out;
    out.text("RIFF").u32(36 + dataSize).text("WAVE");
    out.text("fmt ").u32(16).u16(1).u16(1).u32(sampleRate).u32(sampleRate * 2).u16(2).u16(16);
    out.text("data").u32(dataSize);
    for (const std::int16_t sample : samples)
        out.u16(sample);
    return out.take();
}

} // namespace varnhold::assets
