#include "platform/EdgeSnap.h"

#include <gtest/gtest.h>

namespace varnhold::test {

namespace {

// 1920 x 1080 pixels are 28800 x 16200 twips; the window is 6705 x 4335.
struct Case
{
    const char* name;
    double left;
    double top;
    int panel; ///< pixels at the bottom
    double restLeft;
    double restTop;
};

const Case cases[] = {
    {"nothing near", 5000, 5000, 40, 5000, 5000},
    {"50 twips from the left", 50, 5000, 40, 0, 5000},
    {"dragged off to the left", -3000, 5000, 40, 0, 5000},
    {"100 twips are not near", 100, 100, 40, 100, 100},
    {"top", 5000, 99, 40, 5000, 0},
    {"right", 28800 - 6705 - 99, 5000, 40, 28800 - 6705, 5000},
    {"right border is not near", 28800 - 6705 - 100, 5000, 40, 28800 - 6705 - 100, 5000},
    {"bottom, above a panel of 40", 5000, 16200 - 4335 - 50, 40, 5000, 15600 - 4335},
    {"bottom, no panel", 5000, 16200 - 4335 - 50, 0, 5000, 16200 - 4335},
    {"481 above the bottom stays", 5000, 16200 - 4335 - 481, 100, 5000, 16200 - 4335 - 481},
    {"479 above the bottom goes over a tall panel", 5000, 16200 - 4335 - 479, 100, 5000, 14700 - 4335},
    {"corner", 20, 16200, 40, 0, 15600 - 4335},
};

class EdgeSnap : public testing::TestWithParam<Case>
{
};

} // namespace

TEST_P(EdgeSnap, ComesToRest)
{
    const Case& given = GetParam();
    const WorkArea area{0, 0, 1920, 1080 - given.panel};
    const WindowPlace rest = snapToEdges({given.left, given.top, 6705, 4335}, 1920, 1080, area);
    EXPECT_DOUBLE_EQ(rest.left, given.restLeft) << given.name;
    EXPECT_DOUBLE_EQ(rest.top, given.restTop) << given.name;
}

INSTANTIATE_TEST_SUITE_P(Table, EdgeSnap, testing::ValuesIn(cases));

} // namespace varnhold::test
