#include "../SettingsWindow.h"

#include "controls/ButtonEx/ButtonEx.h"
#include "controls/ucSlider/ucSlider.h"
#include "support/FakeFileDialogs.h"
#include "support/FakePump.h"

#include <QAccessible>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSignalSpy>
#include <QWindow>

#include <utility>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class FrmSettings : public testing::Test, protected AppWorld
{
protected:
    void openPage(const QString& name)
    {
        window.open({100, 100});
        auto& pages = child<QListWidget>(window, "List1");
        const QList<QListWidgetItem*> rows = pages.findItems(name, Qt::MatchExactly);
        ASSERT_EQ(rows.size(), 1) << qPrintable(name);
        QTest::mouseClick(pages.viewport(), Qt::LeftButton, {}, pages.visualItemRect(rows.front()).center());
    }
    void click(const char* name) { QTest::mouseClick(&child(window, name), Qt::LeftButton, {}, {8, 10}); }

    FakeFileDialogs dialogs;
    FakePump pump;
    SkinPage skinPage;
    SettingsWindow all{*this, dialogs, pump, skinPage};
    frmSettings& window = all.window;
};

} // namespace

TEST_F(FrmSettings, OpensWithoutAWordInTheFile)
{
    settings.unwrittenValues().server = 4;
    settings.unwrittenValues().unwantedStrings = u"abc"_s;
    window.open({100, 100});
    EXPECT_EQ(child<QScrollBar>(window, "Vs_Server").value(), 4);
    EXPECT_EQ(child<QLabel>(window, "lblServer").text(), u"Debug: Server 1"_s);
    EXPECT_EQ(child<QPlainTextEdit>(window, "txtRemove").toPlainText(), u"abc"_s);
    EXPECT_FALSE(QFile::exists(root.paths().settingsIni()));
    QTest::keyClick(&window, Qt::Key_Escape);
    EXPECT_FALSE(window.isVisible());
}

TEST_F(FrmSettings, WritesEachBoxWithItsClick)
{
    const struct
    {
        QString page;
        const char* name;
        QString key;
    } cases[] = {
        {u"Database"_s, "chk_Icons", u"Show Icons"_s},
        {u"Database"_s, "chk_DBLinks", u"DB Links"_s},
        {u"Download"_s, "chk_UseDLD", u"Use DLDir"_s},
        {u"Download"_s, "chk_CGNFolder", u"Create GNFolder"_s},
        {u"Download"_s, "chk_OWrite", u"Over Write"_s},
        {u"Download"_s, "chk_Previous", u"Previous"_s},
        {u"Options"_s, "chk_Fade", u"Fade Out"_s},
        {u"Options"_s, "chk_Exit", u"Exit"_s},
        {u"Options"_s, "chk_Edge", u"Edge Detection"_s},
        {u"Sounds"_s, "chk_Sounds_Click", u"Click Sounds"_s},
        {u"UnWanted"_s, "chk_RemoveUnw", u"Remove Unwanted"_s},
        {u"UnWanted"_s, "chk_Double", u"Remove DblSpace"_s},
        {u"UnWanted"_s, "chk_Colon", u"Remove Colon"_s},
    };
    for (const auto& given : cases) {
        openPage(given.page);
        const bool before = child<QCheckBox>(window, given.name).isChecked();
        click(given.name);
        EXPECT_EQ(stored(given.key), before ? u"0"_s : u"1"_s) << given.name;
        EXPECT_EQ(child<QCheckBox>(window, given.name).isChecked(), !before) << given.name;
    }
}

TEST_F(FrmSettings, SoundsMakesTheSampleAndWritesForEachLineOfTheReport)
{
    for (int i = 0; i < 7; ++i)
        setCheck(static_cast<Check>(static_cast<int>(Check::ListText0) + i), false);
    openPage(u"List>Text"_s);
    const auto& sample = child<QLabel>(window, "lblExample");
    EXPECT_EQ(sample.text(), QString()) << "made anew after the load";
    const QStringList lines{u"BCUS10001-[Example Game]"_s,
                            u"01.01"_s,
                            u"03.4100"_s,
                            u"1.72 MB (1805056 bytes)"_s,
                            u"000a000000a00a0aaa0000000aaaa0"_s,
                            u"http://LINK.TO.PKG"_s};
    for (int i = 0; i < 6; ++i) {
        player.played.clear();
        click(qPrintable(u"chk_ListText(%1)"_s.arg(i)));
        EXPECT_EQ(player.played, QStringList{u"0"_s});
        EXPECT_EQ(sample.text(), lines.first(i + 1).join(u"\r\n"_s));
        EXPECT_EQ(stored(u"ListText%1"_s.arg(i)), u"1"_s);
    }
    click("chk_ListText(6)");
    EXPECT_TRUE(sample.text().endsWith(u"Link:\thttp://LINK.TO.PKG"_s));
    EXPECT_EQ(child(window, "chk_ListText(6)").toolTip(),
              u"Show front text \"PKg ver, Sys Ver, Size, SHA1, Link\""_s);
}

TEST_F(FrmSettings, ScrollsTheCreditsWhileTheyShow)
{
    const QTimer& timer = all.tmr_Scroll;
    openPage(u"Sounds"_s);
    EXPECT_FALSE(timer.isActive());
    openPage(u"About"_s);
    EXPECT_TRUE(timer.isActive());
    EXPECT_GE(timer.interval(), 16) << "at most 64 steps a second";
    const QWidget& scroll = child(window, "lblScroll");
    const QWidget& endUser = child(window, "lblEndUser");
    EXPECT_EQ(scroll.y(), 94);
    QTest::qWait(200);
    EXPECT_LT(scroll.y(), 94);
    EXPECT_EQ(endUser.y(), scroll.geometry().bottom() + 1);
    window.hide();
    EXPECT_FALSE(timer.isActive());
    window.open({100, 100});
    EXPECT_TRUE(timer.isActive()) << "it opens on the same page";
    openPage(u"Opacity"_s);
    EXPECT_FALSE(timer.isActive());
}

TEST_F(FrmSettings, ShowsATallPageInTwoHalves)
{
    openPage(u"Database"_s);
    const QWidget& frame = child(window, "frm_Database(1)");
    const auto click = [this](const char* name) { QTest::mouseClick(&child(window, name), Qt::LeftButton); };
    EXPECT_EQ(frame.y(), 0);
    click("btnSkinUpDwn(2)");
    EXPECT_EQ(frame.y(), -169);
    window.hide();
    window.open({100, 100});
    EXPECT_EQ(frame.y(), -169) << "the half stays";
    QApplication::setActiveWindow(&window);
    child(window, "chk_Icons").setFocus(Qt::TabFocusReason);
    EXPECT_EQ(frame.y(), 0) << "what has the focus shows";
    click("btnSkinUpDwn(2)");
    click("btnSkinUpDwn(3)");
    EXPECT_EQ(frame.y(), 0);
}

TEST_F(FrmSettings, MirrorsTheIdsWithoutWritingAnything)
{
    openPage(u"Options"_s);
    const QSignalSpy mirrored(&all.options, &OptionsPage::rightToLeftChosen);
    click("chk_Fade");
    const QByteArray before = root.read(u"Settings.ini"_s);
    click("chk_RighttoLeft");
    click("chk_RighttoLeft");
    EXPECT_EQ(mirrored, (QList<QVariantList>{{true}, {false}}));
    EXPECT_EQ(root.read(u"Settings.ini"_s), before);
}

TEST_F(FrmSettings, WritesEachScrollBarAsItTurns)
{
    settings.unwrittenValues().orders = {1, 1, 1};
    const struct
    {
        QString page;
        const char* bar;
        const char* label;
        QString key;
        QString first;
        QString second;
    } cases[] = {
        {u"Download"_s, "Vs_Server", "lblServer", u"Server"_s, u"Main: Server"_s, u"Retail: Server 1"_s},
        {u"Download"_s, "VScroll1", "lblDLMax", u"DL Max"_s, u"1"_s, u"2"_s},
        {u"Database"_s, "vOrder(0)", "lblOrder(0)", u"Asc Desc"_s, u"Ascending"_s, u"Descending"_s},
        {u"Database"_s, "vOrder(1)", "lblOrder(1)", u"Search Table"_s, u"GameID"_s, u"GameName"_s},
        {u"Database"_s, "vOrder(2)", "lblOrder(2)", u"DB Table"_s, u"PS3Games"_s, u"PS3Personal"_s},
    };
    for (const auto& given : cases) {
        SCOPED_TRACE(given.bar);
        openPage(given.page);
        auto& bar = child<QScrollBar>(window, given.bar);
        const auto& label = child<QLabel>(window, given.label);
        QTest::keyClick(&bar, Qt::Key_Down);
        EXPECT_EQ(label.text(), given.second);
        EXPECT_EQ(stored(given.key), u"2"_s);
        QTest::keyClick(&bar, Qt::Key_Up);
        EXPECT_EQ(label.text(), given.first);
        EXPECT_EQ(stored(given.key), u"1"_s);
        bar.setValue(99); // the program's own change counts too
        EXPECT_EQ(stored(given.key), QString::number(bar.maximum()));
    }
    EXPECT_EQ(stored(u"DL Max"_s), u"5"_s);
}

TEST_F(FrmSettings, ShowsTheDatabaseAndAsksForOne)
{
    settings.setIdList({u"games.mdb"_s, root.write(u"games.mdb"_s, QByteArray(1536, 'x'))});
    EXPECT_EQ(child<QLineEdit>(window, "txt_IDList").text(), u"games.mdb"_s);
    EXPECT_EQ(child(window, "txt_IDList").toolTip(), root.path(u"games.mdb"_s));
    EXPECT_EQ(child<QLabel>(window, "lblFSize").text(), u"Before: 1.50 KB"_s);

    skinPage.Shape_Color[SkinPage::Highlight] = 0x0000FF;
    all.database.thankForDatabase(u"Thank You!"_s);
    const auto& label = child<QLabel>(window, "Label9(1)");
    EXPECT_EQ(label.text(), u"Thank You!"_s);
    EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(Qt::red));

    openPage(u"Download"_s);
    player.played.clear();
    QWidget owner;
    window.showPageOver(owner, all.database);
    window.showCaption(u"ReName"_s);
    EXPECT_TRUE(child(window, "frm_Database(0)").isVisible());
    EXPECT_EQ(child<QListWidget>(window, "List1").currentItem()->text(), u"Database"_s);
    EXPECT_EQ(child<QLabel>(window, "lbl_Caption").text(), u"ReName"_s);
    EXPECT_FALSE(window.isModal());
    EXPECT_TRUE(player.played.isEmpty()) << "nobody clicked";
}

TEST_F(FrmSettings, WritesAnOpacityAsItsSliderMoves)
{
    settings.unwrittenValues().opacities = {10, 220, 180, 220, 0};
    openPage(u"Opacity"_s);
    EXPECT_EQ(child<QLabel>(window, "lbl_Opacity(0)").text(), u"10"_s) << "as it is stored";
    const QString keys[] = {u"Main Opacity"_s, u"Settings Opacity"_s, u"DL Opacity"_s, u"Search Opacity"_s,
                            u"DB Opacity"_s};
    const QSignalSpy moved(&all.opacity, &OpacityPage::opacityMoved);
    for (int i = 0; i < 5; ++i) {
        auto& slider = child<ucSlider>(window, qPrintable(u"ucSlider1(%1)"_s.arg(i)));
        EXPECT_EQ(slider.value(), settings.values().opacities.at(std::size_t(i)));
        EXPECT_EQ(stored(keys[i]), u"(missing)"_s);
        QTest::mousePress(&slider, Qt::LeftButton, {}, {slider.width() - 1, 4});
        EXPECT_EQ(stored(keys[i]), u"255"_s) << "before the release";
        QTest::mouseRelease(&slider, Qt::LeftButton, {}, {slider.width() - 1, 4});
        QTest::keyClick(&slider, Qt::Key_Left);
        EXPECT_EQ(stored(keys[i]), u"254"_s);
        EXPECT_EQ(child<QLabel>(window, qPrintable(u"lbl_Opacity(%1)"_s.arg(i))).text(), u"254"_s);
        EXPECT_EQ(moved.back().at(0).value<OpacityOf>(), static_cast<OpacityOf>(i));
        EXPECT_EQ(moved.back().at(1), 254);
    }
}

TEST_F(FrmSettings, NeverClearsBothAutoBoxes)
{
    openPage(u"Options"_s);
    const QSignalSpy released(&all.options, &OptionsPage::autoSslReleased);
    const auto states = [this] {
        return std::pair(child<QCheckBox>(window, "chk_AutoSSL(0)").isChecked(),
                         child<QCheckBox>(window, "chk_AutoSSL(1)").isChecked());
    };
    click("chk_AutoSSL(0)");
    EXPECT_EQ(states(), std::pair(true, false));
    click("chk_AutoSSL(0)");
    EXPECT_EQ(states(), std::pair(true, false)) << "the release sets it again";
    click("chk_AutoSSL(1)");
    EXPECT_EQ(states(), std::pair(false, true));
    EXPECT_EQ(stored(u"Auto SSL 0"_s), u"0"_s);
    EXPECT_EQ(stored(u"Auto SSL 1"_s), u"1"_s);
    EXPECT_EQ(released.count(), 3);

    click("optCert(1)");
    EXPECT_EQ(stored(u"Opt0 Cert"_s), u"False"_s);
    EXPECT_EQ(stored(u"Opt1 Cert"_s), u"True"_s);
    QAccessibleInterface* const way = QAccessible::queryAccessibleInterface(&child(window, "optCert(0)"));
    EXPECT_EQ(way->role(), QAccessible::RadioButton);
    way->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents();
    EXPECT_TRUE(way->state().checked);
    EXPECT_FALSE(child<QRadioButton>(window, "optCert(1)").isChecked());
}

TEST_F(FrmSettings, ChoosesTheDownloadFolder)
{
    openPage(u"Download"_s);
    auto& button = child<ButtonEx>(window, "btnSaveDir");
    dialogs.cancelNext();
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(dialogs.asked.front().title, u"Select Download Folder"_s);
    EXPECT_EQ(dialogs.asked.front().startFolder, root.paths().root);
    EXPECT_EQ(stored(u"SaveDir Path"_s), u"(missing)"_s);
    dialogs.answer(u"/home/user/updates"_s);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(child<QLineEdit>(window, "txt_SaveDir").text(), u"updates"_s);
    EXPECT_EQ(stored(u"SaveDir Path"_s), u"/home/user/updates"_s);
    dialogs.cancelNext();
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(dialogs.asked.back().startFolder, u"/home/user/updates"_s);
}

TEST_F(FrmSettings, GivesTheChosenRowAnotherSound)
{
    openPage(u"Sounds"_s);
    setCheck(Check::SoundsClick, false);
    click("opt_Index(2)");
    dialogs.answer(u"/music/horn.mp3"_s);
    QTest::mouseClick(&child(window, "cmdSound"), Qt::LeftButton);
    EXPECT_EQ(stored(u"Open Sound Path"_s), u"/music/horn.mp3"_s);
    EXPECT_EQ(stored(u"Open Sound File"_s), u"horn.mp3"_s);
    player.played.clear();
    QTest::mouseClick(&child(window, "cmd_Play(2)"), Qt::LeftButton);
    EXPECT_EQ(player.played, QStringList{u"/music/horn.mp3"_s}) << "whatever the box says";
}

TEST_F(FrmSettings, KeepsTheUnwantedStringsAsTheyAreTyped)
{
    openPage(u"UnWanted"_s);
    auto& box = child<QPlainTextEdit>(window, "txtRemove");
    EXPECT_FALSE(child(window, "lblCount").isVisible());
    QTest::keyClicks(&box, u" ab"_s);
    EXPECT_EQ(stored(u"Unwanted Strings"_s), u"ab"_s);
    EXPECT_EQ(settings.unwantedStrings(), u" ab"_s);
    EXPECT_EQ(child<QLabel>(window, "lblCount").text(), u"Chars:   3"_s);

    bool warned = false;
    pump.at(1, [&] { warned = child(window, "img_Warning").isVisible(); });
    QTest::keyClick(&box, Qt::Key_Return);
    QTest::keyClicks(&box, u"c"_s);
    EXPECT_EQ(settings.unwantedStrings(), u" ab\r\nc"_s);
    QCoreApplication::processEvents();
    EXPECT_TRUE(warned);
    EXPECT_FALSE(child(window, "img_Warning").isVisible());
    click("chk_RemoveUnw");
    EXPECT_EQ(stored(u"Unwanted Strings"_s), u"abc"_s);
}

TEST_F(FrmSettings, ShowsOnePageAtATime)
{
    QStringList shown;
    QStringList captions;
    for (const QString& page : {u"Database"_s, u"Download"_s, u"List>Text"_s, u"Opacity"_s, u"Options"_s,
                                u"Skin"_s, u"Sounds"_s, u"UnWanted"_s, u"About"_s}) {
        player.played.clear();
        openPage(page);
        EXPECT_EQ(player.played, QStringList{u"0"_s});
        captions << child<QLabel>(window, "lbl_Caption").text();
        for (const QFrame* frame : window.findChildren<QFrame*>(QRegularExpression(u"^frm_"_s))) {
            if (frame->isVisible() && frame->parent() == &window)
                shown << frame->objectName();
        }
    }
    EXPECT_EQ(shown,
              u"frm_Database(0) frm_Download frm_Listtext frm_Opacity frm_Options frm_Skin(0) frm_Sound "
              "frm_Unwanted frm_About"_s.split(u' '));
    EXPECT_EQ(captions.removeDuplicates(), 0);
    EXPECT_EQ(captions[2], u"Settings: List to Text"_s);
    EXPECT_EQ(captions.last(), u"Settings: About "_s);
    QTest::keyClick(&child(window, "List1"), Qt::Key_Up);
    EXPECT_TRUE(child(window, "frm_Unwanted").isVisible());
}

} // namespace varnhold::test
