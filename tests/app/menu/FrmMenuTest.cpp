#include "../AppWorld.h"

#include "app/menu/MenuCommands.h"
#include "app/menu/frmMenu.h"

#include <QAction>
#include <QMenu>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

struct FrmMenu : testing::Test, AppWorld
{
    /// A popup's visible entries by name, "+" before an enabled one; submenus in brackets.
    [[nodiscard]] QString entries(const char* name, bool hiddenToo = false) const
    {
        return entriesOf(*menu.findChild<QMenu*>(QLatin1StringView(name)), hiddenToo);
    }
    [[nodiscard]] static QString entriesOf(const QMenu& popup, bool hiddenToo)
    {
        QStringList names;
        for (const QAction* const entry : popup.actions()) {
            const auto* const submenu = entry->menu<QMenu*>();
            if (submenu != nullptr)
                names << submenu->objectName() + u'[' + entriesOf(*submenu, hiddenToo) + u']';
            else if (entry->isVisible() || hiddenToo)
                names << (entry->isEnabled() && !entry->isSeparator() ? u"+"_s : QString()) +
                             entry->objectName();
        }
        return names.join(u' ');
    }

    MenuCommands commands;
    frmMenu menu{commands, sounds};
};

} // namespace

TEST_F(FrmMenu, HasEveryPopupInItsOrder)
{
    const struct
    {
        const char* popup;
        QString title;
        QString entries;
    } cases[] = {
        {"mnuMenu", u"Menu"_s,
         u"mnuDB[mnuOpen line000 mnuLBAdd mnuDB_Backup mnuImport mnuSearch mnuUpdateDB] line0 mnuSettings "
         "mnuThumbnail line001 mnuWebOpen mnuRaw line002 mnuExit"_s},
        {"mnuLBox", u"Menu"_s,
         u"mnuLBIcons mnuCopyTo line003 mnuCovers[mnuCoverPath mnuGoogle] line004 mnuLBxDelete"_s},
        {"mnuLView", u"Menu"_s,
         u"mnuLVCheckBxs line006 mnuDLoad mnuMarkDL line007 mnuLVCopyLink mnuLVListText line008 mnuExplore "
         "mnuOpenDir mnuReNameDir line009 mnuKill"_s},
        {"mnuRTXT", u"mnu"_s,
         u"mnuUndo space000 mnuCut mnuCopy mnuPaste mnuDelete space001 mnuSelectAll mnuFormat[mnuFont "
         "space002 mnuColorBlack mnuColorBlue mnuColorCyan mnuColorGray mnuColorGreen mnuColorOrange "
         "mnuColorPink mnuColorPurple mnuColorRed mnuColorWhite mnuColorYellow space003 mnuColor]"_s},
        {"mnuSkins", u"Menu"_s, u"mnuSkinDL mnuSkin_Refresh mnuSkin_Path"_s},
        {"mnuImage", u"Menu"_s, u"mnuImageView space000001 mnuImageExplore mnuImageOpen"_s},
        {"mnuSrch", u"Menu"_s, u"mnuCpy space0021 mnuSrchCopy"_s},
        {"mnuLstTxt", u"Menu"_s,
         u"mnuLTTools space0000001 mnuLTUndo space0000002 mnuLTCut mnuLTCopy mnuLTPaste mnuLTDelete "
         "space0000003 mnuLTSelectAll"_s},
        {"mnulstView", u"Menu"_s, u"mnuLstVwDL space0000004 mnuLstVwRS mnuLstVwCpy space1 mnuLinkDel"_s},
    };
    for (const auto& given : cases) {
        EXPECT_EQ(entries(given.popup), given.entries) << "none is enabled without a routine";
        EXPECT_EQ(menu.findChild<QMenu*>(QLatin1StringView(given.popup))->title(), given.title)
            << given.popup;
    }
    EXPECT_EQ(entries("mnuLView", true).section(u' ', 0, 6),
              u"mnuLVCheckBxs line005 mnuLVSelectAll mnuLVSelectNone mnuChkDLoad line006 mnuDLoad"_s);
    EXPECT_EQ(entries("mnuCovers", true), u"mnuCoverPath mnuGoogle mnuCServs(0)"_s);
    const QStringList odd{u"mnuOpen"_s,     u"&Open"_s,           u"mnuLVCheckBxs"_s,
                          u"Check Box's"_s, u"mnuLVSelectNone"_s, u"Selete None"_s};
    for (qsizetype i = 0; i < odd.size(); i += 2)
        EXPECT_EQ(menu.entry(odd[i]).text(), odd[i + 1]);
}

TEST_F(FrmMenu, RunsWhatIsBoundAndLeavesTheCheckMarkToIt)
{
    QStringList ran;
    commands.bind("mnuLBIcons", [&] {
        ran << u"icons"_s;
        QAction& entry = menu.entry(u"mnuLBIcons"_s);
        if (ran.size() == 1)
            entry.setChecked(!entry.isChecked());
    });
    QAction& icons = menu.entry(u"mnuLBIcons"_s);
    icons.trigger();
    EXPECT_TRUE(icons.isChecked());
    icons.trigger();
    EXPECT_TRUE(icons.isChecked()) << "the routine left it";
    menu.entry(u"mnuDLoad"_s).trigger();
    EXPECT_EQ(ran.size(), 2) << "nothing is bound to it";
}

TEST_F(FrmMenu, RefillsAnArrayFromInsideItsOwnEntry)
{
    int glyphs = 0;
    menu.setGlyphs([&] { ++glyphs; });
    QString ran;
    commands.bindEach("mnuCServs", [&](int index) {
        ran += QString::number(index);
        menu.fill("mnuCServs", QStringList{u"c"_s});
    });
    menu.fill("mnuCServs", QMap<int, QString>{{3, u"x"_s}, {7, u"y"_s}});
    EXPECT_EQ(entries("mnuCovers"), u"mnuCoverPath mnuGoogle +mnuCServs(3) +mnuCServs(7)"_s);
    menu.fill("mnuCServs", QStringList{u"a & b"_s, u"b"_s});
    EXPECT_EQ(menu.entry(u"mnuCServs(1)"_s).text(), u"a && b"_s);
    EXPECT_EQ(entries("mnuCovers"), u"mnuCoverPath mnuGoogle +mnuCServs(1) +mnuCServs(2)"_s);
    menu.entry(u"mnuCServs(2)"_s).trigger();
    EXPECT_EQ(entries("mnuCovers"), u"mnuCoverPath mnuGoogle +mnuCServs(1)"_s);
    EXPECT_EQ(ran, u"2"_s);
    EXPECT_EQ(glyphs, 3);
}

} // namespace varnhold::test
