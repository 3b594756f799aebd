#include "platform/database/DatabaseStatement.h"

#include "DatabaseFixture.h"

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
    const QString texts =
        u"|SELECT|SELECT * FROM |SELECT * FROM  ORDER BY GameID Asc|SELECT GameID FROM PS3Games|"
        "SELECT * FROM PS3Games ORDER BY GameID Asc GameName|SELECT * FROM PS3Games ORDER BY 'GameID' Asc|"
        "SELECT * FROM PS3Games;;|SELECT * FROM PS3Games; DELETE * FROM PS3Games WHERE GameID='x'|"
        "SELECT * FROM PS3Games where GameID='x|SELECT * FROM PS3Games where GameID=x|"
        "SELECT * FROM PS3Games where GameID='x' where GameID='y'|DELETE FROM PS3Games WHERE GameID='x'|"
        "SELECT * FROM PS3Games where GameID LIKE = 'x'|DELETE * FROM PS3Games|DROP TABLE PS3Games|"
        "DELETE * FROM PS3Games WHERE GameID LIKE '%'|"
        "DELETE * FROM PS3Games WHERE GameID='x' ORDER BY GameID Asc"_s;
    for (const QString& text : texts.split(u'|'))
        EXPECT_EQ(errorNumberOf([&] { (void)readStatement(text); }), db::badSyntax) << qPrintable(text);
    // Values that would be a condition or a statement of their own.
    const QString values =
        u"'|''|A'|'A|O'Neil|' or '1'='1|A' or GameID='B|A' ORDER BY GameID Asc|A'; --|A' /*|"
        "x'; DELETE * FROM PS3Games WHERE GameID='A|A\\'|"
        "A' UNION SELECT * FROM PS3Links where Link='"_s;
    for (const QString& value : values.split(u'|')) {
        for (const auto& frame :
             {u"SELECT * FROM PS3Games where GameID='%1';"_s,
              u"SELECT * FROM PS3Games where GameName LIKE '%%1%' ORDER BY GameName Asc"_s,
              u"DELETE * FROM PS3Games WHERE GameID='%1'"_s})
            EXPECT_EQ(errorNumberOf([&] { (void)readStatement(frame.arg(value)); }), db::badSyntax)
                << qPrintable(frame.arg(value));
    }
}

} // namespace varnhold::test
