#include "controls/CTooltip/TipRest.h"

#include <gtest/gtest.h>

#include <vector>

namespace varnhold {
namespace {

using Act = TipRest::Act;

struct Step
{
    quint32 now;
    int x; ///< -1: not on the owner; -2: a press
    Act expected;
};

void run(const char* name, TipRest rest, const std::vector<Step>& steps, quint32 start = 0)
{
    for (const Step& step : steps) {
        const Act act =
            step.x == -2 ? rest.dismiss() : rest.pointerAt(QPoint(step.x, 5), step.x >= 0, start + step.now);
        EXPECT_EQ(act, step.expected) << name << " at " << step.now;
    }
}

TEST(TipRest, ComesAfterRestAndGoesAfterItsTime)
{
    TipRest rest;
    rest.setTimes(500, 2000);
    const std::vector<Step> plain = {{0, 1, Act::None},     {499, 1, Act::None},  {500, 1, Act::Show},
                                     {600, 9, Act::None}, // a move on the owner does not hide it
                                     {2499, 9, Act::None},  {2500, 9, Act::Hide}, {9000, 9, Act::None},
                                     {9001, -1, Act::None}, {9002, 1, Act::None}, {9502, 1, Act::Show}};
    run("plain", rest, plain);
    run("over the clock's end", rest, plain, 0xFFFFFE00U);
    run("moving", rest,
        {{0, 1, Act::None},
         {400, 2, Act::None},
         {800, 3, Act::None},
         {1299, 3, Act::None},
         {1300, 3, Act::Show}});
    run("leaving", rest,
        {{0, 1, Act::None},
         {300, -1, Act::None},
         {600, 1, Act::None},
         {1100, 1, Act::Show},
         {1200, -1, Act::Hide},
         {1300, -1, Act::None}});
    run("pressed before", rest, {{0, 1, Act::None}, {100, -2, Act::None}, {900, 1, Act::None}});
    run("pressed while shown", rest,
        {{0, 1, Act::None}, {500, 1, Act::Show}, {600, -2, Act::Hide}, {1800, 1, Act::None}});

    TipRest hurried;
    hurried.setTimes(0, 0);
    run("no times", hurried, {{0, 1, Act::Show}, {0, 1, Act::Hide}, {1, 1, Act::None}});
    TipRest platforms;
    platforms.setTimes(-1, -1);
    run("platform's times", platforms,
        {{0, 1, Act::None}, {500, 1, Act::Show}, {5499, 1, Act::None}, {5500, 1, Act::Hide}});
}

} // namespace
} // namespace varnhold
