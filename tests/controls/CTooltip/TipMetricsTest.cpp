#include "controls/CTooltip/TipMetrics.h"

#include <gtest/gtest.h>

#include <vector>

namespace varnhold {
namespace {

const QRect screen(0, 0, 800, 600);

TEST(TipMetrics, StandsWhereThereIsRoom)
{
    struct Case
    {
        const char* name;
        bool balloon, centered;
        QPoint pointer;
        QRect owner, window;
    };
    const QSize body(200, 60);
    const QRect owner(100, 100, 300, 40);
    const std::vector<Case> cases = {
        {"rectangle below the arrow", false, false, {200, 110}, owner, {200, 130, 200, 60}},
        {"rectangle at the foot", false, false, {200, 590}, owner, {200, 528, 200, 60}},
        {"rectangle at the right", false, false, {790, 110}, owner, {600, 130, 200, 60}},
        {"balloon above", true, false, {200, 110}, owner, {178, 34, 200, 74}},
        {"balloon at the top goes below", true, false, {200, 20}, owner, {178, 40, 200, 74}},
        {"balloon at the left", true, false, {3, 300}, owner, {0, 224, 200, 74}},
        {"centred under its owner", false, true, {0, 0}, owner, {149, 142, 200, 60}},
        {"centred balloon", true, true, {0, 0}, owner, {149, 142, 200, 74}},
        {"centred, no room below", true, true, {0, 0}, {100, 560, 300, 40}, {149, 484, 200, 74}},
    };
    for (const Case& one : cases) {
        const TipPlace place = placeTip({body, one.balloon, one.centered, one.pointer, one.owner, screen});
        EXPECT_EQ(place.window, one.window) << one.name << " " << place.window.x() << " " << place.window.y();
        EXPECT_EQ(place.hasTail, one.balloon) << one.name;
    }
}

TEST(TipMetrics, TheTailEndsAtThePointerAndStaysOnTheBody)
{
    for (const int x : {0, 5, 100, 400, 795, 799}) {
        for (const int y : {2, 300, 599}) {
            const QPoint pointer(x, y);
            const TipPlace place = placeTip({QSize(200, 60), true, false, pointer, QRect(), screen});
            EXPECT_TRUE(screen.contains(place.window)) << x << " " << y;
            const QPoint tip = place.tail[1] + place.window.topLeft();
            EXPECT_EQ(tip.x(), x);
            EXPECT_LE(std::abs(tip.y() - y), 20);
            EXPECT_GE(place.tail[0].x(), place.body.left());
            EXPECT_LE(place.tail[2].x(), place.body.right() + 1);
        }
    }
    // Larger than the screen: from its corner on.
    const TipPlace huge = placeTip({QSize(2000, 900), true, false, QPoint(400, 300), QRect(), screen});
    EXPECT_EQ(huge.window.topLeft(), QPoint(0, 0));
    const TipPlace tiny = placeTip({QSize(1, 1), true, false, QPoint(400, 300), QRect(), screen});
    EXPECT_EQ(tiny.body.size(), QSize(1, 1));
}

} // namespace
} // namespace varnhold
