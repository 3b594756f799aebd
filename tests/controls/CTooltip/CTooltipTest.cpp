#include "controls/CTooltip/CTooltip.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QGuiApplication>
#include <QScreen>
#include <QTest>

#include <memory>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

class CTooltipOnOwner : public testing::Test
{
protected:
    void SetUp() override
    {
        QCursor::setPos(QGuiApplication::primaryScreen()->geometry().bottomRight());
        owner = std::make_unique<QWidget>();
        owner->setGeometry(100, 200, 200, 100);
        owner->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(owner.get()));
        tip.setTipText(u"text"_s);
        tip.setDelayTime(0);
    }

    void enter() { QCursor::setPos(owner->mapToGlobal(QPoint(50, 50))); }
    void leave() { QCursor::setPos(owner->mapToGlobal(QPoint(-50, -50))); }
    bool comes()
    {
        return QTest::qWaitFor([this] { return tip.window() != nullptr; }, 1000);
    }
    bool goes()
    {
        return QTest::qWaitFor([this] { return tip.window() == nullptr; }, 1000);
    }

    std::unique_ptr<QWidget> owner;
    CTooltip tip;
};

TEST_F(CTooltipOnOwner, ComesWithThePointerAndGoesWithIt)
{
    EXPECT_TRUE(tip.Create(owner.get()));
    enter();
    ASSERT_TRUE(comes());
    EXPECT_TRUE(tip.window()->windowFlags().testFlag(Qt::ToolTip));
    EXPECT_EQ(QAccessible::queryAccessibleInterface(tip.window())->role(), QAccessible::ToolTip);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(tip.window())->text(QAccessible::Name), u"text");
    leave();
    EXPECT_TRUE(goes());
    enter();
    EXPECT_TRUE(comes());
    QTest::keyClick(owner.get(), Qt::Key_A);
    EXPECT_TRUE(goes());
}

TEST_F(CTooltipOnOwner, CreatedUnderThePointerItComesToo)
{
    enter();
    tip.setVisibleTime(1);
    tip.Create(owner.get());
    EXPECT_TRUE(comes());
    EXPECT_TRUE(goes()) << "its time is over";
    tip.Create(owner.get());
    EXPECT_TRUE(comes()) << "a new one starts anew";
    tip.Destroy();
    EXPECT_FALSE(tip.window());
    EXPECT_FALSE(tip.exists());
}

TEST_F(CTooltipOnOwner, TextAndTitleChangeTheShownOne)
{
    tip.setStyle(1);
    tip.Create(owner.get());
    enter();
    ASSERT_TRUE(comes());
    const QSize before = tip.window()->size();
    EXPECT_FALSE(tip.window()->mask().contains(QPoint(0, 0))) << "balloon";
    tip.setTipText(u"a much longer text\r\nof two lines"_s);
    const QSize longer = tip.window()->size();
    EXPECT_GT(longer.width(), before.width());
    tip.setIcon(1);
    EXPECT_EQ(tip.window()->size(), longer);
    tip.setTitle(u"Title"_s);
    EXPECT_GT(tip.window()->height(), longer.height());
}

TEST_F(CTooltipOnOwner, EndsWithItsOwner)
{
    tip.Create(owner.get());
    enter();
    ASSERT_TRUE(comes());
    owner.reset();
    EXPECT_FALSE(tip.window());
    EXPECT_FALSE(tip.exists());
    tip.setTipText(u"still safe"_s);
    tip.Destroy();
    EXPECT_FALSE(tip.Create(nullptr));
}

TEST_F(CTooltipOnOwner, WithoutTextItDoesNotCome)
{
    tip.setTipText(QString());
    tip.setTitle(u"Title"_s);
    tip.Create(owner.get());
    enter();
    EXPECT_FALSE(QTest::qWaitFor([this] { return tip.window() != nullptr; }, 150));
}

} // namespace
} // namespace varnhold
