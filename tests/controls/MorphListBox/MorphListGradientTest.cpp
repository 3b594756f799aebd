#include "controls/MorphListBox/MorphListGradient.h"

#include <gtest/gtest.h>

#include <QSize>

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace varnhold {

namespace {

std::vector<quint32> pixelsOf(const MorphGradient& gradient)
{
    std::vector<quint32> pixels(size_t(gradient.width) * size_t(gradient.height));
    paintMorphGradient(gradient, pixels.data(), gradient.width);
    return pixels;
}

/// The formula, pixel by pixel, with doubles cut down to the whole steps that it names.
std::vector<quint32> byFormula(const MorphGradient& gradient)
{
    const int w = gradient.width;
    const int h = gradient.height;
    const int a = ((int(90 - gradient.angle) % 360) + 360) % 360;
    const int rest = a % 90;
    const bool odd = a / 90 % 2 == 1;
    const double diagonal = std::atan(odd ? double(h) / w : double(w) / h) * 57.2957763671875;
    const int length =
        std::max(1, int(std::hypot(w, h) * std::sin((90 - std::abs(rest - diagonal)) * 0.01745329238474369)));
    const float turn = odd ? 1.5707964F - float(rest) * 0.017453292F : float(rest) * 0.017453292F;
    const int stepX = int(std::sin(turn) * 1000.0F);
    const int stepY = std::max(0, int(std::cos(turn) * 1000.0F));
    const bool swapped = a / 90 > 1 && !gradient.middleOut;
    const std::vector<quint32> ramp =
        morphRamp(length, swapped ? gradient.color2 : gradient.color1,
                  swapped ? gradient.color1 : gradient.color2, gradient.middleOut);
    std::vector<quint32> pixels;
    for (int y = 0; y < h; ++y) {
        for (int x = 0; x < w; ++x) {
            const int index = (x * stepX + (odd ? h - 1 - y : y) * stepY) / 1000;
            pixels.push_back(ramp[size_t(std::min(index, length - 1))]);
        }
    }
    return pixels;
}

} // namespace

TEST(MorphListGradient, EqualsTheFormulaAtEveryAngle)
{
    for (const QSize size :
         {QSize(37, 61), QSize(61, 37), QSize(150, 20), QSize(1, 9), QSize(9, 1), QSize(1, 1)}) {
        for (int angle = -360; angle <= 720; ++angle) {
            for (const bool middleOut : {false, true}) {
                const MorphGradient gradient{size.width(), size.height(), 0x204060, 0xF0A010,
                                             float(angle), middleOut,     false};
                ASSERT_EQ(pixelsOf(gradient), byFormula(gradient))
                    << size.width() << "x" << size.height() << " at " << angle;
            }
        }
    }
}

TEST(MorphListGradient, RampsRunFromEndToEndAndBackFromTheMiddle)
{
    EXPECT_EQ(morphRamp(3, 0x0000FF, 0xFF0000, false),
              (std::vector<quint32>{0xFFFF0000, 0xFF80007F, 0xFF0000FF})); // 255 - 127.5 truncates the change
    EXPECT_EQ(morphRamp(1, 0x102030, 0xFFFFFF, false), std::vector<quint32>{0xFF302010});
    EXPECT_EQ(morphRamp(5, 0, 0x040404, true),
              (std::vector<quint32>{0xFF000000, 0xFF020202, 0xFF040404, 0xFF020202, 0xFF000000}));
    for (const int length : {2, 3, 7, 100, 255, 256, 511, 4099, 65536}) {
        const std::vector<quint32> ramp = morphRamp(length, 0x0A00FF, 0xFFFE01, false);
        for (int k = 0; k < length; ++k) {
            const int last = length - 1;
            const quint32 exact = 0xFF000000U | quint32(255 - 254LL * k / last) << 16U |
                                  quint32(254LL * k / last) << 8U | quint32(10 + 245LL * k / last);
            ASSERT_EQ(ramp[size_t(k)], exact) << k << " of " << length;
        }
    }
    EXPECT_EQ(morphRamp(4, 0x8000000F, 0x8000000F, false).front() >> 24U, 0xFFU) << "system colours resolve";
}

TEST(MorphListGradient, CirclesAreTheSameInAllQuarters)
{
    for (const QSize size : {QSize(21, 33), QSize(20, 32), QSize(1, 7), QSize(2, 1)}) {
        const int w = size.width();
        const int h = size.height();
        const std::vector<quint32> pixels = pixelsOf({w, h, 0, 0xFFFFFF, 45, true, true});
        const int radius = int(std::hypot(w, h)) / 2;
        for (int y = 0; y < h; ++y) {
            for (int x = 0; x < w; ++x) {
                const quint32 pixel = pixels[size_t(y * w + x)];
                EXPECT_EQ(pixel, pixels[size_t((h - 1 - y) * w + (w - 1 - x))]);
                EXPECT_EQ(pixel, pixels[size_t(y * w + (w - 1 - x))]);
                // Right and below the middle, distances count from the first pixel there.
                const int dx = x - w / 2;
                const int dy = y - h / 2;
                const int ring = std::min(radius, int(std::sqrt(dx * dx + dy * dy)));
                if (dx >= 0 && dy >= 0 && ring > 0) {
                    EXPECT_EQ(int(pixel & 0xFFU), 255 * (radius - ring) / radius) << x << "," << y;
                }
            }
        }
    }
}

TEST(MorphListGradient, FlatColoursAndNoSize)
{
    const std::vector<quint32> flat = pixelsOf({9, 9, 0x112233, 0x112233, 45, true, false});
    EXPECT_EQ(std::count(flat.begin(), flat.end(), 0xFF332211U), 81);
    quint32 untouched = 5;
    for (const QSize size : {QSize(0, 3), QSize(3, 0), QSize(-1, -1)}) {
        paintMorphGradient({size.width(), size.height(), 0, 0, 0, false, false}, &untouched, 1);
        paintMorphGradient({size.width(), size.height(), 0, 0, 0, false, true}, &untouched, 1);
    }
    EXPECT_EQ(untouched, 5U);
}

} // namespace varnhold
