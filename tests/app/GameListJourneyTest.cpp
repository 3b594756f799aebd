// What the mouse and the keys do in the game list of the main window.

#include "MainWindowWorld.h"

#include <QContextMenuEvent>
#include <QSignalSpy>
#include <QTextEdit>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class GameListJourney : public testing::Test, protected MainWindowWorld
{
protected:
    GameListJourney()
    {
        fillGames();
        addUpdate(u"01.01"_s, u"http://h/a.pkg"_s);
        window.setEntryLoader([this] { steps.append(u"entry "_s + window.gameIdText()); });
        QObject::connect(&window, &frmMain::fetchRequested, &window, [this] { steps.append(u"fetch"_s); });
        QObject::connect(&window, &frmMain::gameRowDoubleClicked, &window,
                         [this] { steps.append(u"lookup"_s); });
    }
    void saveCover(const QString& id)
    {
        root.makeFolder(u"covers"_s);
        settings.unwrittenValues().covers.tag = root.path(u"covers"_s);
        QPixmap cover(40, 60);
        cover.fill(Qt::red);
        ASSERT_TRUE(cover.save(root.path(u"covers/%1.jpg"_s.arg(id))));
    }
    [[nodiscard]] QSize pictureSize() const
    {
        return child(window, "PicPreview").property("Picture").value<QPixmap>().size();
    }

    MorphListBox& games = window.games();
    QStringList steps;
};

} // namespace

TEST_F(GameListJourney, ShowsTheClickedGame)
{
    setCheck(Check::RemoveUnw, true);
    setCheck(Check::Colon, true);
    QTest::mouseClick(&games, Qt::LeftButton, {}, gameRow(0));
    EXPECT_EQ(player.played, QStringList{u"0"_s});
    EXPECT_EQ(state.LookupID, u"BLUS30443"_s);
    EXPECT_EQ(window.gameIdText(), u"BLUS30443"_s);
    EXPECT_EQ(window.info(), u"Ashgrove - Circuit"_s);
    EXPECT_EQ(window.titles().listIndex(), 0);
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(steps, QStringList{u"entry BLUS30443"_s});

    QTest::mouseClick(&games, Qt::LeftButton, {}, gameRow(1));
    EXPECT_EQ(window.info(), u"Ashgrove - Circuit"_s) << "an empty title leaves the one shown";
    EXPECT_EQ(window.gameIdText(), u"BCES00509"_s);
}

TEST_F(GameListJourney, LeavesTheRowsAloneWhenNoGameIsSelected)
{
    games.setListIndex(1);
    QTest::mouseClick(&games, Qt::LeftButton, {}, {10, games.height() - 4});
    EXPECT_EQ(games.ListIndex(), -1) << "no row is below the pointer";
    Q_EMIT games.Click();
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(steps, QStringList());
    EXPECT_EQ(player.played, QStringList{u"0"_s});
}

TEST_F(GameListJourney, LooksUpWhatIsDoubleClickedOrEntered)
{
    QTest::mouseClick(&games, Qt::LeftButton, {}, gameRow(1));
    QTest::mouseDClick(&games, Qt::LeftButton, {}, gameRow(1));
    EXPECT_EQ(steps, (QStringList{u"entry BCES00509"_s, u"entry BCES00509"_s, u"lookup"_s}));
    steps.clear();
    QTest::keyPress(&games, Qt::Key_Return);
    EXPECT_EQ(steps, (QStringList{u"fetch"_s, u"entry BCES00509"_s}));
}

TEST_F(GameListJourney, TakesTheSamePathWhateverKeyComesUp)
{
    window.showNotes(u"{\\rtf1 of another game}"_s);
    ASSERT_EQ(child<QTextEdit>(window, "txtGameNotes").toPlainText(), u"of another game"_s);
    games.setListIndex(2);
    QTest::keyPress(&games, Qt::Key_Return);
    ASSERT_EQ(list.count(), 1);
    steps.clear();
    QTest::keyRelease(&games, Qt::Key_Return);
    EXPECT_EQ(list.count(), 0);
    EXPECT_EQ(window.gameIdText(), u"blus12345"_s) << "the row's text, as the box keeps it";
    EXPECT_EQ(window.info(), u"Third"_s);
    EXPECT_TRUE(child<QTextEdit>(window, "txtGameNotes").toPlainText().isEmpty());

    addUpdate(u"01.01"_s, {});
    QTest::keyClick(&games, Qt::Key_Q);
    EXPECT_EQ(list.count(), 0);
    QTest::keyClick(&games, Qt::Key_Up);
    EXPECT_EQ(window.gameIdText(), u"BCES00509"_s);
    EXPECT_EQ(steps, QStringList()) << "no entry is loaded";
}

TEST_F(GameListJourney, TakesNoReleaseOfAKeyPressedElsewhere)
{
    QTest::keyRelease(&games, Qt::Key_Tab);
    EXPECT_EQ(list.count(), 1) << "the press has brought the focus here";
    window.activateWindow();
    games.setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyPress(&games, Qt::Key_Q);
    child(window, "txtGameID").setFocus();
    QTest::keyRelease(&games, Qt::Key_Q);
    EXPECT_EQ(list.count(), 1) << "the focus has been away";
}

TEST_F(GameListJourney, WaitsForTheEndOfAHeldKey)
{
    QTest::keyPress(&games, Qt::Key_Down);
    QKeyEvent repeated(QEvent::KeyRelease, Qt::Key_Down, Qt::NoModifier, {}, true);
    QCoreApplication::sendEvent(&games, &repeated);
    EXPECT_EQ(list.count(), 1);
    // A release that the toolkit took for the last one, since the press of its moment was still on its way.
    QKeyEvent early(QEvent::KeyRelease, Qt::Key_Down, Qt::NoModifier);
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
    early.setTimestamp(1000);
    press.setTimestamp(1000);
    QCoreApplication::sendEvent(&games, &early);
    QCoreApplication::sendEvent(&games, &press);
    QTest::qWait(50);
    EXPECT_EQ(list.count(), 1);
    early.setTimestamp(1040);
    QCoreApplication::sendEvent(&games, &early);
    EXPECT_TRUE(QTest::qWaitFor([this] { return list.count() == 0; }));
}

TEST_F(GameListJourney, ShowsACoverFileWhenAKeyComesUp)
{
    window.setBlankPicture([] { return QPixmap(7, 7); });
    saveCover(u"BCES00509"_s);
    root.write(u"covers/BLUS30443.jpg"_s, "no picture");
    const std::pair<int, QSize> cases[] = {{1, {40, 60}}, {0, {7, 7}}, {1, {40, 60}}, {2, {7, 7}}};
    for (const auto& [row, size] : cases) {
        games.setListIndex(row);
        QTest::keyClick(&games, Qt::Key_Shift);
        EXPECT_EQ(pictureSize(), size) << row;
    }
    settings.unwrittenValues().covers.tag.clear();
    games.setListIndex(1);
    QTest::keyClick(&games, Qt::Key_Shift);
    EXPECT_EQ(pictureSize(), QSize(7, 7));
}

TEST_F(GameListJourney, TellsTheGameBelowThePointer)
{
    QTest::mouseMove(&games, gameRow(0));
    EXPECT_EQ(games.toolTip(), u"BLUS30443 Ashgrove-[Ashgrove: Circuit]"_s);
    EXPECT_EQ(window.titles().listIndex(), 0);
    QTest::mouseMove(&games, {10, games.height() - 8});
    EXPECT_EQ(games.toolTip(), u"-[]"_s);
    EXPECT_EQ(window.titles().listIndex(), -1);
}

TEST_F(GameListJourney, ShowsAStrangeTitleAsItStands)
{
    window.titles().setRow(0, u"<b>Bold</b>"_s);
    QTest::mouseMove(&games, gameRow(0));
    EXPECT_TRUE(games.toolTip().contains(u"[&lt;b&gt;Bold"_s)) << games.toolTip().toStdString();
    window.titles().setRow(1, QString(100'000, u'x'));
    QTest::mouseMove(&games, gameRow(1));
    EXPECT_LT(games.toolTip().size(), 2000);

    auto& info = child<QLabel>(window, "lblInfo");
    info.setText(u"Two lines"_s);
    const QImage oneLine = info.grab().toImage();
    info.setText(u"Two\nlines"_s);
    EXPECT_EQ(info.grab().toImage(), oneLine);
}

TEST_F(GameListJourney, OpensTheMenuWhenTheRightButtonComesUp)
{
    const QSignalSpy menus(&window, &frmMain::mnuLBoxWanted);
    QTest::mousePress(&games, Qt::RightButton, {}, gameRow(1));
    EXPECT_EQ(games.ListIndex(), 1) << "a press selects, whichever button it was";
    EXPECT_EQ(menus.count(), 0);
    QTest::mouseRelease(&games, Qt::RightButton, {}, gameRow(1));
    ASSERT_EQ(menus.count(), 1);
    EXPECT_EQ(menus.front().front().toPoint(), games.mapToGlobal(gameRow(1)));
    EXPECT_EQ(list.count(), 1) << "it shows no game";

    QContextMenuEvent key(QContextMenuEvent::Keyboard, {}, {}, {});
    QCoreApplication::sendEvent(&games, &key);
    EXPECT_EQ(menus.count(), 2);
}

TEST_F(GameListJourney, SelectsNothingOnTheScrollBar)
{
    for (int i = 0; i < 100; ++i)
        games.AddItem(u"BLES%1"_s.arg(10000 + i));
    games.setListIndex(0);
    const QSignalSpy presses(&games, &MorphListBox::MouseDown); // of a part that repeats: when it rests
    int expected = 0;
    for (const int y : {games.height() / 2, 4, games.height() - 4}) {
        QTest::mouseClick(&games, Qt::LeftButton, {}, {games.width() - 4, y});
        ++expected;
        ASSERT_TRUE(QTest::qWaitFor([&] { return presses.count() == expected; })) << y;
        EXPECT_EQ(games.ListIndex(), 0) << y;
    }
}

} // namespace varnhold::test
