#include "controls/ButtonEx/TransparentCopy.h"

#include <gtest/gtest.h>

#include <QPainter>

namespace varnhold {
namespace {

constexpr QRgb red = 0xFFFF0000;
constexpr QRgb green = 0xFF00FF00;
constexpr QRgb white = 0xFFFFFFFF;

QImage filled(int width, int height, QRgb color)
{
    QImage image(width, height, QImage::Format_ARGB32_Premultiplied);
    image.fill(color);
    return image;
}

/// 4 x 4 green with a red ring of one pixel: the key at (0, 0) is red, the one at (1, 1) green.
QImage ring()
{
    QImage image = filled(4, 4, red);
    for (int y = 1; y < 3; ++y) {
        for (int x = 1; x < 3; ++x)
            image.setPixel(x, y, green);
    }
    return image;
}

TEST(TransparentCopy, CutsByColourOrByThePicturesOwn)
{
    EXPECT_EQ(qAlpha(cutColor(ring(), 0x0000FF).pixel(0, 0)), 0) << "0x00BBGGRR";
    EXPECT_EQ(cutColor(ring(), 0x0000FF).pixel(1, 1), green);
    EXPECT_EQ(qAlpha(cutColor(ring(), colorOfPicture).pixel(1, 1)), 0);
    EXPECT_EQ(cutColor(ring(), 0xFF0000).pixel(0, 0), red);
    EXPECT_EQ(cutColor(filled(1, 1, red), colorOfPicture).pixel(0, 0), red) << "no pixel at (1, 1)";
    QImage clear = filled(3, 3, 0);
    clear.setPixel(2, 2, 0xFF000000);
    EXPECT_EQ(cutColor(clear, colorOfPicture).pixel(2, 2), 0xFF000000) << "clear is not black";
    EXPECT_TRUE(cutColor(QImage(), 0).isNull());
}

TEST(TransparentCopy, LeavesTheDestinationWhereThePictureIsCut)
{
    QImage whole = filled(6, 6, white);
    maskCopy(whole, QPoint(1, 1), ring(), QSize(4, 4), 0x0000FF);
    EXPECT_EQ(whole.pixel(1, 1), white);
    EXPECT_EQ(whole.pixel(2, 2), green);
    QImage clipped = filled(6, 6, white);
    maskCopy(clipped, QPoint(1, 1), ring(), QSize(4, 4), 0x0000FF, QRect(3, 0, 3, 6));
    EXPECT_EQ(clipped.pixel(2, 2), white);
    EXPECT_EQ(clipped.pixel(3, 2), green);
    QImage part = filled(6, 6, white);
    maskCopy(part, QPoint(0, 0), ring(), QSize(2, 99), 0x0000FF);
    EXPECT_EQ(part.pixel(1, 1), green);
    EXPECT_EQ(part.pixel(2, 1), white);

    QImage held = filled(6, 6, white);
    EXPECT_TRUE(pictureCopy(held, QPoint(0, 0), ring()));
    EXPECT_EQ(held.pixel(0, 0), white) << "the key is the pixel at (0, 0)";
    EXPECT_EQ(held.pixel(1, 1), green);
    EXPECT_FALSE(pictureCopy(held, QPoint(0, 0), QImage()));
}

TEST(TransparentCopy, StaysSharpAtEveryRatio)
{
    QImage source = filled(2, 1, white);
    source.setPixel(1, 0, 0xFF000000);
    struct Case
    {
        double ratio;
        std::vector<int> greys;
    };
    for (const Case& one : {Case{1, {255, 0}}, Case{1.5, {255, 127, 0}}, Case{2, {255, 255, 0, 0}}}) {
        QImage device(static_cast<int>(one.greys.size()), 2, QImage::Format_ARGB32_Premultiplied);
        device.fill(Qt::red);
        device.setDevicePixelRatio(one.ratio);
        QPainter painter(&device);
        drawSharp(painter, QPoint(0, 0), source);
        painter.end();
        for (int x = 0; x < device.width(); ++x)
            EXPECT_NEAR(qRed(device.pixel(x, 0)), one.greys.at(static_cast<std::size_t>(x)), 2)
                << one.ratio << " " << x;
    }
}

} // namespace
} // namespace varnhold
