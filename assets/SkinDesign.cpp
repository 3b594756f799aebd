#include "SkinDesign.h"

namespace varnhold::assets {

namespace {

constexpr SkinDesign nightHarbour{
    .name = "default",
    .outline = Outline::Rounded,
    .texture = Texture::Glass,
    .seed = 0x51ED270BU,
    .top = rgb(0x1B2A47),
    .middle = rgb(0x121D34),
    .bottom = rgb(0x0B1323),
    .rim = rgb(0x35507F),
    .rimLight = rgb(0x5677AC),
    .panel = rgb(0x0D1628),
    .panelEdge = rgb(0x2D4166),
    .grooveDark = rgb(0x0A1120),
    .grooveLight = rgb(0x27395B),
    .strip = rgb(0x16233C),
    .ink = rgb(0xDFE9F7),
    .quiet = rgb(0x9FB2CF),
    .accent = rgb(0x3FD4E8),
    .back = rgb(0x143B55),
    .faces = {FaceColors{rgb(0x30466F), rgb(0x1C2C4C), rgb(0x4B6A9F), rgb(0x5674A8), rgb(0x080E1B)},
              FaceColors{rgb(0x335283), rgb(0x24406B), rgb(0x3FB4CE), rgb(0x7FC9E4), rgb(0x080E1B)},
              FaceColors{rgb(0x0F1930), rgb(0x16233F), rgb(0x2F456D), rgb(0x0A1222), rgb(0x1F3054)}},
    .plate = rgb(0x111C32),
    .glyphInk = rgb(0xC9D8EE),
    .glyphSoft = rgb(0x5F7CAC),
    .list = {rgb(0x3FD4E8), rgb(0xDFE9F7), rgb(0x0D1628), rgb(0x111C32), rgb(0x152239), rgb(0x2D4166),
             rgb(0x185C79), rgb(0x114560), rgb(0xFFFFFF), rgb(0xDFE9F7), rgb(0x4C689B), rgb(0x2D4166),
             rgb(0x3D5686), rgb(0x0D1628), rgb(0x152239), rgb(0x16506A), rgb(0x16506A)},
};

constexpr SkinDesign paper{
    .name = "paper",
    .outline = Outline::Folded,
    .texture = Texture::Paper,
    .seed = 0x2545F491U,
    .top = rgb(0xE8E1D3),
    .middle = rgb(0xF5F0E6),
    .bottom = rgb(0xE8E1D3),
    .rim = rgb(0x2B2723),
    .rimLight = rgb(0xF5F0E6),
    .panel = rgb(0xFFFDF8),
    .panelEdge = rgb(0x8D8271),
    .grooveDark = rgb(0xB9AE9B),
    .grooveLight = rgb(0xF5F0E6),
    .strip = rgb(0xF5F0E6),
    .ink = rgb(0x221E1A),
    .quiet = rgb(0x5D554A),
    .accent = rgb(0xB02A14),
    .back = rgb(0xF1E0D2),
    .faces = {FaceColors{rgb(0xFFFDF8), rgb(0xFFFDF8), rgb(0x4A443C), rgb(0xFFFDF8), rgb(0xFFFDF8)},
              FaceColors{rgb(0xFADFD2), rgb(0xFADFD2), rgb(0xB02A14), rgb(0xFADFD2), rgb(0xFADFD2)},
              FaceColors{rgb(0xE9E0D2), rgb(0xE9E0D2), rgb(0x221E1A), rgb(0x4A443C), rgb(0x4A443C)}},
    .plate = rgb(0xFFFDF8),
    .glyphInk = rgb(0x2B2723),
    .glyphSoft = rgb(0x9A8F7E),
    .list = {rgb(0xB02A14), rgb(0x221E1A), rgb(0xFFFDF8), rgb(0xFFFDF8), rgb(0xE8E1D3), rgb(0xF5F0E6),
             rgb(0xF7DCCE), rgb(0xF1CBB8), rgb(0x7A1C0C), rgb(0x221E1A), rgb(0x8D8271), rgb(0xE8E1D3),
             rgb(0xCFC4B0), rgb(0xF5F0E6), rgb(0xECE5D8), rgb(0xF1CBB8), rgb(0xF1CBB8)},
};

constexpr SkinDesign copper{
    .name = "copper",
    .outline = Outline::Chamfered,
    .texture = Texture::Brushed,
    .seed = 0x9E3779B9U,
    .top = rgb(0x4B4845),
    .middle = rgb(0x363432),
    .bottom = rgb(0x252423),
    .rim = rgb(0xC07A47),
    .rimLight = rgb(0x6F645A),
    .panel = rgb(0x1A1817),
    .panelEdge = rgb(0x6B4228),
    .grooveDark = rgb(0x171615),
    .grooveLight = rgb(0x5E5A56),
    .strip = rgb(0x232120),
    .ink = rgb(0xF5E9DA),
    .quiet = rgb(0xCFBEAB),
    .accent = rgb(0xFFB13D),
    .back = rgb(0x3D2415),
    .faces = {FaceColors{rgb(0x8A4C27), rgb(0x5C3018), rgb(0x120E0C), rgb(0xD08B57), rgb(0x351B0C)},
              FaceColors{rgb(0x6E3A16), rgb(0x572A0B), rgb(0xE08A2E), rgb(0xFFC36B), rgb(0x351B0C)},
              FaceColors{rgb(0x2B1A10), rgb(0x3D2415), rgb(0x120E0C), rgb(0x150C07), rgb(0x6B4228)}},
    .plate = rgb(0x2A2725),
    .glyphInk = rgb(0xF0E2D0),
    .glyphSoft = rgb(0xC07A47),
    .list = {rgb(0xFFB13D), rgb(0xF5E9DA), rgb(0x1A1817), rgb(0x252220), rgb(0x4A2B19), rgb(0x7A4425),
             rgb(0x5C1C06), rgb(0xAF4A0C), rgb(0xFFF3E0), rgb(0xF5E9DA), rgb(0xD08B57), rgb(0x6B3A1E),
             rgb(0x9A5930), rgb(0x141211), rgb(0x262322), rgb(0x7A3A10), rgb(0x7A3A10)},
};

constexpr std::array designs{nightHarbour, paper, copper};

} // namespace

std::span<const SkinDesign> skinDesigns()
{
    return designs;
}

} // namespace varnhold::assets
