#include "platform/pictures/DrawScaled.h"

#include "support/PrintText.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace varnhold::test {

namespace {

using Pixels = std::vector<quint32>;

double cubic(double x)
{
    x = std::abs(x);
    return x < 1 ? 1.5 * x * x * x - 2.5 * x * x + 1 : x < 2 ? -0.5 * x * x * x + 2.5 * x * x - 4 * x + 2 : 0;
}

/// One channel of one drawn pixel by the plain formula: both directions at once, in double precision.
double plain(const Pixels& picture, QSize from, QSize to, int x, int y, unsigned shift)
{
    const double stepX = double(from.width()) / to.width();
    const double stepY = double(from.height()) / to.height();
    const double middleX = (x + 0.5) * stepX - 0.5;
    const double middleY = (y + 0.5) * stepY - 0.5;
    double sum = 0;
    double weights = 0;
    for (int v = 0; v < from.height(); ++v) {
        const double down = cubic((v - middleY) / std::max(1.0, stepY));
        for (int u = 0; u < from.width(); ++u) {
            const double weight = down * cubic((u - middleX) / std::max(1.0, stepX));
            sum += weight * (picture[size_t(v) * size_t(from.width()) + size_t(u)] >> shift & 0xFFU);
            weights += weight;
        }
    }
    return sum / weights;
}

Pixels drawn(const Pixels& picture, QSize from, QSize to, bool aspect, quint32 ground)
{
    Pixels target(size_t(to.width()) * size_t(to.height()), ground);
    drawScaled({picture.data(), from.width(), from.height(), from.width()},
               {target.data(), to.width(), to.height(), to.width()}, aspect);
    return target;
}

} // namespace

TEST(DrawScaled, FitsAndCentres)
{
    const struct
    {
        QSize picture;
        QSize target;
        bool aspect;
        QRect place;
    } rows[] = {
        {{100, 50}, {40, 40}, false, {0, 0, 40, 40}},
        {{100, 50}, {40, 40}, true, {0, 10, 40, 20}},
        {{50, 100}, {40, 40}, true, {10, 0, 20, 40}},
        {{2, 1}, {5, 5}, true, {0, 2, 5, 2}}, // 2.5 and 1.5
        {{1000, 1}, {10, 10}, true, {0, 4, 10, 1}},
        {{3, 3}, {7, 7}, true, {0, 0, 7, 7}},
        {{0, 5}, {7, 7}, true, {}},
        {{5, 5}, {0, 7}, false, {}},
    };
    for (const auto& row : rows)
        EXPECT_EQ(scaledPlace(row.picture, row.target, row.aspect), row.place)
            << row.picture.width() << " in " << row.target.width();
}

TEST(DrawScaled, StaysWithinTwoLevelsOfThePlainFormula)
{
    const QSize from(23, 17);
    Pixels picture;
    quint32 state = 7;
    for (int i = 0; i < from.width() * from.height(); ++i) {
        state = state * 1664525U + 1013904223U;
        picture.push_back(0xFF000000U | state >> 8U);
    }
    for (const QSize to : {QSize(23, 17), QSize(7, 5), QSize(60, 40), QSize(5, 40), QSize(1, 1)}) {
        const Pixels target = drawn(picture, from, to, false, 0xFFFFFFFFU);
        for (int y = 0; y < to.height(); ++y)
            for (int x = 0; x < to.width(); ++x)
                for (const unsigned shift : {0U, 8U, 16U}) {
                    const double wanted = std::clamp(plain(picture, from, to, x, y, shift), 0.0, 255.0);
                    const quint32 got = target[size_t(y) * size_t(to.width()) + size_t(x)] >> shift & 0xFFU;
                    ASSERT_NEAR(got, wanted, 2) << to.width() << ": " << x << ", " << y;
                }
    }
}

TEST(DrawScaled, OvershootsAtAStepAndShowsTheGroundThroughClearPixels)
{
    // A step of gray, three times as large: the cubic goes beyond both sides of it, a straight line would
    // not.
    const Pixels step = {0xFF404040, 0xFF404040, 0xFF404040, 0xFFC0C0C0, 0xFFC0C0C0, 0xFFC0C0C0};
    const Pixels large = drawn(step, {6, 1}, {18, 1}, false, 0xFFFFFFFF);
    EXPECT_LT(*std::min_element(large.begin(), large.end()), 0xFF3F3F3F);
    EXPECT_GT(*std::max_element(large.begin(), large.end()), 0xFFC1C1C1);

    // Colours are multiplied: what is clear lends no colour to its neighbours.
    const Pixels half = {0x80800000, 0x80800000, 0x00000000, 0x00000000};
    const Pixels over = drawn(half, {4, 1}, {4, 1}, false, 0xFFFFFFFF);
    EXPECT_EQ(over, (Pixels{0xFFFF7F7F, 0xFFFF7F7F, 0xFFFFFFFF, 0xFFFFFFFF}));
    for (const quint32 pixel : drawn(half, {4, 1}, {9, 1}, false, 0xFFFFFFFF)) {
        EXPECT_EQ(pixel >> 24U, 0xFFU) << "opaque on an opaque ground";
        EXPECT_EQ(pixel & 0xFFU, pixel >> 8U & 0xFFU) << "from white to pink, through no other colour";
    }
    // Outside its place the ground stays.
    EXPECT_EQ(drawn({0xFF000000}, {1, 1}, {1, 3}, true, 0xFFFFFFFF),
              (Pixels{0xFFFFFFFF, 0xFF000000, 0xFFFFFFFF}));
}

} // namespace varnhold::test
