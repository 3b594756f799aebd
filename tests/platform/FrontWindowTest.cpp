#include "platform/FrontWindow.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QWidget>

namespace varnhold::test {

TEST(FrontWindow, IsTheOneThatWasActiveWhileTheFocusIsOnItsWay)
{
    QWidget windows[4];
    for (QWidget& window : windows)
        window.show();
    for (QWidget& window : windows) {
        window.activateWindow();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
        EXPECT_EQ(frontWindow(), &window);
        QApplication::setActiveWindow(nullptr);
        EXPECT_EQ(frontWindow(), &window);
    }
    windows[3].hide();
    EXPECT_TRUE(frontWindow() != nullptr && frontWindow()->isVisible());
}

} // namespace varnhold::test
