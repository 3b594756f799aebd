#include "controls/CTooltip/TipPainter.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QPainter>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

TipContent content(const QString& text)
{
    TipContent made;
    made.text = text;
    made.font = QGuiApplication::font();
    made.balloon = true;
    return made;
}

const QSize most(520, 400);

TEST(TipPainter, KeepsLinesTabsAndBlanks)
{
    const QSize one = tipBodySize(content(u"a b"_s), most);
    EXPECT_GT(tipBodySize(content(u"a      b"_s), most).width(), one.width());
    EXPECT_GT(tipBodySize(content(u"a\tb"_s), most).width(), one.width());
    const QSize two = tipBodySize(content(u"a\r\nb"_s), most);
    EXPECT_GT(two.height(), one.height());
    EXPECT_EQ(two, tipBodySize(content(u"a\nb"_s), most)) << "CR LF is one line end";
}

TEST(TipPainter, StaysInsideItsLimits)
{
    for (const QString& text :
         {QString(10000, u'W'), QString(5000, u'\n'), QString(), u"\u05e9\u05dc\u05d5\u05dd"_s}) {
        TipContent long1 = content(text);
        long1.title = text;
        long1.icon = 1;
        const QSize size = tipBodySize(long1, most);
        EXPECT_LE(size.width(), most.width());
        EXPECT_LE(size.height(), most.height());
    }
}

TEST(TipPainter, TheIconStandsBesideATitleOnly)
{
    TipContent with = content(u"text"_s);
    with.icon = 1;
    EXPECT_EQ(tipBodySize(with, most), tipBodySize(content(u"text"_s), most));
    with.title = u"Title"_s;
    TipContent without = with;
    for (const int none : {0, -1, 7, 99}) {
        without.icon = none;
        EXPECT_GT(tipBodySize(with, most).width(), tipBodySize(without, most).width()) << none;
    }
}

TEST(TipPainter, PlatformTextCanBeReadOnAnyBackColour)
{
    TipContent made = content(u"x"_s);
    EXPECT_EQ(tipTextColor(made), QColor(Qt::black));
    made.backColor = 0x331A0A;
    EXPECT_EQ(tipTextColor(made), QColor(Qt::white));
    made.textColor = 0x0000FF;
    EXPECT_EQ(tipTextColor(made), QColor(255, 0, 0)) << "a colour that was set stands";
}

TEST(TipPainter, TheBalloonHasHardEdgesAClosedBorderAndATail)
{
    TipRequest request;
    request.body = QSize(120, 50);
    request.balloon = true;
    request.pointer = QPoint(300, 300);
    request.screen = QRect(0, 0, 800, 600);
    const TipPlace place = placeTip(request);
    const QImage shape = tipShape(place, true);
    ASSERT_EQ(shape.size(), place.window.size());
    EXPECT_EQ(qAlpha(shape.pixel(0, 0)), 0) << "rounded";
    EXPECT_EQ(qAlpha(shape.pixel(60, 25)), 255);
    for (int y = 0; y < shape.height(); ++y) {
        for (int x = 0; x < shape.width(); ++x)
            ASSERT_TRUE(qAlpha(shape.pixel(x, y)) == 0 || qAlpha(shape.pixel(x, y)) == 255);
    }
    QImage image(shape.size(), QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    paintTip(painter, content(QString()), place, shape);
    painter.end();
    const QRgb back = tipBackColor(content(QString())).rgb();
    EXPECT_EQ(image.pixel(60, 25), back);
    EXPECT_NE(image.pixel(0, 25), back) << "border";
    EXPECT_EQ(image.pixel(place.tail[1].x() + 2, place.body.bottom() + 1), back) << "open into the tail";
}

} // namespace
} // namespace varnhold
