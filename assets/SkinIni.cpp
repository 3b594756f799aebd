#include "SkinIni.h"

#include <array>
#include <cstddef>

namespace varnhold::assets {

namespace {

constexpr std::array<std::string_view, 17> listKeys{
    "ArrowDownColor",   "ArrowUpColor",    "BackColor1",  "BackColor2",     "ButtonColor1",
    "ButtonColor2",     "SelColor1",       "SelColor2",   "HighlightColor", "ForeColor",
    "ThumbBorderColor", "ThumbColor1",     "ThumbColor2", "TrackBarColor1", "TrackBarColor2",
    "TrackClickColor1", "TrackClickColor2"};

std::string line(std::string_view key, const std::string& value)
{
    return std::string(key) + '=' + value + "\r\n";
}

std::string decimal(Color color)
{
    return std::to_string(blueOf(color) << 16 | greenOf(color) << 8 | redOf(color));
}

} // namespace

std::string skinIni(const SkinDesign& design)
{
    std::string text = "[Settings]\r\n";
    text += line("Skin ForeColor", decimal(design.ink));
    text += line("Skin BackColor", decimal(design.back));
    text += line("Skin HightlightColor", decimal(design.accent)); // the key's own spelling
    text += line("LBxMode", "2");
    text += line("LBxPicture", "1");
    text += line("LBx Theme", "10");
    text += line("LvPicture", "1");
    text += line("PictureAlignment", "5");
    text += "\r\n[Custom LstView]\r\n";
    for (std::size_t i = 0; i < listKeys.size(); ++i)
        text += line(listKeys.at(i), decimal(design.list.at(i)));
    return text;
}

} // namespace varnhold::assets
