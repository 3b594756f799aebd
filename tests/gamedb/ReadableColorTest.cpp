#include "controls/ReadableColor.h"

#include "controls/Contrast.h"

#include <gtest/gtest.h>

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

} // namespace varnhold::test
