#include "platform/ShapedWindow.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QScreen>
#include <QTest>

namespace varnhold::test {

TEST(ShapedWindow, LeavesBlankWhatIsCutAwayWhereThePlatformBlendsInsteadOfCutting)
{
    ShapedWindow window(nullptr);
    window.resize(40, 30);
    window.setAttribute(Qt::WA_TranslucentBackground);
    QPixmap picture(40, 20);
    picture.fill(Qt::red);
    window.setPicture(picture);
    window.setPalette(QPalette(Qt::blue));
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    // What the window hands to the platform.
    const auto shown = [&window](int x, int y) {
        window.repaint();
        return window.screen()->grabWindow(window.winId()).toImage().pixelColor(x, y);
    };
    EXPECT_EQ(shown(5, 5), QColor(Qt::red));
    const QRegion whole(0, 0, 40, 30);
    window.setShape(whole - QRegion(30, 0, 10, 10));
    EXPECT_EQ(shown(5, 5), QColor(Qt::red));
    window.setShape(whole - QRegion(0, 0, 10, 10));
    EXPECT_EQ(shown(35, 5), QColor(Qt::red)) << "no longer cut";
    EXPECT_EQ(shown(5, 5), QColor(Qt::black)) << "blank; the picture taken has no transparency";
    EXPECT_EQ(shown(15, 5), QColor(Qt::red));
    EXPECT_EQ(shown(15, 25), QColor(Qt::blue)) << "where the picture ends";
}

} // namespace varnhold::test
