#include "controls/ReadableColor.h"

#include "controls/Contrast.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace varnhold::test {

TEST(ReadableColor, CanAlwaysBeReadAndKeepsWhatCan)
{
    constexpr ColorValue night = 0x24160E;
    constexpr ColorValue paper = 0xEEF4F8;
    EXPECT_EQ(readableOn(0xFF0000, paper), 0xFF0000U);
    EXPECT_EQ(readableOn(0xFFFFFF, night), 0xFFFFFFU);
    EXPECT_EQ(readableOn(0x000000, night), 0xFFFFFFU);
    EXPECT_EQ(readableOn(0xFFFFFF, paper), 0x000000U);
    const ColorValue link = readableOn(0xFF0000, night);
    EXPECT_EQ(blueOf(link), 255);
    EXPECT_LT(redOf(link), 200) << "still a blue";

    for (int level = 0; level < 256; level += 5) {
        const ColorValue ground = colorOf(level, level, level);
        for (const ColorValue text : {0x000000U, 0xFF0000U, 0x00FFFFU, 0x808080U, 0x0000FFU, 0x80000011U})
            EXPECT_GE(contrastRatio(readableOn(text, ground), ground), 4.5) << level << ' ' << text;
    }
}

TEST(ReadableColor, SuitsEveryToneOfAGround)
{
    const auto toneOf = [](int level) { return luminanceOf(colorOf(level, level, level)); };
    const ColorValue colors[] = {0x000000, 0xFFFFFF, 0x0000FF, 0xC00000, 0x808080, 0x80C0FF};
    for (int dark = 0; dark < 256; dark += 15) {
        for (int light = dark; light < 256; light += 15) {
            const GroundTones ground{toneOf(dark), toneOf(light)};
            const auto worst = [&](ColorValue color) {
                const double own = luminanceOf(color);
                return std::min(contrastOf(own, ground.darkest), contrastOf(own, ground.lightest));
            };
            for (const ColorValue stored : colors) {
                const TextInk ink = readableInk(stored, ground);
                if (worst(stored) >= 4.5) {
                    EXPECT_EQ(ink.color, stored) << "what could be read stays";
                }
                if (!ink.rim) {
                    EXPECT_GE(worst(ink.color), 4.5) << dark << ' ' << light;
                    continue;
                }
                EXPECT_LT(std::max(worst(0x000000), worst(0xFFFFFF)), 4.5)
                    << "a rim only where nothing else does";
                EXPECT_GE(contrastRatio(ink.color, *ink.rim), 20.9);
                EXPECT_GE(worst(ink.color), worst(*ink.rim));
            }
        }
    }
    EXPECT_GT(redOf(readableInk(0x0000A0, {0, 0}).color), blueOf(readableInk(0x0000A0, {0, 0}).color))
        << "a red stays one";
}

} // namespace varnhold::test
