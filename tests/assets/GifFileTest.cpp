// Pictures as another reader of the format sees them.

#include "GifFile.h"
#include "Surface.h"

#include <gtest/gtest.h>

#include <QImage>

#include <cstdlib>
#include <functional>

namespace varnhold::test {

namespace {

using assets::Color;
using assets::Picture;
using assets::Size;

Picture painted(Size size, const std::function<Color(int x, int y)>& color)
{
    Picture picture(size, assets::rgb(0));
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x)
            picture.set(x, y, color(x, y));
    }
    return picture;
}

/// The largest step in any channel between a picture and what is read from its file; -1 if it cannot be read.
int farthestStep(const Picture& picture)
{
    const QImage read = QImage::fromData(QByteArray::fromStdString(assets::gifFile(picture)), "GIF");
    if (read.size() != QSize(picture.width(), picture.height()))
        return -1;
    int farthest = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const QRgb there = read.pixel(x, y);
            const Color meant = picture.at(x, y);
            farthest = std::max({farthest, std::abs(qRed(there) - assets::redOf(meant)),
                                 std::abs(qGreen(there) - assets::greenOf(meant)),
                                 std::abs(qBlue(there) - assets::blueOf(meant))});
        }
    }
    return farthest;
}

Color grey(int level)
{
    return assets::rgb(static_cast<Color>(level) * 0x010101U);
}

} // namespace

TEST(GifFile, KeepsUpTo256ColorsExactly)
{
    struct Case
    {
        const char* what;
        Size size;
        std::function<Color(int, int)> color;
    };
    const auto noise = [](int x, int y) { return grey(assets::noiseAt(7, x, y) / 256); };
    const Case cases[] = {
        {"a single pixel", {1, 1}, [](int, int) { return assets::rgb(0x123456); }},
        {"one colour, runs of all lengths", {300, 300}, [](int, int) { return assets::rgb(0xC0FFEE); }},
        {"two colours", {37, 11}, [](int x, int y) { return grey((x + y) % 2 * 255); }},
        {"256 greys", {256, 3}, [](int x, int) { return grey(x); }},
        {"noise that fills the code table again and again", {256, 296}, noise},
    };
    for (const Case& one : cases)
        EXPECT_EQ(farthestStep(painted(one.size, one.color)), 0) << one.what;
    // Ends at every length of a last block and on both sides of every change of code length.
    for (int length = 2; length < 1200; ++length)
        ASSERT_EQ(farthestStep(painted({length, 1}, noise)), 0) << length;
}

TEST(GifFile, PutsNearOnesTogetherWhenThereAreMore)
{
    const Picture ramps = painted({256, 296}, [](int x, int y) {
        return assets::rgb(static_cast<Color>(x) << 16 | static_cast<Color>(y / 2) << 8 | 0x40U);
    });
    EXPECT_LE(farthestStep(ramps), 14);
    const Picture lamp = painted({256, 296}, [](int x, int y) {
        return x == 9 && y == 9 ? assets::rgb(0xFF0000) : assets::rgb(static_cast<Color>(x << 8 | y / 2));
    });
    const QImage read = QImage::fromData(QByteArray::fromStdString(assets::gifFile(lamp)));
    EXPECT_GT(qRed(read.pixel(9, 9)), 200) << "a single pixel of another colour is lost";
}

} // namespace varnhold::test
