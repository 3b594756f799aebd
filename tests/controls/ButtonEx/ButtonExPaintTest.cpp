#include "controls/ButtonEx/ButtonExPainter.h"

#include "controls/SystemColorsUi.h"

#include <gtest/gtest.h>

#include <QPainter>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

QImage painted(const ButtonExLook& look, double ratio = 1)
{
    QImage image(look.bevel.size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintButtonEx(painter, look);
    painter.end();
    return image;
}

ButtonExLook plain()
{
    ButtonExLook look;
    look.bevel.size = QSize(40, 20);
    look.backColor = 0x808080;
    return look;
}

TEST(ButtonExPaint, TheBevelIsLitFromAboveAndTurnsWhenPressed)
{
    ButtonExLook look = plain();
    const auto grey = [](const QImage& image, int x, int y) { return qGray(image.pixel(x, y)); };
    const QImage up = painted(look);
    EXPECT_GT(grey(up, 20, 1), grey(up, 20, 10));
    EXPECT_LT(grey(up, 20, 19), grey(up, 20, 10));
    look.bevel.state = 0;
    const QImage down = painted(look);
    EXPECT_LT(grey(down, 20, 0), grey(down, 20, 10));
    EXPECT_GT(grey(down, 20, 19), grey(down, 20, 10));
    // At ratio 2 each line is exactly two device pixels.
    look.bevel.state = 1;
    const QImage twice = painted(look, 2);
    EXPECT_EQ(twice.pixel(40, 1), twice.pixel(40, 0));
    EXPECT_NE(twice.pixel(40, 2), twice.pixel(40, 1));
}

TEST(ButtonExPaint, TheStatesOfABevelledButtonLookDifferent)
{
    for (const ColorValue back : {0xC8D0D4U, 0x000000U, 0xFFFFFFU, 0x2A1E14U}) {
        QList<QImage> images;
        for (const int state : {0, 1, 2, 3}) {
            ButtonExLook look = plain();
            look.backColor = back;
            look.bevel.state = state;
            images << painted(look);
        }
        for (qsizetype i = 0; i < images.size(); ++i) {
            for (qsizetype j = 0; j < i; ++j)
                EXPECT_NE(images[i], images[j]) << back << ": " << i << " and " << j;
        }
    }
}

TEST(ButtonExPaint, TheKeyboardHighlightShowsOnEveryFace)
{
    for (const QRgb color : {0xFF000000U, 0xFFFFFFFFU, 0xFF808080U, 0xFF30C0FFU}) {
        ButtonExLook look = plain();
        look.bevel.size = QSize(28, 14);
        look.bevel.appearance = 2;
        look.skinned = true;
        look.face = QImage(28, 14, QImage::Format_ARGB32_Premultiplied);
        look.face.fill(color);
        look.ring = true;
        const QImage image = painted(look);
        int strong = 0;
        for (int x = 0; x < 28; ++x) {
            for (int y = 0; y < 14; ++y)
                strong += std::abs(qGray(image.pixel(x, y)) - qGray(color)) > 90 ? 1 : 0;
        }
        EXPECT_GT(strong, 20) << color;
    }
}

TEST(ButtonExPaint, TheGlyphStandsBesideTheCaptionWithItsColourCut)
{
    ButtonExLook look = plain();
    look.glyph = QImage(8, 8, QImage::Format_ARGB32_Premultiplied);
    look.glyph.fill(Qt::red);
    look.glyph.setPixel(0, 0, 0);
    const QImage image = painted(look);
    EXPECT_EQ(image.pixel(6, 6), toQColor(look.backColor).rgb());
    EXPECT_EQ(image.pixel(7, 6), qRgb(255, 0, 0));
    EXPECT_EQ(image.pixel(13, 13), qRgb(255, 0, 0));
}

TEST(ButtonExPaint, ASecondMarkIsDrawnAndTheFirstUnderlines)
{
    ButtonExLook look = plain();
    look.caption = u"&A & B"_s;
    ButtonExLook unmarked = plain();
    unmarked.caption = u"A& & B"_s; // a mark before a blank is no mnemonic
    EXPECT_NE(painted(unmarked), painted(plain()));
    int rows = 0;
    for (int y = 0; y < look.bevel.size.height(); ++y) {
        const QRect row(0, y, look.bevel.size.width(), 1);
        rows += painted(look).copy(row) != painted(unmarked).copy(row) ? 1 : 0;
    }
    EXPECT_EQ(rows, 1) << "only the underline";
}

} // namespace
} // namespace varnhold
