#include "RunCli.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"
#include "support/TestDatabase.h"

namespace varnhold::test {
namespace {

using namespace Qt::StringLiterals;

/// No hosts.ini is here: a command that started a service would fail or be slow.
TEST(DatabaseCli, SearchesImportsExportsAndKeepsTheDatabase)
{
    const TempRoot root;
    const TestDatabase database(root.path(u"Own.mdb"_s));
    database.addGames(u"PS3Games"_s, {{u"A1"_s, u"O'Neil"_s}, {u"A2"_s, u"two\nlines"_s}});
    root.write(u"list"_s, "ABCD00001 new\n\nA1\n");
    root.write(u"csv"_s, "GameName,GameID\n\"a,\nb\",C1\nno id,\n\"open");
    const auto cli = [&](const QStringList& arguments) {
        return run(QStringList{u"--root"_s, root.path({}), u"--database"_s, database.path()} + arguments);
    };
    const QString list = root.path(u"list"_s);
    const QString csv = root.path(u"csv"_s);
    const QString out = root.path(u"out"_s);
    const struct
    {
        QStringList arguments;
        int code;
        QByteArray says; ///< on either
    } cases[] = {
        {{u"search"_s, u"o'n"_s, u"--csv"_s}, 0, "GameID,GameName\r\nA1,O'Neil\r\n"},
        {{u"search"_s, u"A"_s, u"--by"_s, u"id"_s, u"--match"_s, u"start"_s, u"--descending"_s, u"--csv"_s},
         0,
         "A2,\"two\nlines\"\r\nA1,O'Neil\r\n"},
        {{u"search"_s, u"A"_s, u"--in"_s, u"links"_s}, 3, "Nothing was found"},
        {{u"search"_s, u"A"_s, u"--in"_s, u"attic"_s}, 2, "games, personal or links"},
        {{u"search"_s, u"A"_s, u"--json"_s, u"--csv"_s}, 2, "do not go together"},
        {{u"tables"_s}, 0, "Table\nPS3Games\nPS3Personal\nPS3Links\n"},
        {{u"import"_s, list}, 2, "--in games"},
        {{u"import"_s, list, u"--in"_s, u"games"_s, u"--dry-run"_s},
         0,
         "All: 2\nUpdates: 1\nNew Entries: 1\n"},
        {{u"search"_s, u"new"_s}, 3, "Nothing"},
        {{u"import"_s, list, u"--in"_s, u"games"_s}, 0, "line 2"},
        {{u"import"_s, csv, u"--in"_s, u"games"_s, u"--csv"_s}, 0, "line 4, 5"},
        {{u"export"_s, u"-"_s, u"--csv"_s},
         0,
         "A1,O'Neil\r\nA2,\"two\nlines\"\r\nABCD00001,new\r\nC1,\"a,\nb\"\r\n"},
        {{u"export"_s, out}, 0, "4 rows"},
        {{u"export"_s, out}, 1, "is kept"},
        {{u"backup"_s, out}, 1, "is kept"},
        {{u"backup"_s, out, u"--overwrite"_s}, 0, "bytes"},
        {{u"search"_s, u"Neil"_s, u"--database"_s, out}, 0, "O'Neil"},
        {{u"compact"_s}, 0, "before"},
        {{u"backup"_s, u"--database"_s, list}, 1, "list\": "},
        {{u"compact"_s, u"--database"_s, root.path(u"none"_s)}, 1, "none"},
    };
    for (const auto& row : cases) {
        const Ran ran = cli(row.arguments);
        EXPECT_EQ(ran.code, row.code) << qPrintable(row.arguments.join(u' ')) << ran.err.constData();
        EXPECT_TRUE((ran.out + ran.err).contains(row.says))
            << qPrintable(row.arguments.join(u' ')) << ran.out.constData() << ran.err.constData();
    }
    EXPECT_TRUE(database.isSound());
}

} // namespace
} // namespace varnhold::test
