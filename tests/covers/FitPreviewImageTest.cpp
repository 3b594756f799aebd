#include "covers/FitPreviewImage.h"

#include <gtest/gtest.h>

namespace varnhold::test {

TEST(FitPreviewImage, FillsTheAreaOneWayAndStandsInTheMiddle)
{
    struct Case
    {
        QSize picture;
        QSize area;
        QRect expected;
    };
    const Case cases[] = {
        {{100, 50}, {200, 200}, {0, 50, 200, 100}},     // up
        {{1000, 2000}, {300, 200}, {100, 0, 100, 200}}, // down, the height decides
        {{30, 20}, {300, 200}, {0, 0, 300, 200}},
        {{3, 2}, {100, 100}, {0, 16, 100, 67}},
        {{16384, 1}, {100, 100}, {0, 49, 100, 1}}, // never thinner than a pixel
        {{1, 16384}, {100, 100}, {49, 0, 1, 100}},
        {{0, 10}, {100, 100}, {}},
        {{10, 10}, {100, 0}, {}},
    };
    for (const Case& each : cases)
        EXPECT_EQ(fitPreviewImage(each.picture, each.area), each.expected)
            << each.picture.width() << 'x' << each.picture.height();
}

} // namespace varnhold::test
