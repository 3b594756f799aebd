#include "platform/database/DatabaseStatement.h"

#include "DatabaseFixture.h"
#include "platform/database/DatabaseCommand.h"

namespace varnhold::test {

using namespace Qt::StringLiterals;

TEST(DatabaseStatementTest, ReadsTheShapesAsTheyAreWritten)
{
    DatabaseStatement read = readStatement(u"SELECT * FROM PS3Links ");
    EXPECT_EQ(read.table, u"PS3Links"_s);
    EXPECT_FALSE(read.condition || read.order);

    read = readStatement(u"SELECT * FROM PS3Games ORDER BY GameName Desc");
    EXPECT_EQ(read.order->column, u"GameName"_s);
    EXPECT_TRUE(read.order->descending);

    read = readStatement(u"SELECT * FROM PS3Games where GameID ='a; \"b\" -- % c ' ORDER BY GameID Asc");
    EXPECT_EQ(read.condition->column, u"GameID"_s);
    EXPECT_EQ(read.condition->value, u"a; \"b\" -- % c "_s);
    EXPECT_FALSE(read.order->descending);

    read = readStatement(u"SELECT * FROM PS3Games where GameID='';");
    EXPECT_EQ(read.condition->value, u""_s);

    read = readStatement(u"SELECT * FROM PS3Games where GameName LIKE '%a_[%' ORDER BY GameName Desc");
    EXPECT_EQ(read.condition->comparison, DatabaseStatement::Comparison::Like);
    EXPECT_EQ(read.condition->value, u"%a_[%"_s);

    read = readStatement(u"DELETE * FROM PS3Links WHERE Link='http://host/a?b=c'");
    EXPECT_EQ(read.kind, DatabaseStatement::Kind::Delete);
    EXPECT_EQ(read.condition->column, u"Link"_s);
}

TEST(DatabaseStatementTest, RefusesEverythingElse)
{
    for (const auto& text : {
             u""_s,
             u"SELECT"_s,
             u"SELECT * FROM "_s,
             u"SELECT * FROM  ORDER BY GameID Asc"_s,
             u"SELECT * FROM PS3Games ORDER BY GameID Asc GameName"_s,
             u"SELECT * FROM PS3Games ORDER BY 'GameID' Asc"_s,
             u"SELECT GameID FROM PS3Games"_s,
             u"SELECT * FROM PS3Games;;"_s,
             u"SELECT * FROM PS3Games; DELETE * FROM PS3Games WHERE GameID='x'"_s,
             u"SELECT * FROM PS3Games where GameID='x"_s,
             u"SELECT * FROM PS3Games where GameID=x"_s,
             u"SELECT * FROM PS3Games where GameID='x' where GameID='y'"_s,
             u"DELETE FROM PS3Games WHERE GameID='x'"_s,
             u"SELECT * FROM PS3Games where GameID LIKE = 'x'"_s,
             u"DELETE * FROM PS3Games"_s,
             u"DELETE * FROM PS3Games WHERE GameID LIKE '%'"_s,
             u"DELETE * FROM PS3Games WHERE GameID='x' ORDER BY GameID Asc"_s,
             u"DROP TABLE PS3Games"_s,
         })
        EXPECT_EQ(failureOf([&] { (void)readStatement(text); }), db::badSyntax) << qPrintable(text);
}

class DatabaseValueTest : public DatabaseTest
{
};

TEST_F(DatabaseValueTest, ThatWouldBeAConditionOrAStatementIsBadSyntaxAndTouchesNothing)
{
    file.addGames(u"PS3Games"_s, {{u"A"_s, u"x"_s}, {u"B"_s, u"y"_s}});
    connection.Open(connectionTo(file.path()));
    DatabaseCommand command;
    command.setActiveConnection(connection);
    for (const auto& value :
         {u"'"_s, u"''"_s, u"A'"_s, u"'A"_s, u"O'Neil"_s, u"' or '1'='1"_s, u"A' or GameID='B"_s,
          u"A' ORDER BY GameID Asc"_s, u"A'; --"_s, u"x'; DELETE * FROM PS3Games WHERE GameID='A"_s,
          u"A' /*"_s, u"A\\'"_s, u"A' UNION SELECT * FROM PS3Links where Link='"_s}) {
        for (const auto& [before, after] :
             {std::pair{u"SELECT * FROM PS3Games where GameID='"_s, u"';"_s},
              {u"SELECT * FROM PS3Games where GameName LIKE '%"_s, u"%' ORDER BY GameName Asc"_s}}) {
            const QString statement = before + value + after;
            EXPECT_EQ(failureOf([&] { open(statement); }), db::badSyntax) << qPrintable(statement);
        }
        command.setCommandText(u"DELETE * FROM PS3Games WHERE GameID='"_s + value + u"'"_s);
        EXPECT_EQ(failureOf([&] { command.Execute(); }), db::badSyntax) << qPrintable(value);
    }
    EXPECT_EQ(stored(u"SELECT GameID FROM PS3Games"_s), (QStringList{u"A"_s, u"B"_s}));
}

} // namespace varnhold::test
