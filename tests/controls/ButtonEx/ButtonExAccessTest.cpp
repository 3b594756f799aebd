#include "controls/ButtonEx/ButtonEx.h"

#include <gtest/gtest.h>

#include <QAccessible>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

TEST(ButtonExAccess, TellsRoleNameStateAndAction)
{
    ButtonEx button;
    button.setCaption(u"&Fetch"_s);
    QAccessibleInterface* access = QAccessible::queryAccessibleInterface(&button);
    ASSERT_TRUE(access);
    EXPECT_EQ(access->role(), QAccessible::Button);
    EXPECT_EQ(access->text(QAccessible::Name), u"Fetch");
    button.setToolTip(u"Maximize"_s);
    EXPECT_EQ(access->text(QAccessible::Name), u"Fetch");
    button.setCaption(u"1"_s); // a glyph in a symbol font
    EXPECT_EQ(access->text(QAccessible::Name), u"Maximize");

    int clicks = 0;
    QObject::connect(&button, &ButtonEx::Click, &button, [&] { ++clicks; });
    QAccessibleActionInterface* action = access->actionInterface();
    ASSERT_TRUE(action);
    action->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(clicks, 1);

    button.setStyle(1);
    button.setValue(1);
    EXPECT_EQ(access->role(), QAccessible::CheckBox);
    EXPECT_FALSE(access->state().checked);
    action->doAction(QAccessibleActionInterface::toggleAction());
    EXPECT_TRUE(access->state().checked);
    EXPECT_EQ(clicks, 2);
    button.setEnabled(false);
    EXPECT_TRUE(access->state().disabled);
    EXPECT_FALSE(action->actionNames().contains(QAccessibleActionInterface::toggleAction()));
}

} // namespace
} // namespace varnhold
