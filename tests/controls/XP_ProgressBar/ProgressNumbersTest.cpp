// Colours and rectangles of the progress bar, as numbers.

#include "controls/DesignValues.h"
#include "controls/SystemColors.h"
#include "controls/XP_ProgressBar/ProgressColors.h"
#include "controls/XP_ProgressBar/ProgressMetrics.h"

#include <gtest/gtest.h>

#include <limits>

namespace varnhold {
namespace {

namespace look = design::progresslook;

TEST(SystemColors, ResolvesIndexesAndLeavesPlainColours)
{
    const struct
    {
        ColorValue in;
        ColorValue out;
    } cases[] = {
        {0x8000000F, 0xC8D0D4}, {0x80000012, 0x000000}, {0x8000000D, 0x6A240A}, {0x80000011, 0x808080},
        {0x80000000, 0xC8D0D4}, {0x8000001E, 0xC8D0D4}, {0x8000001F, 0x000000}, {0x800000FF, 0x000000},
        {0x00123456, 0x123456}, {0x7F123456, 0x123456},
    };
    for (const auto& c : cases)
        EXPECT_EQ(GetLngColor(c.in), c.out) << std::hex << c.in;
}

TEST(ProgressColors, ShiftAndBlendTruncateEachChannel)
{
    EXPECT_EQ(ShiftColorXP(colorOf(0, 100, 255), 100), colorOf(100, 160, 255)); // 100 x 155 / 255 = 60.78
    EXPECT_EQ(ShiftColorXP(colorOf(9, 8, 7), 0), colorOf(9, 8, 7));
    EXPECT_EQ(ShiftColorXP(colorOf(9, 8, 7), 255), 0xFFFFFFU);
    EXPECT_EQ(ShiftColorXP(systemcolors::highlight, 180), colorOf(182, 190, 211)); // of 0A246A

    EXPECT_EQ(BlendColor(colorOf(200, 10, 255), 0, 200), colorOf(43, 2, 55)); // 43.1, 2.2, 55
    EXPECT_EQ(BlendColor(0xFFFFFF, 0xFFFFFF, 100), 0xFFFFFFU);                // no loss where both are full
    EXPECT_EQ(BlendColor(0x123456, 0x654321, 255), 0x654321U);
}

TEST(ProgressColors, GradientStartsAtTheFirstColourAndStopsOneStepShort)
{
    const ColorValue from = colorOf(0, 255, 10);
    const ColorValue to = colorOf(200, 0, 10);
    EXPECT_EQ(gradientColor(from, to, 0, 10), from);
    EXPECT_EQ(gradientColor(from, to, 5, 10), colorOf(100, 128, 10)); // 127.5 goes to the even number
    EXPECT_EQ(gradientColor(from, to, 9, 10), colorOf(180, 26, 10));  // 25.5 too
    EXPECT_EQ(gradientColor(from, to, 0, 1), from);
    EXPECT_EQ(gradientColor(from, to, 0, 0), from);
}

ProgressState stateOf(int scrolling, int percent, bool vertical = false)
{
    ProgressState state;
    state.scrolling = scrolling;
    state.vertical = vertical;
    state.setValue(percent);
    return state;
}

TEST(ProgressState, ValueIsThePercentageOfMaxOverMin)
{
    const struct
    {
        int percent, max, min, value;
    } cases[] = {
        {40, 100, 0, 40},  {40, 5000, 0, 2000}, {40, 5000, 7, 286},
        {40, 100, -5, 40}, {250, 100, 0, 250},  {-1, 100, 0, -1},
        {5, 50, 0, 2},     {15, 50, 0, 8},      {2000000000, 2000000000, 0, std::numeric_limits<int>::max()},
    };
    for (const auto& c : cases) {
        ProgressState state = stateOf(0, c.percent);
        state.max = c.max;
        state.min = c.min;
        EXPECT_EQ(state.value(), c.value) << c.percent << " of " << c.max << " over " << c.min;
    }
    ProgressState full = stateOf(0, 250);
    full.clampForDrawing();
    EXPECT_EQ(full.value(), 100);
    EXPECT_EQ(full.percent(), 100);
}

TEST(ProgressMetrics, BarRunsFromItsStartToItsEnd)
{
    const struct
    {
        int look, percent, length, start, end;
    } cases[] = {
        // Steps of 8 from 3, of the length less 3, full at 98, cut off 3 pixels before the end.
        {look::segmented, 0, 168, 3, 3},
        {look::segmented, 50, 168, 3, 83}, // 3 + 84 -> 10 blocks
        {look::segmented, 98, 168, 3, 163},
        {look::segmented, 100, 168, 3, 163},
        {look::segmented, 4, 168, 3, 3}, // 6 pixels are no whole block with its space
        {look::continuous, 50, 168, 3, 87},
        {look::continuous, 100, 168, 3, 165},
        {42, 100, 168, 3, 165}, // an unknown look is the continuous one
        {look::pastel, 50, 168, 1, 84},
        {look::pastel, 100, 168, 1, 168},
        {look::sunken, 50, 168, 2, 84},
        {look::sunken, 100, 168, 2, 166},
        {look::office, 100, 168, 3, 166}, // 166.3
        {look::metal, 100, 168, 2, 165},
        {look::brush, 50, 168, 2, 83},
        {look::picture, 100, 505, 2, 500},
        {look::media, 100, 168, 2, 166},
        {look::media, -20, 168, 2, 2},
        {look::media, 300, 168, 2, 166},
    };
    for (const auto& c : cases) {
        const ProgressMetrics metrics(stateOf(c.look, c.percent), {c.length, 20});
        EXPECT_EQ(metrics.barStart(), c.start) << "look " << c.look << " at " << c.percent;
        EXPECT_EQ(metrics.barEnd(), c.end) << "look " << c.look << " at " << c.percent;
        const ProgressMetrics upright(stateOf(c.look, c.percent, true), {20, c.length});
        EXPECT_EQ(upright.barEnd(), c.end) << "upright look " << c.look << " at " << c.percent;
        EXPECT_EQ(upright.barInClient().top, c.length - c.end);
        EXPECT_EQ(upright.barInClient().bottom, c.length - c.start);
    }
}

TEST(ProgressMetrics, SpacesFollowTheirBlocks)
{
    const ProgressMetrics lying(stateOf(look::segmented, 10), {168, 20});
    ASSERT_EQ(lying.barEnd(), 3 + 2 * 8);
    EXPECT_EQ(lying.divisions(), (std::vector<BarRect>{{9, 0, 11, 20}, {17, 0, 19, 20}}));

    // Counted from the top: block, space, block, space, and then the bar's foot 3 pixels above the ground.
    const ProgressMetrics upright(stateOf(look::segmented, 10, true), {20, 168});
    std::vector<BarRect> spaces;
    for (const BarRect& space : upright.divisions())
        spaces.push_back(upright.toClient(space));
    EXPECT_EQ(upright.barInClient(), (BarRect{0, 149, 20, 165}));
    EXPECT_EQ(spaces, (std::vector<BarRect>{{0, 163, 20, 165}, {0, 155, 20, 157}}));
}

TEST(ProgressMetrics, SearchBlocksRunThroughTheTrack)
{
    const QSize client(168, 20);
    EXPECT_EQ(ProgressMetrics(stateOf(look::searching, 0), client).searchBlock(0),
              (BarRect{-42, 3, -32, 18}));
    EXPECT_EQ(ProgressMetrics(stateOf(look::searching, 60), client).searchBlock(2),
              (BarRect{109, 3, 119, 18}));
    EXPECT_GE(ProgressMetrics(stateOf(look::searching, 100), client).searchBlock(0).left, 165);
}

TEST(ProgressMetrics, TinyAndEmptyClientsGiveNoBar)
{
    for (int scrolling = 0; scrolling <= 9; ++scrolling) {
        for (const int side : {-5, 0, 1, 2, 3}) {
            const ProgressMetrics metrics(stateOf(scrolling, 100), {side, side});
            EXPECT_LE(metrics.barInClient().right, qMax(0, side)) << "look " << scrolling << ", " << side;
            EXPECT_LE(metrics.divisions().size(), 1U);
        }
    }
}

} // namespace
} // namespace varnhold
