#pragma once

#include "Picture.h"

#include <cstdint>
#include <span>
#include <string>
#include <vector>

namespace varnhold::assets {

/// Numbers, lowest byte first, as bitmap, icon and sound files hold them.
class LittleEndian
{
public:
    LittleEndian& u8(int value);
    LittleEndian& u16(int value);
    LittleEndian& u32(std::int64_t value);
    LittleEndian& text(std::string_view value);
    [[nodiscard]] std::string take() { return std::move(m_bytes); }
    [[nodiscard]] std::size_t size() const { return m_bytes.size(); }

private:
    std::string m_bytes;
};

/// 24 bits a pixel at 96 dots an inch; what the pixels say of transparency is dropped.
std::string bmpFile(const Picture& picture);
/// 32 bits a pixel with alpha, and the one-bit mask for readers that know no alpha. Up to 255 pixels a side.
std::string icoFile(std::span<const Picture> sizes);
/// One channel, 16 bits, 44,100 samples a second.
std::string wavFile(std::span<const std::int16_t> samples);

inline constexpr int sampleRate = 44100;

} // namespace varnhold::assets
