// Starts of the program with real database files, and with none.

#include "StartUpWorld.h"

#include "app/GameListOnWindows.h"
#include "app/WindowPainter.h"
#include "app/menu/MenuCommands.h"
#include "app/menu/frmMenu.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "gamedb/ChooseDatabase.h"
#include "gamedb/GameList.h"
#include "gamedb/SharedDatabase.h"
#include "support/TestDatabase.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPushButton>
#include <QTimer>

#include <utility>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class StartWithDatabase : public testing::Test, protected StartUpWorld
{
protected:
    StartWithDatabase()
    {
        loadGameList = [this] {
            games.loadGameListAtStartup();
            splashStatus = child<QLabel>(*splash, "lblLoading").text();
            splashMessage = child<QLabel>(*splash, "lblMessage").text();
        };
    }

    [[nodiscard]] TestDatabase makeDatabase() const
    {
        TestDatabase made(root.path(u"GameDB.mdb"_s));
        made.addGames(u"PS3Games"_s, {{u"BLUS30443"_s, u"Ashgrove Circuit"_s},
                                      {u"NPEB00001"_s, u"Ember Coast"_s},
                                      {u"BLES00256"_s, u"Brine & Lantern"_s}});
        return made;
    }
    [[nodiscard]] QStringList ids()
    {
        QStringList found;
        for (int row = 0; row < main.games().ListCount(); ++row)
            found << main.games().List(row) + u' ' + main.titles().row(row);
        return found;
    }
    [[nodiscard]] QString text(const char* label) { return child<QLabel>(settingsWindow, label).text(); }
    /// The settings stand at the main window's corner on their Database page.
    void expectDatabasePage()
    {
        EXPECT_TRUE(settingsWindow.isVisible());
        EXPECT_EQ(settingsWindow.pos(), main.pos());
        EXPECT_EQ(settingsWindow.windowHandle()->transientParent(), main.windowHandle());
        EXPECT_TRUE(child(settingsWindow, "frm_Database(0)").isVisible());
        EXPECT_TRUE(main.isVisible()) << "the start goes on";
        EXPECT_EQ(splash, nullptr);
        EXPECT_EQ(ids(), QStringList());
    }

    MenuCommands commands;
    frmMenu menu{commands, sounds};
    SharedDatabase database{settings, boxes};
    WindowPainter painter;
    GameListOnWindows view{{main, menu, settingsWindow, pages.database, list, splash}, painter};
    GameList games{{database, state, settings, view, sounds, boxes}};
    QString splashStatus;
    QString splashMessage;
};

} // namespace

TEST_F(StartWithDatabase, ShowsTheGamesOfTheDefaultDatabase)
{
    const TestDatabase made = makeDatabase();
    EXPECT_EQ(startUp.run(), StartUp::Outcome::Running);
    EXPECT_EQ(ids(), (QStringList{u"BLUS30443 Ashgrove Circuit"_s, u"BLES00256 Brine & Lantern"_s,
                                  u"NPEB00001 Ember Coast"_s}));
    EXPECT_EQ(child<QLabel>(main, "lblBlank").text(), u"List Count: 3"_s);
    EXPECT_TRUE(menu.entry(u"mnuLBIcons"_s).isChecked());
    EXPECT_TRUE(main.games().ShowItemImages());
    EXPECT_EQ(main.games().ImageIndex(2), 5);
    EXPECT_EQ(splashMessage, u"Found Default Database\nGameDB.mdb"_s);
    EXPECT_FALSE(settingsWindow.isVisible());
    EXPECT_EQ(text("Label9(1)"), u"Thank You! *¿*"_s);
    EXPECT_EQ(stored(u"IDList Path"_s), made.path());
}

TEST_F(StartWithDatabase, AsksForADatabaseThatCannotBeOpened)
{
    const QString path = root.path(u"own.mdb"_s);
    for (const bool isThere : {false, true}) {
        SCOPED_TRACE(isThere ? "no database" : "none at all");
        settings.unwrittenValues().idList = SettingsValues().idList;
        settingsWindow.hide();
        if (isThere) {
            root.write(u"own.mdb"_s, "");
            writeSettings("IDList Path=" + path.toUtf8());
        }
        EXPECT_EQ(startUp.run(), StartUp::Outcome::Running);
        expectDatabasePage();
        EXPECT_EQ(splashStatus, u"Loading: Database not found *¿*"_s);
        EXPECT_EQ(splashMessage, u"Thank You! *¿*\nPlease select Database file."_s);
        EXPECT_EQ(text("Label9(1)"), u"Not Found! Please select Database file. *¿*"_s);
        EXPECT_EQ(text("lbl_Caption"), u"Settings: Database"_s);
        EXPECT_EQ(settingsWindow.focusWidget(), &child(settingsWindow, "txt_IDList"));
    }
}

TEST_F(StartWithDatabase, AsksForTheNamesOfTables)
{
    const TestDatabase made = makeDatabase();
    made.execute(u"ALTER TABLE PS3Games RENAME TO Titles"_s);
    EXPECT_EQ(startUp.run(), StartUp::Outcome::Running);
    expectDatabasePage();
    EXPECT_EQ(splashStatus, u"Loading: Database Table not found *¿*"_s);
    EXPECT_EQ(text("lbl_Caption"), u"ReName Games to PS3Games - ReName Personal to PS3Personal."_s);

    made.execute(u"ALTER TABLE Titles RENAME TO Games"_s);
    games.loadChosenDatabase();
    EXPECT_EQ(main.games().ListCount(), 3) << "repaired, and nothing is left open";
}

TEST_F(StartWithDatabase, HearsTheSplashAndNothingElseInALongLoad)
{
    makeDatabase().execute(
        u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 200000) "
        "INSERT INTO PS3Games (GameID, GameName) SELECT 'BL' || i, 'Title ' || i FROM n"_s);
    const auto load = std::exchange(loadGameList, [] {});
    int others = 0;
    loadGameList = [&] {
        const auto press = [](QWidget& on) {
            QCoreApplication::postEvent(&on, new QMouseEvent(QEvent::MouseButtonDblClick, QPointF(2, 2),
                                                             on.mapToGlobal(QPointF(2, 2)), Qt::LeftButton,
                                                             Qt::LeftButton, Qt::NoModifier));
        };
        auto* const button = new QPushButton(&main);
        QObject::connect(button, &QPushButton::pressed, button, [&] { ++others; });
        QTimer::singleShot(1, button, [&] { ++others; });
        press(*button);
        press(child<QLabel>(*splash, "lblWarning"));
        load();
        delete button;
    };
    EXPECT_EQ(startUp.run(), StartUp::Outcome::Ended);
    EXPECT_LT(main.games().ListCount(), 200'000);
    EXPECT_EQ(others, 0);
}

TEST_F(StartWithDatabase, LoadsAnotherDatabaseOnlyWhenTheUserWants)
{
    const TestDatabase made = makeDatabase();
    const TestDatabase other(root.path(u"other.mdb"_s));
    other.addGames(u"PS3Games"_s, {{u"BCAS20001"_s, u"Other"_s}});
    EXPECT_EQ(startUp.run(), StartUp::Outcome::Running);
    const auto open = [this] { btnOpen_Click(settings, dialogs, sounds, boxes, games); };
    const QString question = u"Would you like to load the Database now?"_s;

    dialogs.cancelNext();
    open();
    EXPECT_EQ(settings.idList().tag, made.path());
    EXPECT_EQ(dialogs.asked.front().filter, u"Database (*.mdb)|*.mdb"_s);
    EXPECT_EQ(dialogs.asked.front().defaultExtension, u"*.mdb"_s);

    dialogs.answer(other.path());
    boxes.expect(question, u"Load Database?"_s, BoxAnswer::No);
    open();
    EXPECT_EQ(stored(u"IDList Path"_s), other.path());
    EXPECT_EQ(stored(u"IDList File"_s), u"other.mdb"_s);
    EXPECT_EQ(child<QLineEdit>(settingsWindow, "txt_IDList").text(), u"other.mdb"_s);
    EXPECT_EQ(main.games().ListCount(), 3);

    dialogs.answer(other.path());
    boxes.expect(question, u"Load Database?"_s, BoxAnswer::Yes);
    main.setInfo(u"Ashgrove Circuit"_s);
    open();
    EXPECT_EQ(ids(), QStringList{u"BCAS20001 Other"_s});
    EXPECT_EQ(main.info(), QString());
    EXPECT_EQ(player.played.count(u"0"_s), 3);
}

} // namespace varnhold::test
