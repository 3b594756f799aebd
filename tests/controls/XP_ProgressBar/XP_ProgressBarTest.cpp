// The widget: pixels at several ratios, properties, what assistive tools see.

#include "controls/XP_ProgressBar/XP_ProgressBar.h"

#include "controls/DesignValues.h"
#include "controls/SystemColorsUi.h"
#include "controls/XP_ProgressBar/ProgressLooks.h"
#include "controls/XP_ProgressBar/QtProgressSurface.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QSet>
#include <QTest>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;
namespace look = design::progresslook;

QImage rendered(int scrolling, qreal ratio, QSize client = {97, 20})
{
    ProgressState state;
    state.color = 0x00D07A1E;
    state.scrolling = scrolling;
    state.setValue(60);
    QImage image((QSizeF(client) * ratio).toSize(), QImage::Format_RGB32);
    image.fill(Qt::magenta);
    QtProgressSurface surface(image, client, ratio, QFont(), QPixmap());
    PBarDraw(state, surface);
    return image;
}

QSet<QRgb> colorsOf(const QImage& image)
{
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colors.insert(image.pixel(x, y));
    }
    return colors;
}

// No tolerance: nothing is antialiased but text, which is off here, so a pixel is right or wrong.
TEST(XP_ProgressBarPixels, StaySharpAtEveryRatio)
{
    for (int scrolling = 0; scrolling <= 9; ++scrolling) {
        const QImage plain = rendered(scrolling, 1);
        const QSet<QRgb> palette = colorsOf(plain);
        EXPECT_FALSE(palette.contains(QColor(Qt::magenta).rgb())) << "a hole in look " << scrolling;
        for (const qreal ratio : {1.25, 1.5, 2.0})
            EXPECT_EQ(colorsOf(rendered(scrolling, ratio)) - palette, QSet<QRgb>()) << "look " << scrolling;
        if (scrolling == look::brush) // a hatch keeps lines of whole pixels instead of growing them
            continue;
        EXPECT_EQ(rendered(scrolling, 2), plain.scaled(plain.size() * 2)) << "look " << scrolling;
    }
}

TEST(XP_ProgressBarPixels, EdgesAndHatchesAreThePlatforms)
{
    const QImage etched = rendered(look::sunken, 1);
    EXPECT_EQ(etched.pixelColor(50, 0), QColor(0x80, 0x80, 0x80));
    EXPECT_EQ(etched.pixelColor(90, 1), QColor(Qt::white));
    EXPECT_EQ(etched.pixelColor(50, 19), QColor(Qt::white));
    EXPECT_EQ(etched.pixelColor(50, 18), QColor(0x80, 0x80, 0x80));

    // On pixels of an 8 x 8 tile, by the platform's number; 6 is none of them and fills.
    const int expected[] = {8, 8, 8, 8, 15, 14, 64};
    for (int style = 0; style <= 6; ++style) {
        QImage image(8, 8, QImage::Format_RGB32);
        QtProgressSurface surface(image, {8, 8}, 1, QFont(), QPixmap());
        surface.fillHatch({0, 0, 8, 8}, style, 0x000000, 0xFFFFFF);
        int on = 0;
        for (int at = 0; at < 64; ++at)
            on += image.pixelColor(at % 8, at / 8) == QColor(Qt::black) ? 1 : 0;
        EXPECT_EQ(on, expected[style]) << "hatch " << style;
        EXPECT_EQ(image.pixelColor(3, 3) == QColor(Qt::black), style == 2 || style >= 5) << "hatch " << style;
    }
}

TEST(XP_ProgressBar, TakesItsPropertiesByName)
{
    XP_ProgressBar bar;
    for (const char* name : {"BrushStyle", "Color", "Image", "Scrolling", "ShowText"})
        EXPECT_TRUE(bar.property(name).isValid()) << name;
    bar.setProperty("Max", 800);
    bar.setProperty("Min", 2);
    bar.setProperty("Value", 40);
    EXPECT_EQ(bar.property("Value"), 160); // 40 % of 800, over 2
    bar.setProperty("Value", 4000);
    EXPECT_EQ(bar.property("Value"), 400);
    bar.setProperty("Orientation", 1);
    bar.setProperty("Orientation", 7);
    EXPECT_EQ(bar.property("Orientation"), 1);
}

class PaintCount : public QObject
{
public:
    int paints = 0;

protected:
    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }
};

TEST(XP_ProgressBar, ShowsAValueBeforeTheEventLoopTurns)
{
    XP_ProgressBar bar;
    PaintCount count;
    bar.resize(97, 20);
    bar.setScrolling(look::pastel);
    bar.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bar));
    bar.setColor(0x00D07A1E);
    bar.installEventFilter(&count);
    for (const int percent : {59, 60, 60, 60, 60})
        bar.setValue(percent);
    EXPECT_EQ(count.paints, 2); // one for each that is new
    EXPECT_EQ(bar.hdc(), rendered(look::pastel, 1));
}

TEST(XP_ProgressBar, DrawsAtAnySize)
{
    XP_ProgressBar bar;
    bar.setShowText(true);
    bar.setValue(100);
    for (int scrolling = -1; scrolling <= 10; ++scrolling) {
        bar.setScrolling(scrolling);
        for (const QSize size : {QSize(0, 0), QSize(1, 1), QSize(300, 1), QSize(1, 300), QSize(7, 7)}) {
            bar.resize(size);
            EXPECT_EQ(bar.grab().size(), size);
        }
    }
}

TEST(XP_ProgressBar, TellsAssistiveToolsThePercentage)
{
    XP_ProgressBar bar;
    bar.setMax(5000);
    bar.setValue(30);
    bar.setAccessibleName(u"Progress"_s);
    QAccessibleInterface* seen = QAccessible::queryAccessibleInterface(&bar);
    ASSERT_NE(seen, nullptr);
    ASSERT_NE(seen->valueInterface(), nullptr);
    EXPECT_EQ(seen->role(), QAccessible::ProgressBar);
    EXPECT_EQ(seen->valueInterface()->currentValue(), 30);
    EXPECT_EQ(seen->valueInterface()->maximumValue(), 100);
    EXPECT_EQ(seen->text(QAccessible::Value), u"30 %"_s);
    EXPECT_EQ(seen->text(QAccessible::Name), u"Progress"_s);
}

} // namespace
} // namespace varnhold
