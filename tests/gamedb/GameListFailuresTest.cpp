#include "GameWorld.h"

#include <QCoreApplication>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class GameListFailuresTest : public GameWorld
{
protected:
    void makeTableWithoutNames()
    {
        database.execute(u"DROP TABLE PS3Games; CREATE TABLE PS3Games (GameID TEXT, Title TEXT);"
                         "INSERT INTO PS3Games VALUES ('BLUS00001', 'x')"_s);
    }

    const QStringList begun{u"busy"_s, u"clear games"_s, u"clear titles"_s, u"idle"_s};
};

} // namespace

TEST_F(GameListFailuresTest, ShowsAnyOtherFailureOfTheFirstLoadAndStartsEmpty)
{
    makeTableWithoutNames();
    list.loadGameListAtStartup();
    EXPECT_EQ(boxes.taken(), QStringList{QCoreApplication::applicationName() + u": List Load -"_s});
    EXPECT_TRUE(boxes.lastText.startsWith(u"List Load -\r\n%1 "_s.arg(errors::database::unknownColumn)))
        << qPrintable(boxes.lastText);
    EXPECT_EQ(window.taken(), begun + QStringList({u"clear games"_s, u"clear titles"_s}));

    // A new table cannot take the name of one that is there.
    shared.release();
    database.execute(u"CREATE TABLE Games (GameID TEXT, GameName TEXT)"_s);
    list.loadGameListAtStartup();
    EXPECT_EQ(boxes.taken().size(), 1);
    EXPECT_TRUE(boxes.lastText.contains(QString::number(errors::database::tableExists)));
}

TEST_F(GameListFailuresTest, AFailureCostsTheNextOperationTooAndNoMore)
{
    database.addGames(u"PS3Games"_s, {{u"BLUS00001"_s, u"One"_s}});
    database.execute(u"ALTER TABLE PS3Games RENAME TO Others"_s);
    list.reloadGameList();
    EXPECT_EQ(boxes.taken(), QStringList{report(errors::database::missingTable)});
    EXPECT_TRUE(shared.DBConn.isOpen());
    EXPECT_EQ(window.taken(),
              QStringList({u"busy"_s, u"bar 0"_s, u"no bar"_s, u"blank List Count: 0"_s, u"idle"_s}));

    database.execute(u"ALTER TABLE Others RENAME TO PS3Games"_s);
    list.reloadGameList();
    EXPECT_EQ(boxes.taken(), QStringList{report(errors::database::objectOpen)});
    EXPECT_FALSE(shared.DBConn.isOpen());
    EXPECT_TRUE(window.games.isEmpty());

    list.reloadGameList();
    EXPECT_EQ(window.games, QStringList{u"BLUS00001"_s});
}

TEST_F(GameListFailuresTest, AFailureInARowLeavesTheListsInStep)
{
    makeTableWithoutNames();
    list.reloadGameList();
    EXPECT_EQ(boxes.taken(), QStringList{report(errors::database::unknownColumn)});
    EXPECT_EQ(window.games, window.titles);
    // The recordset is open too; both are closed by the second failure.
    list.reloadGameList();
    EXPECT_EQ(boxes.taken(), QStringList{report(errors::database::objectOpen)});
    list.reloadGameList();
    EXPECT_EQ(boxes.taken(), QStringList{report(errors::database::unknownColumn)});
}

} // namespace varnhold::test
