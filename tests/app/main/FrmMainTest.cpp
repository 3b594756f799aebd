#include "../MainWindowWorld.h"

#include "app/main/MainLayout.h"
#include "app/main/UpdateListView.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/CTooltip/CTooltip.h"
#include "controls/MorphListBox/MorphListBox.h"

#include <QAccessible>
#include <QApplication>
#include <QCloseEvent>
#include <QDropEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMimeData>
#include <QScrollBar>
#include <QSignalSpy>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class FrmMain : public testing::Test, protected MainWindowWorld
{
};

} // namespace

TEST_F(FrmMain, KeepsItsControlsApartInBothSizes)
{
    const char* names[] = {"btnFile",         "btn_Tools(1)", "btn_WinState(0)", "btn_WinState(1)",
                           "btn_WinState(2)", "txtGameID",    "btnFetch",        "lblInfo",
                           "picLeft",         "picMain",      "lblStatus",       "lblBlank",
                           "lblCnt",          "cmdClear",     "CmdRefresh"};
    for (const QSize& size : {QSize(447, 289), QSize(595, 385)}) {
        EXPECT_EQ(window.size(), size);
        for (const char* one : names) {
            const QRect place = child(window, one).geometry();
            EXPECT_TRUE(window.rect().contains(place)) << one;
            for (const char* other : names) {
                if (one != other) {
                    EXPECT_FALSE(place.intersects(child(window, other).geometry()))
                        << one << " and " << other;
                }
            }
        }
        EXPECT_EQ(child(window, "ListView1").width(), child(window, "picMain").width());
        window.EnlargeMainWindow();
    }
}

TEST_F(FrmMain, SwitchesBetweenItsSizes)
{
    auto& button = child<ButtonEx>(window, "btn_WinState(2)");
    EXPECT_EQ(button.toolTip(), u"Maximize"_s);
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(window.layoutNumber(), 2);
    EXPECT_EQ(button.toolTip(), u"Restore Down"_s);
    EXPECT_EQ(stored(u"Miximize"_s), u"2"_s);
    EXPECT_EQ(child(window, "ProgressBar1").geometry(), child(window, "lblBlank").geometry());
    EXPECT_EQ(child(window, "cmdClear").y(), child(window, "lblStatus").y());
    QTest::mouseClick(&button, Qt::LeftButton);
    EXPECT_EQ(window.size(), QSize(447, 289));
    EXPECT_EQ(stored(u"Miximize"_s), u"1"_s);
}

TEST_F(FrmMain, GrowsWithinTheWorkAreaAndGoesBack)
{
    const struct
    {
        const char* name;
        QPoint before;
        QPoint large;
    } cases[] = {
        {"room", {100, 100}, {100, 100}},
        {"the corner of a first start", {1920 - 447, 1040 - 289}, {1920 - 595, 1040 - 385}},
        {"put across the edge", {1800, 900}, {1800, 900}},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        window.move(one.before);
        window.EnlargeMainWindow();
        EXPECT_EQ(window.pos(), one.large);
        window.EnlargeMainWindow(); // as a change of skin does
        window.RestoreMainWindow();
        EXPECT_EQ(window.pos(), one.before);
    }
    window.EnlargeMainWindow();
    window.move(5, 5);
    window.RestoreMainWindow();
    EXPECT_EQ(window.pos(), QPoint(5, 5)) << "moved by the user meanwhile";
}

TEST_F(FrmMain, OpensWhereItCanBeUsed)
{
    const std::vector<ScreenAreas> screens{{{0, 0, 1920, 1080}, {0, 0, 1920, 1040}},
                                           {{1920, 0, 3200, 1024}, {1920, 30, 3200, 1024}}};
    const struct
    {
        const char* name;
        QPoint place;
        bool enlarged;
        QPoint opens;
    } cases[] = {
        {"normal, across an edge", {-300, 1000}, false, {-300, 1000}},
        {"normal, on the other screen", {2900, 100}, false, {2900, 100}},
        {"normal, on a screen that is gone", {-1500, 300}, false, {0, 300}},
        {"normal, below every screen", {100, 1090}, false, {100, 1040 - 289}},
        {"large, with room", {100, 100}, true, {100, 100}},
        {"large, in the corner of the normal size", {1473, 751}, true, {1920 - 595, 1040 - 385}},
        {"large, on the other screen", {2900, 0}, true, {3200 - 595, 30}},
        {"large, on a screen that is gone", {5000, 300}, true, {1920 - 595, 300}},
    };
    for (const auto& one : cases)
        EXPECT_EQ(placeAtStart(one.place, one.enlarged, screens), one.opens) << one.name;
}

TEST_F(FrmMain, KeepsBarsWithinTheirColumns)
{
    const struct
    {
        double top;
        QString left;
        QString main;
    } cases[] = {
        {100, u"540"_s, u"100"_s},    {-50, u"540"_s, u"0"_s},      {539.6, u"540"_s, u"540"_s},
        {2000, u"2000"_s, u"2000"_s}, {9000, u"3290"_s, u"3290"_s},
    };
    for (const auto& given : cases) {
        window.setBarLeftTop(given.top);
        window.Splitbar_Left();
        window.setBarMainTop(given.top);
        window.Splitbar_Main();
        EXPECT_EQ(stored(u"LeftBar Top"_s), given.left) << given.top;
        EXPECT_EQ(stored(u"Mainbar Top"_s), given.main) << given.top;
        EXPECT_EQ(child(window, "PicPreview").geometry().bottom(), child(window, "picLeft").height() - 1);
        EXPECT_EQ(child(window, "barMain").y(), child(window, "ListView1").height());
    }
}

TEST_F(FrmMain, MovesABarWithTheMouse)
{
    window.setBarMainTop(1500);
    window.Splitbar_Main();
    QWidget& bar = child(window, "barMain");
    drag(bar, {0, 20});
    EXPECT_NEAR(bar.y(), 120, 3);
    EXPECT_EQ(child(window, "ListView1").height(), bar.y());
    EXPECT_NEAR(stored(u"Mainbar Top"_s).toInt(), bar.y() * 15, 8);
    drag(bar, {0, 900});
    EXPECT_EQ(stored(u"Mainbar Top"_s), u"3290"_s);
}

TEST_F(FrmMain, StoresThePlaceOfADropBeforeItSnaps)
{
    setCheck(Check::Edge, true);
    for (const char* label : {"lblCaption", "lblInfo", "lblStatus", "lblBlank"}) {
        window.move(200, 300);
        state.workArea = {};
        drag(child(window, label), {-196, 7});
        EXPECT_EQ(stored(u"Varnhold X"_s), u"60"_s) << label;
        EXPECT_EQ(stored(u"Varnhold Y"_s), u"4605"_s) << label;
        EXPECT_EQ(window.pos(), QPoint(0, 307)) << label;
        EXPECT_EQ(state.workArea.bottom, 1040);
    }
    setCheck(Check::Edge, false);
    window.move(200, 300);
    drag(child(window, "lblCaption"), {-196, 0});
    EXPECT_EQ(window.pos(), QPoint(4, 300));
}

TEST_F(FrmMain, TakesTypedLettersAndRefusesOthersWithABox)
{
    auto& box = child<QLineEdit>(window, "txtGameID");
    QTest::keyClicks(&box, u"blus30"_s);
    EXPECT_EQ(box.text(), u"BLUS30"_s);
    boxes.expect(u"Invalid Character.\rPlease enter 0-9, or A-Z"_s);
    QTest::keyClick(&box, '-');
    QTest::keyClick(&box, Qt::Key_Escape);
    QTest::keyClick(&box, Qt::Key_F5);
    QTest::keyClick(&box, Qt::Key_Left, Qt::ControlModifier);
    QTest::keyClick(&box, Qt::Key_End);
    QTest::keyClick(&box, Qt::Key_Backspace);
    EXPECT_EQ(box.text(), u"BLUS3"_s);
    QTest::keyClicks(&box, u"044399"_s);
    EXPECT_EQ(box.text(), u"BLUS30443"_s) << "a tenth character is not taken";
    box.selectAll();
    QTest::keyClick(&box, 'x');
    EXPECT_EQ(box.text(), u"X"_s);

    box.clear();
    box.insert(u"B L U S - 3 0 4 4 3 1 2"_s);
    EXPECT_EQ(box.text(), u"BLUS30443"_s) << "a pasted text comes without the marks";

    const QSignalSpy fetches(&window, &frmMain::fetchRequested);
    QTest::keyClick(&box, Qt::Key_Return);
    EXPECT_EQ(fetches.count(), 1);
}

TEST_F(FrmMain, HandsOnWhatIsDoneInTheUpdateList)
{
    addUpdate(u"01.01"_s, u"http://h/a.pkg"_s);
    addUpdate(u"01.02"_s, {});
    auto& view = child<UpdateListView>(window, "ListView1");
    view.setFocus();
    for (const int row : {1, 2}) {
        QTest::keyClick(&view, Qt::Key_Down);
        EXPECT_EQ(window.selectedUpdateRow(), row);
    }
    const QSignalSpy activations(&window, &frmMain::updateRowActivated);
    const QSignalSpy menus(&window, &frmMain::mnuLViewWanted);
    QTest::mouseClick(view.viewport(), Qt::RightButton, {}, updateRow(2));
    EXPECT_EQ(menus.count(), 1);
    EXPECT_EQ(window.selectedUpdateRow(), 2);
    EXPECT_EQ(player.played, QStringList{u"1"_s});
    player.played.clear();
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, updateRow(1));
    EXPECT_EQ(activations.count(), 1);
    EXPECT_EQ(window.selectedUpdateRow(), 1);
    EXPECT_TRUE(player.played.contains(u"0"_s));
}

TEST_F(FrmMain, KeepsTheColumnsInViewWhenARowIsChosen)
{
    addUpdate(u"01.01"_s, u"http://host/"_s + QString(400, u'a') + u".pkg"_s);
    auto& view = child<UpdateListView>(window, "ListView1");
    view.autosizeColumns();
    ASSERT_GT(view.horizontalScrollBar()->maximum(), 0);
    const QPoint lastColumn(view.viewport()->width() - 4, updateRow(1).y());
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, lastColumn);
    EXPECT_EQ(window.selectedUpdateRow(), 1);
    EXPECT_EQ(view.horizontalScrollBar()->value(), 0);
}

TEST_F(FrmMain, ShowsABalloonOverARowWithAnUrl)
{
    addUpdate(u"01.01"_s, u"http://h/a.pkg"_s);
    addUpdate(u"01.02"_s, {});
    window.setTipColors(0x112233, 0x445566);
    window.createToolTip();
    window.setTipTitle([] { return u"Ashgrove"_s; });
    auto& view = child<UpdateListView>(window, "ListView1");
    auto* balloon = window.findChild<CTooltip*>();
    ASSERT_NE(balloon, nullptr);
    QTest::mouseMove(view.viewport(), updateRow(1));
    EXPECT_TRUE(balloon->exists());
    EXPECT_EQ(balloon->BackColor(), 0x445566U) << "the skin came first";
    EXPECT_EQ(balloon->Title(), u"Ashgrove"_s);
    const QRect firstCell = view.visualRect(list.index(0, 0));
    QTest::mouseMove(view.viewport(), firstCell.topLeft() + QPoint(10, 9));
    EXPECT_FALSE(balloon->exists());
    EXPECT_EQ(view.viewport()->toolTip(), u"Not on disk"_s);
    QTest::mouseMove(view.viewport(), firstCell.topRight() + QPoint(-4, 9));
    EXPECT_TRUE(view.viewport()->toolTip().isEmpty());
    EXPECT_TRUE(balloon->TipText().startsWith(u"Package Version:  01.01\r\n§ystem Version:    03.4100"_s));
    QTest::mouseMove(view.viewport(), updateRow(2));
    EXPECT_FALSE(balloon->exists());
    EXPECT_EQ(view.viewport()->toolTip(), u"01.02"_s);
    QTest::mouseMove(view.viewport(), {5, view.viewport()->height() - 5});
    EXPECT_TRUE(view.viewport()->toolTip().isEmpty());
}

TEST_F(FrmMain, TakesDroppedTextOnly)
{
    auto& fetch = child<ButtonEx>(window, "btnFetch");
    const QSignalSpy drops(&window, &frmMain::textDropped);
    QMimeData text;
    text.setText(u"http://host/A.PKG"_s);
    QMimeData oneAddress;
    oneAddress.setData(u"text/uri-list"_s, "http://host/a%20b.pkg\r\n");
    QMimeData twoAddresses;
    twoAddresses.setData(u"text/uri-list"_s, "http://host/a.pkg\r\nhttp://host/b.pkg\r\n");
    QMimeData other;
    other.setData(u"application/x-other"_s, "x");
    for (const QMimeData* data : {&text, &oneAddress, &twoAddresses, &other}) {
        QDragEnterEvent enter({5, 5}, Qt::CopyAction, data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&fetch, &enter);
        EXPECT_EQ(enter.isAccepted(), data == &text || data == &oneAddress);
        QDropEvent drop({5, 5}, Qt::CopyAction, data, Qt::LeftButton, {});
        QCoreApplication::sendEvent(&fetch, &drop);
    }
    ASSERT_EQ(drops.count(), 2);
    EXPECT_EQ(drops.front().front().toString(), u"http://host/A.PKG"_s);
    EXPECT_EQ(drops.back().front().toString(), u"http://host/a%20b.pkg"_s);
}

TEST_F(FrmMain, TogglesTheRawPage)
{
    QWidget& browser = child(window, "WebBrowser1");
    EXPECT_EQ(browser.x(), 573);
    window.mnuRaw();
    EXPECT_EQ(browser.x(), 0);
    EXPECT_EQ(text("lblStatus"), u"Raw XML"_s);
    window.mnuRaw();
    EXPECT_EQ(browser.x(), 573);
    EXPECT_EQ(text("lblStatus"), u"5055"_s) << "twips";
}

TEST_F(FrmMain, TellsAssistiveToolsWhatItsControlsAre)
{
    const auto tool = [](QWidget& widget) { return QAccessible::queryAccessibleInterface(&widget); };
    EXPECT_EQ(tool(window)->role(), QAccessible::Window);
    fillGames();
    EXPECT_EQ(tool(window.games())->child(0)->text(QAccessible::Description), u"Ashgrove: Circuit"_s);
    addUpdate(u"01.01"_s, u"http://h/a.pkg"_s);
    list.setIcon(1, u"pkg-plus"_s);
    QCoreApplication::processEvents(); // a tool sees what has been laid out
    EXPECT_EQ(
        tool(child(window, "ListView1"))->tableInterface()->cellAt(0, 0)->text(QAccessible::Description),
        u"On disk"_s);

    QPixmap cover(30, 40);
    cover.fill(Qt::red);
    child(window, "PicPreview").setProperty("Picture", cover);
    for (const char* const name : {"PicPreview", "imgPreview"}) {
        QAccessibleInterface* const picture = tool(child(window, name));
        EXPECT_EQ(picture->role(), QAccessible::Graphic) << name;
        const bool large = child(window, "imgPreview").isVisible();
        picture->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        EXPECT_EQ(child(window, "imgPreview").isVisible(), large) << "the caller is answered first";
        QCoreApplication::processEvents();
        EXPECT_NE(child(window, "imgPreview").isVisible(), large) << name;
    }
    const QSignalSpy reloads(&window, &frmMain::refreshRequested);
    tool(child(window, "CmdRefresh"))->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
    EXPECT_EQ(reloads.count(), 0);
    QCoreApplication::processEvents();
    EXPECT_EQ(reloads.count(), 1);

    for (const char* const name : {"barLeft", "barMain"}) {
        QWidget& bar = child(window, name);
        QAccessibleInterface* const splitter = tool(bar);
        EXPECT_EQ(splitter->role(), QAccessible::Splitter);
        EXPECT_FALSE(splitter->text(QAccessible::Name).isEmpty());
        splitter->valueInterface()->setCurrentValue(100);
        EXPECT_EQ(bar.y(), 100) << name;
        QTest::keyClick(&bar, Qt::Key_Down);
        EXPECT_EQ(bar.y(), 108) << name;
        QTest::keyClick(&bar, Qt::Key_Up);
        EXPECT_EQ(splitter->valueInterface()->currentValue(), 100) << name;
    }
    EXPECT_EQ(stored(u"LeftBar Top"_s), u"1500"_s);
    QAccessibleValueInterface* const progress = tool(child(window, "ProgressBar1"))->valueInterface();
    EXPECT_EQ(progress->minimumStepSize(), 0) << "it offers no change";
}

TEST_F(FrmMain, TakesThePointsOutOfAClickedTitle)
{
    window.setInfo(u"Dr. K. Returns..."_s);
    QTest::mouseClick(&child(window, "lblInfo"), Qt::LeftButton);
    EXPECT_EQ(window.info(), u"Dr K Returns"_s);
}

TEST_F(FrmMain, TellsItsOwnCloseFromTheDesktops)
{
    const QSignalSpy own(&window, &frmMain::exitRequested);
    const QSignalSpy desktops(&window, &frmMain::closedByDesktop);
    auto& exit = child<ButtonEx>(window, "btn_WinState(1)");
    QTest::mouseClick(&exit, Qt::LeftButton);
    EXPECT_EQ(own.count(), 1);
    EXPECT_FALSE(exit.isEnabled());
    window.close();
    EXPECT_EQ(own.count(), 2);
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(&window, &event);
    EXPECT_EQ(desktops.count(), 1);
    EXPECT_TRUE(window.isVisible());
}

TEST_F(FrmMain, OpensItsMenuFromTheBareWindowAndTheButton)
{
    const QSignalSpy menus(&window, &frmMain::mnuMenuWanted);
    QTest::mouseClick(&window, Qt::RightButton, {}, {300, 272});
    EXPECT_EQ(menus.count(), 1);
    auto& button = child<ButtonEx>(window, "btnFile");
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::mouseClick(&button, Qt::RightButton);
    EXPECT_EQ(menus.count(), 3);
    QContextMenuEvent key(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(&button, &key);
    EXPECT_EQ(menus.back().front(), button.mapToGlobal(QPoint(0, button.height()))) << "by the menu key";
    EXPECT_EQ(menus.count(), 4);
}

} // namespace varnhold::test
