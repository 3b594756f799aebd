#pragma once

#include <QtGlobal>

namespace varnhold {

/// A colour as the program stores and exchanges it: 0x00BBGGRR, red in the low byte. With the top bit set
/// the low byte is instead an index into the system palette (0x8000000F is the button face).
using ColorValue = quint32;

/// Entries of the system palette that controls use by default.
namespace systemcolors {
inline constexpr ColorValue window = 0x80000005;
inline constexpr ColorValue windowText = 0x80000008;
inline constexpr ColorValue highlight = 0x8000000D;
inline constexpr ColorValue highlightText = 0x8000000E;
inline constexpr ColorValue buttonFace = 0x8000000F;
inline constexpr ColorValue buttonShadow = 0x80000010;
inline constexpr ColorValue grayText = 0x80000011;
inline constexpr ColorValue buttonText = 0x80000012;
inline constexpr ColorValue buttonHighlight = 0x80000014;
inline constexpr ColorValue darkShadow = 0x80000015;
inline constexpr ColorValue light = 0x80000016;
inline constexpr ColorValue infoText = 0x80000017;
inline constexpr ColorValue infoBackground = 0x80000018;
} // namespace systemcolors

[[nodiscard]] constexpr bool isSystemColor(ColorValue color)
{
    return (color & 0x80000000U) != 0;
}

/// The colour as 0x00BBGGRR, system indexes looked up in a fixed classic palette (table in the source) so
/// that a skin looks the same on every desktop. An index past the palette's end is black; bits 24 to 30 of
/// a plain colour are dropped. Always call it before channel arithmetic.
[[nodiscard]] ColorValue GetLngColor(ColorValue color);

/// Channels of a resolved colour, 0 to 255.
[[nodiscard]] constexpr int redOf(ColorValue color)
{
    return static_cast<int>(color & 0xFFU);
}
[[nodiscard]] constexpr int greenOf(ColorValue color)
{
    return static_cast<int>((color >> 8U) & 0xFFU);
}
[[nodiscard]] constexpr int blueOf(ColorValue color)
{
    return static_cast<int>((color >> 16U) & 0xFFU);
}

/// The colour of three channels; each is limited to 0 to 255.
[[nodiscard]] constexpr ColorValue colorOf(int red, int green, int blue)
{
    const auto limited = [](int channel) { return static_cast<quint32>(qBound(0, channel, 255)); };
    return limited(red) | limited(green) << 8U | limited(blue) << 16U;
}

} // namespace varnhold
