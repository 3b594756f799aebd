#include "GameWorld.h"
#include "gamedb/RegionImages.h"

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class GameListTest : public GameWorld
{
protected:
    GameListTest()
    {
        for (const char* name : {"flag-us", "flag-uk", "flag-jp", "flag-asia", "flag-kor", "psn", "unknown"})
            icons += u"add /skin/%1.ico"_s.arg(QLatin1StringView(name));
        icons += {u"no redraw"_s, u"image 0=0"_s, u"image 1=5"_s, u"image 2=6"_s, u"status 0"_s, u"redraw"_s};
    }

    void addTwoGames()
    {
        database.addGames(u"PS3Games"_s, {{u"NPEA00002"_s, u"Second"_s}, {u"BLUS00001"_s, QString()}});
    }

    /// The strip of seven pictures, and their numbers up to one past the last row.
    QStringList icons{u"images"_s};
    const QStringList emptied{u"blank picture"_s, u"no title"_s,     u"no notes"_s,     u"views"_s,
                              u"clear games"_s,   u"clear titles"_s, u"clear updates"_s};
    const QStringList reloaded{
        u"busy"_s,     u"bar 0"_s,          u"bar of 2"_s,     u"game BLUS00001"_s, u"title "_s,
        u"bar at 1"_s, u"game NPEA00002"_s, u"title Second"_s, u"bar at 2"_s,       u"refresh"_s,
        u"no bar"_s,   u"uncheck icons"_s,  u"no images"_s,    u"select 0"_s,       u"blank List Count: 2"_s};
};

} // namespace

TEST_F(GameListTest, TakesTheStepsOfTheFirstLoad)
{
    addTwoGames();
    const QStringList start{u"busy"_s,   u"clear games"_s,    u"clear titles"_s, u"game BLUS00001"_s,
                            u"title "_s, u"game NPEA00002"_s, u"title Second"_s, u"refresh"_s};
    const QStringList end{u"blank List Count: 2"_s, u"page Thank You! *¿*"_s, u"idle"_s};

    list.loadGameListAtStartup();
    EXPECT_EQ(window.taken(), (start + QStringList{u"uncheck icons"_s, u"no images"_s} + end));
    EXPECT_EQ(shared.SQLText, u"SELECT * FROM PS3Games ORDER BY GameID Asc"_s);
    EXPECT_EQ(shared.DBConnString, u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + database.path() +
                                       u";Persist Security Info=False"_s);
    EXPECT_FALSE(shared.DBConn.isOpen());

    settings.setChecked(Check::Icons, true);
    list.loadGameListAtStartup();
    EXPECT_EQ(window.taken(),
              (start + QStringList{u"image size 0"_s, u"images"_s, u"check icons"_s} + icons + end));
}

TEST_F(GameListTest, ReloadsWithTheBarAndAppends)
{
    addTwoGames();
    list.reloadGameList();
    EXPECT_EQ(window.taken(), reloaded + QStringList{u"idle"_s});
    list.reloadGameList();
    EXPECT_EQ(window.games, QStringList({u"BLUS00001"_s, u"NPEA00002"_s, u"BLUS00001"_s, u"NPEA00002"_s}));
    EXPECT_EQ(window.titles, QStringList({QString(), u"Second"_s, QString(), u"Second"_s}));
    window.taken();

    list.CmdRefresh_Click();
    EXPECT_EQ(window.taken(), emptied + reloaded + QStringList{u"idle"_s});
    list.cmdClear_Click();
    EXPECT_EQ(window.taken(), emptied.last(1) + emptied.first(4));
}

TEST_F(GameListTest, AnEmptyTableEmptiesTheGamesAlone)
{
    window.titles = {u"left over"_s};
    list.reloadGameList();
    const QStringList steps = window.taken();
    EXPECT_EQ(steps.first(4), QStringList({u"busy"_s, u"bar 0"_s, u"clear games"_s, u"no bar"_s}));
    EXPECT_TRUE(steps.contains(u"blank List Count: 0"_s));
    EXPECT_EQ(window.titles, QStringList{u"left over"_s});
}

TEST_F(GameListTest, RenamesTheOldTablesInWhateverCase)
{
    addTwoGames();
    database.execute(u"ALTER TABLE PS3Games RENAME TO GAMES; ALTER TABLE PS3Personal RENAME TO Personal; "
                     "ALTER TABLE PS3Links RENAME TO links"_s);
    list.loadGameListAtStartup();
    EXPECT_EQ(window.games.size(), 2);
    EXPECT_EQ(database.column(u"SELECT name FROM sqlite_master WHERE type='table' ORDER BY name"_s),
              QStringList({u"PS3Games"_s, u"PS3Links"_s, u"PS3Personal"_s}));
}

TEST_F(GameListTest, ShowsAnotherDatabase)
{
    addTwoGames();
    database.execute(u"ALTER TABLE PS3Games RENAME TO Games"_s);
    list.loadChosenDatabase();
    EXPECT_EQ(window.taken(), (emptied + reloaded + QStringList{u"page Thank You! *¿*"_s, u"idle"_s}));

    choose(root.path(u"gone.mdb"_s));
    list.loadChosenDatabase();
    EXPECT_EQ(window.taken(), emptied + QStringList({u"busy"_s, u"bar 0"_s, u"no bar"_s,
                                                     u"blank List Count: 0"_s, u"idle"_s}));
    EXPECT_EQ(boxes.taken(), QStringList{report(errors::database::cannotOpen)});
}

TEST_F(GameListTest, TakesTableColumnAndOrderFromTheSettings)
{
    database.addGames(
        u"PS3Personal"_s,
        {{u"A"_s, u"élan"_s}, {u"B"_s, u"Éclair"_s}, {u"C"_s, u"zebra"_s}, {u"D"_s, u"Apple"_s}});
    settings.setOrder(Order::DBTable, 2);
    settings.setOrder(Order::SearchTable, 2);
    settings.setOrder(Order::AscDesc, 2);
    list.reloadGameList();
    EXPECT_EQ(shared.SQLText, u"SELECT * FROM PS3Personal ORDER BY GameName Desc"_s);
    EXPECT_EQ(window.titles, QStringList({u"élan"_s, u"Éclair"_s, u"zebra"_s, u"Apple"_s}));
}

TEST_F(GameListTest, ReadsWhateverTheColumnsHold)
{
    const QString hostile = u"It's 100% [a] \"b\"; DROP TABLE PS3Games --"_s;
    const QString longName(100'000, u'x');
    database.execute(
        u"DROP TABLE PS3Games; CREATE TABLE PS3Games (GameID INTEGER, gamename BLOB, other REAL);"
        "INSERT INTO PS3Games VALUES (NULL, NULL, NULL), (1, 2.5, 1), (2, x'4142', 1)"_s);
    database.execute(u"INSERT INTO PS3Games VALUES (3, '%1', 1), (4, '%2', 1)"_s.arg(
        QString(hostile).replace(u'\'', u"''"_s), longName));
    list.reloadGameList();
    EXPECT_EQ(window.games, QStringList({QString(), u"1"_s, u"2"_s, u"3"_s, u"4"_s}));
    EXPECT_EQ(window.titles.first(4), QStringList({QString(), u"2.5"_s, u"AB"_s, hostile}));
    EXPECT_TRUE(window.titles.last() == longName);
}

TEST_F(GameListTest, TheMenuEntryTurnsTheIconsOnAndOff)
{
    window.games = {u"BLUS00001"_s, u"NPEA00002"_s};
    settings.setSound(0, {u"click.wav"_s, u"/click.wav"_s});
    list.mnuLBIcons_Click();
    EXPECT_EQ(window.taken(), QStringList({u"check icons"_s, u"images"_s, u"image size 0"_s}) + icons);
    list.mnuLBIcons_Click();
    EXPECT_EQ(window.taken(), QStringList({u"uncheck icons"_s, u"no images"_s}));
    EXPECT_FALSE(settings.isChecked(Check::Icons));
    EXPECT_EQ(player.played, QStringList({u"/click.wav"_s, u"/click.wav"_s}));
}

TEST(RegionImages, GoByTheFirstLettersAsTheyAreStored)
{
    const QString regions[] = {u"BCUS BLUS"_s, u"BCES BLES"_s, u"BCJN BLJX KTGS"_s,          u"BCAS MRTC"_s,
                               u"BCKS KOEI"_s, u"NP NPEB"_s,   u"NZ BLXX BLU blus N PS3 0"_s};
    for (int image = 0; image < 7; ++image) {
        for (const QString& prefix : regions[image].split(u' '))
            EXPECT_EQ(regionImage(QString(prefix + u"00001"_s)), image) << qPrintable(prefix);
    }
    EXPECT_EQ(regionImage({}), 6);
}

} // namespace varnhold::test
