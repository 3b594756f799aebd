// Value, knob position and drag, without a window.

#include "controls/ucSlider/SliderState.h"
#include "controls/ucSlider/SliderMetrics.h"

#include "platform/RunTimeError.h"

#include <gtest/gtest.h>

#include <limits>

namespace varnhold {
namespace {

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

// Horizontal, 110 long with a knob of 10: the knob's way is 100.
SliderState slider(int min, int max)
{
    SliderState state;
    state.setVertical(false);
    state.setSizes({110, 20}, {10, 20});
    state.setMin(min);
    state.setMax(max);
    return state;
}

TEST(SliderState, KnobPositionAndItsInverse)
{
    const struct
    {
        int min, max, value, position;
    } cases[] = {
        {0, 10, 0, 0},    {0, 10, 3, 30},   {0, 10, 10, 100},         {0, 255, 220, 86},
        {20, 255, 20, 0}, {-50, 50, 0, 50}, {lowest, highest, 0, 50}, {lowest, highest, highest, 100},
    };
    for (const auto& c : cases) {
        SliderState state = slider(c.min, c.max);
        state.setValue(c.value);
        EXPECT_EQ(state.knobPosition(), c.position) << c.value << " of " << c.min << " to " << c.max;
    }
    for (int value = 0; value <= 100; ++value) // every value has a place of its own here, and comes back
        EXPECT_EQ(slider(0, 100).valueAt(slider(0, 100).positionOf(value)), value);
    EXPECT_EQ(slider(0, 255).valueAt(86), 219); // 219.3
    EXPECT_EQ(slider(0, 255).valueAt(-7), 0);
    EXPECT_EQ(slider(0, 255).valueAt(1000), 255);
}

TEST(SliderState, RangeWithoutExtentStaysUsable)
{
    SliderState state = slider(4, 4);
    EXPECT_EQ(state.value(), 4);
    EXPECT_NO_THROW(state.setValue(4));
    EXPECT_EQ(state.knobPosition(), 0);
    EXPECT_TRUE(state.press({90, 10}));
    EXPECT_EQ(state.value(), 4);
    EXPECT_EQ(state.stepped(1), 4);

    SliderState turned = slider(0, 10);
    turned.setValue(6);
    turned.setMin(20); // until Max follows there is no valid value
    EXPECT_EQ(turned.value(), 6);
    EXPECT_THROW(turned.setValue(15), RunTimeError);
    turned.setMax(30);
    EXPECT_EQ(turned.value(), 20);

    for (const QSize size :
         {QSize(0, 0), QSize(1, 1), QSize(5, 20), QSize(-3, -3), QSize(highest, highest)}) {
        SliderState small = slider(0, 10);
        small.setSizes(size, {10, 20});
        small.setValue(10);
        EXPECT_EQ(small.knobPosition(), small.travel());
        small.press({2, 2});
        small.drag({highest / 2, 0});
        EXPECT_GE(small.value(), 0);
        EXPECT_LE(small.value(), 10);
    }
}

TEST(SliderState, DragKeepsItsHoldAndStopsAtTheEnds)
{
    SliderState state = slider(0, 10);
    state.setValue(5);                  // knob from 50 to 60
    EXPECT_FALSE(state.press({53, 3})); // held 3 pixels from its left
    EXPECT_EQ(state.value(), 5);
    EXPECT_TRUE(state.drag({64, -500}));
    EXPECT_EQ(state.knobPosition(), 61); // follows the pointer between the values
    EXPECT_EQ(state.value(), 6);
    state.drag({-1000, 0});
    EXPECT_EQ(state.knobPosition(), 0);
    EXPECT_EQ(state.value(), 0);
    state.drag({1000, 0});
    EXPECT_EQ(state.knobPosition(), 100);
    EXPECT_EQ(state.value(), 10);

    state.setValue(2); // a handler's value does not pull the knob out of the hand
    EXPECT_EQ(state.knobPosition(), 100);
    state.release();
    EXPECT_FALSE(state.drag({0, 0}));
    EXPECT_EQ(state.value(), 2);
}

TEST(SliderState, StepsStayInRange)
{
    const SliderState state = slider(lowest, highest);
    EXPECT_EQ(state.stepped(std::numeric_limits<qint64>::max()), highest);
    EXPECT_EQ(state.stepped(std::numeric_limits<qint64>::min()), lowest);
    EXPECT_EQ(slider(0, 255).pageStep(), 25);
    EXPECT_EQ(slider(0, 3).pageStep(), 1);
}

TEST(SliderMetrics, ControlTakesTheSizeOfItsPictures)
{
    const QSize none;
    const struct
    {
        QSize asked;
        QSize knob, rail, size;
    } cases[] = {
        {{150, 300}, {11, 21}, none, {150, 21}},
        {{150, 300}, {16, 16}, {120, 8}, {120, 20}}, // a narrow rail leaves 4 pixels round the knob
        {{150, 300}, {16, 16}, {120, 16}, {120, 16}},
        {{150, 300}, {16, 16}, {120, 30}, {120, 30}},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(sliderControlSize(c.asked, false, c.knob, c.rail), c.size);
        EXPECT_EQ(sliderControlSize(c.asked.transposed(), true, c.knob.transposed(), c.rail.transposed()),
                  c.size.transposed());
    }
    EXPECT_EQ(pictureRailRect({120, 20}, false, {120, 8}), QRect(0, 6, 120, 8));
    EXPECT_EQ(pictureRailRect({20, 120}, true, {8, 120}), QRect(6, 0, 8, 120));
}

} // namespace
} // namespace varnhold
