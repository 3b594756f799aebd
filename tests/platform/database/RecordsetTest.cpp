#include "DatabaseFixture.h"

#include "platform/database/DatabaseCatalog.h"
#include "platform/database/DatabaseCommand.h"
#include "platform/database/DatabaseStatement.h"

#include <QFileInfo>

namespace varnhold::test {

using namespace Qt::StringLiterals;

class RecordsetTest : public DatabaseTest
{
protected:
    void add(const QString& id, const QString& name)
    {
        records.AddNew();
        records.setValue(u"GameID"_s, id);
        records.setValue(u"GameName"_s, name);
        records.Update();
        records.UpdateBatch();
    }
};

TEST_F(RecordsetTest, WalksInOrderOfFoldedText)
{
    file.addGames(u"PS3Games"_s, {{u"4"_s, u"öl"_s},
                                  {u"1"_s, u"zebra"_s},
                                  {u"3"_s, u"Zebra"_s},
                                  {u"2"_s, u"alpha"_s},
                                  {u"5"_s, u"ÖK"_s},
                                  {u"6"_s, QString()},
                                  {u"7"_s, u""_s},
                                  {u"8"_s, u"Beta"_s}});
    EXPECT_EQ(ids(u"SELECT * FROM PS3Games ORDER BY GameName Asc"_s),
              (QStringList{u"6"_s, u"7"_s, u"2"_s, u"8"_s, u"1"_s, u"3"_s, u"5"_s, u"4"_s}));
    EXPECT_EQ(ids(u"SELECT * FROM PS3Games ORDER BY GameName Desc"_s),
              (QStringList{u"4"_s, u"5"_s, u"1"_s, u"3"_s, u"8"_s, u"2"_s, u"7"_s, u"6"_s}));
    EXPECT_EQ(ids(u"SELECT * FROM PS3Games"_s),
              (QStringList{u"4"_s, u"1"_s, u"3"_s, u"2"_s, u"5"_s, u"6"_s, u"7"_s, u"8"_s}));
}

TEST_F(RecordsetTest, CountsPositionsFromOneAndEndsBehindTheLast)
{
    file.addGames(u"PS3Games"_s, {{u"A"_s, u"x"_s}, {u"B"_s, u"y"_s}});
    open(u"SELECT * FROM PS3Games ORDER BY GameID Asc"_s);
    EXPECT_EQ(records.RecordCount(), 2);
    EXPECT_EQ(records.AbsolutePosition(), 1);
    records.MoveNext();
    EXPECT_EQ(records.AbsolutePosition(), 2);
    EXPECT_FALSE(records.atEnd());
    records.MoveNext();
    EXPECT_TRUE(records.atEnd());
    EXPECT_EQ(errorNumberOf([&] { records.MoveNext(); }), db::noCurrentRecord);
    EXPECT_EQ(errorNumberOf([&] { (void)records.value(u"GameID"_s); }), db::noCurrentRecord);
    EXPECT_EQ(errorNumberOf([&] { (void)records.AbsolutePosition(); }), db::noCurrentRecord);
    EXPECT_EQ(errorNumberOf([&] { records.setValue(u"GameID"_s, u"C"_s); }), db::noCurrentRecord);
    EXPECT_EQ(errorNumberOf([&] { records.Update(); }), db::noCurrentRecord);
}

TEST_F(RecordsetTest, KeepsItsRowsWhateverHappensToTheTable)
{
    file.addGames(u"PS3Games"_s, {{u"A"_s, u"x"_s}, {u"B"_s, u"y"_s}, {u"C"_s, u"z"_s}});
    open(u"SELECT * FROM PS3Games"_s);
    EXPECT_EQ(records.RecordCount(), 3);
    file.execute(u"DELETE FROM PS3Games WHERE GameID = 'B'; INSERT INTO PS3Games (GameID) VALUES ('D')"_s);
    EXPECT_EQ(records.RecordCount(), 3);
    records.MoveNext();
    EXPECT_EQ(errorNumberOf([&] { (void)records.value(u"GameNotes"_s); }), db::noCurrentRecord);
    records.setValue(u"GameName"_s, u"new"_s);
    EXPECT_EQ(errorNumberOf([&] { records.Update(); }), db::noCurrentRecord);
}

TEST_F(RecordsetTest, FindsTextInAnyCaseBeyondAsciiToo)
{
    file.addGames(u"PS3Games"_s, {{u"BLUS30443"_s, u"Ärger"_s},
                                  {u"ŻÓŁW"_s, u"ärger"_s},
                                  {u"K"_s, u"100% _?[x]"_s},
                                  {u"\u212A"_s, u"the Kelvin sign is no k"_s},
                                  {u"a\0b"_s, u"nul"_s}});
    EXPECT_EQ(ids(u"SELECT * FROM PS3Games where GameID='blus30443';"_s), QStringList{u"BLUS30443"_s});
    EXPECT_EQ(ids(u"SELECT * FROM PS3Games where GameID='żółw'"_s), QStringList{u"ŻÓŁW"_s});
    EXPECT_EQ(ids(u"SELECT * FROM PS3Games where GameID='k'"_s), QStringList{u"K"_s});
    EXPECT_EQ(ids(u"SELECT * FROM PS3Games where GameName ='ÄRGER' ORDER BY GameName Desc"_s),
              (QStringList{u"BLUS30443"_s, u"ŻÓŁW"_s}));
    EXPECT_EQ(ids(u"SELECT * FROM PS3Games where GameName='100% _?[X]'"_s), QStringList{u"K"_s});
    EXPECT_EQ(ids(u"SELECT * FROM PS3Games where GameName='100%'"_s), QStringList{});
    EXPECT_EQ(ids(u"SELECT * FROM PS3Games where GameID='A\0B'"_s), QStringList{u"a\0b"_s});
    // To the file's own index what follows a NUL is all the same.
    EXPECT_EQ(ids(u"SELECT * FROM PS3Games where GameID='a\0c'"_s), QStringList{});
}

TEST_F(RecordsetTest, AddsRecordsWithoutReadingTheTable)
{
    // A page in the middle of the table cannot be read.
    QList<GameRow> rows;
    for (int i = 0; i < 1'000; ++i)
        rows.append({u"ID%1"_s.arg(i, 4, 10, QChar(u'0')), u"x"_s, QString(200, u'n')});
    file.addGames(u"PS3Games"_s, rows);
    const QString name = QFileInfo(file.path()).fileName();
    QByteArray bytes = root.read(name);
    const qsizetype page = bytes.indexOf("ID0500" + QByteArray(1, 'x') + "nnn") / 4'096;
    ASSERT_GT(page, 0);
    bytes.replace(page * 4'096, 4'096, QByteArray(4'096, '\xFF'));
    root.write(name, bytes);

    open(u"SELECT * FROM PS3Games"_s);
    add(u"Z"_s, u"name"_s);
    records.AddNew();
    records.Update();
    EXPECT_EQ(errorNumberOf([&] { (void)records.RecordCount(); }), db::locked);
    connection.Close();
    EXPECT_EQ(stored(u"SELECT GameName FROM PS3Games WHERE GameID = 'Z'"_s), QStringList{u"name"_s});
}

TEST_F(RecordsetTest, StandsOnTheRecordThatItStored)
{
    file.addGames(u"PS3Games"_s, {{u"A"_s, u"x"_s}, {u"Z"_s, u"y"_s}});
    open(u"SELECT * FROM PS3Games ORDER BY GameID Asc"_s);
    add(u"M"_s, u"first"_s);
    records.setValue(u"GameName"_s, u"second"_s);
    EXPECT_EQ(records.value(u"GameName"_s), u"second"_s);
    records.Update();
    EXPECT_EQ(records.value(u"gamename"_s), u"second"_s);
    EXPECT_EQ(records.RecordCount(), 3);
    EXPECT_EQ(records.AbsolutePosition(), 3);
    records.MoveNext();
    EXPECT_TRUE(records.atEnd());
    EXPECT_EQ(stored(u"SELECT GameName FROM PS3Games WHERE GameID = 'M'"_s), QStringList{u"second"_s});
}

TEST_F(RecordsetTest, AnotherAddNewOrMoveNextStoresTheRecordUnderWay)
{
    open(u"SELECT * FROM PS3Games"_s);
    records.AddNew();
    records.setValue(u"GameID"_s, u"A"_s);
    EXPECT_EQ(records.value(u"GameID"_s), u"A"_s);
    EXPECT_TRUE(records.value(u"GameName"_s).isNull());
    records.AddNew();
    records.setValue(u"GameID"_s, u"B"_s);
    records.MoveNext();
    EXPECT_EQ(stored(u"SELECT GameID FROM PS3Games"_s), (QStringList{u"A"_s, u"B"_s}));
    records.AddNew();
    records.setValue(u"GameID"_s, u"C"_s);
    records.Close();
    EXPECT_EQ(stored(u"SELECT GameID FROM PS3Games"_s), (QStringList{u"A"_s, u"B"_s}));
}

TEST_F(RecordsetTest, StoresInEachRecordWhatThatOneSets)
{
    open(u"SELECT * FROM PS3Games"_s);
    const QList<QStringList> sets[] = {{{u"GameID"_s, u"A"_s}, {u"GameName"_s, u"a"_s}},
                                       {{u"GameName"_s, u"b"_s}, {u"GameID"_s, u"B"_s}},
                                       {{u"GameID"_s, u"C"_s}, {u"GameNotes"_s, u"c"_s}},
                                       {{u"GameID"_s, u"D"_s}},
                                       {},
                                       {{u"GameID"_s, u"E"_s}, {u"GameName"_s, u"e"_s}}};
    for (const QList<QStringList>& set : sets) {
        records.AddNew();
        for (const QStringList& value : set)
            records.setValue(value[0], value[1]);
        records.Update();
    }
    EXPECT_EQ(stored(u"SELECT coalesce(GameID, '-') || coalesce(GameName, '-') || coalesce(GameNotes, '-') "
                     "FROM PS3Games"_s),
              (QStringList{u"Aa-"_s, u"Bb-"_s, u"C-c"_s, u"D--"_s, u"---"_s, u"Ee-"_s}));
}

TEST_F(RecordsetTest, UpdatesTheCurrentRow)
{
    file.addGames(u"PS3Games"_s, {{u"A"_s, u"x"_s, u"notes"_s}, {u"B"_s, u"y"_s}});
    open(u"SELECT * FROM PS3Games Where GameID='b'"_s);
    records.setValue(u"GAMENAME"_s, u"new"_s);
    records.setValue(u"GameNotes"_s, u""_s);
    records.AppendChunk(u"GameImage"_s, "pic");
    records.AppendChunk(u"GameImage"_s, QByteArray("ture\0", 5));
    records.Update();
    EXPECT_EQ(records.value(u"GameName"_s), u"new"_s);
    EXPECT_EQ(stored(u"SELECT GameName FROM PS3Games"_s), (QStringList{u"x"_s, u"new"_s}));
    EXPECT_EQ(stored(u"SELECT typeof(GameNotes) FROM PS3Games"_s), (QStringList{u"text"_s, u"text"_s}));
    EXPECT_EQ(file.bytes(u"SELECT GameImage FROM PS3Games WHERE GameID = 'B'"_s), QByteArray("picture\0", 8));
}

TEST_F(RecordsetTest, RefusesAValueThatIsTakenAndKeepsTheRecordUnderWay)
{
    file.addGames(u"PS3Games"_s, {{u"BLUS30443"_s, u"x"_s}, {u"ŻÓŁW"_s, u"y"_s}});
    file.execute(u"CREATE TABLE Plain (Id TEXT UNIQUE, Key TEXT PRIMARY KEY); "
                 "INSERT INTO Plain VALUES ('a', 'b')"_s);
    const struct
    {
        QString table, column, value;
    } cases[] = {{u"PS3Games"_s, u"GameID"_s, u"BLUS30443"_s},
                 {u"PS3Games"_s, u"GameID"_s, u"blus30443"_s},
                 {u"PS3Games"_s, u"GameID"_s, u"żółw"_s},
                 {u"Plain"_s, u"Id"_s, u"A"_s},
                 {u"Plain"_s, u"Key"_s, u"B"_s}};
    QString free = u"free"_s;
    for (const auto& [table, column, value] : cases) {
        free += u'x';
        open(u"SELECT * FROM "_s + table);
        records.AddNew();
        records.setValue(column, value);
        EXPECT_EQ(errorNumberOf([&] { records.Update(); }), db::duplicate) << qPrintable(value);
        EXPECT_EQ(errorNumberOf([&] { records.AddNew(); }), db::duplicate) << qPrintable(value);
        records.setValue(column, free);
        records.Update();
        EXPECT_EQ(stored(u"SELECT %1 FROM %2 ORDER BY rowid DESC LIMIT 1"_s.arg(column, table)),
                  QStringList{free});
    }
    // A row is no obstacle to itself.
    open(u"SELECT * FROM PS3Games Where GameID='żółw'"_s);
    records.setValue(u"GameID"_s, u"Żółw"_s);
    records.Update();
    records.setValue(u"GameID"_s, u"blus30443"_s);
    EXPECT_EQ(errorNumberOf([&] { records.Update(); }), db::duplicate);
}

TEST_F(RecordsetTest, GivesEveryTypeAsText)
{
    file.execute(u"CREATE TABLE Odd (GameID INTEGER PRIMARY KEY, GameName REAL, GameNotes, GameImage TEXT, "
                 "rowid TEXT); INSERT INTO Odd VALUES (7, 2.5, x'414243', NULL, 'shadow')"_s);
    open(u"SELECT * FROM Odd where GameID='7' ORDER BY GameName Asc"_s);
    EXPECT_EQ(records.value(u"GameID"_s), u"7"_s);
    EXPECT_EQ(records.value(u"GameName"_s), u"2.5"_s);
    EXPECT_EQ(records.value(u"GameNotes"_s), u"ABC"_s);
    EXPECT_EQ(records.value(u"rowid"_s), u"shadow"_s);
    EXPECT_TRUE(records.value(u"GameImage"_s).isNull());
    EXPECT_EQ(records.ActualSize(u"GameImage"_s), 0);
    EXPECT_EQ(records.GetChunk(u"GameImage"_s, 10), QByteArray());
    EXPECT_EQ(ids(u"SELECT * FROM Odd where GameID='07'"_s), QStringList{});
}

TEST_F(RecordsetTest, FindsEveryTypeAsText)
{
    file.execute(u"CREATE TABLE Bare (GameID UNIQUE, GameName); CREATE INDEX Names ON Bare (GameName); "
                 "INSERT INTO Bare VALUES (7, 0.1 + 0.2), (x'424C', 'seven'), ('text', x'534556454E'), "
                 "(2.5, 7.0); INSERT INTO PS3Games (GameID) VALUES (x'424C5553'), ('BCES')"_s);
    const struct
    {
        QString table, id;
        int count;
    } lookUps[] = {{u"Bare"_s, u"7"_s, 1},        {u"Bare"_s, u"07"_s, 0},   {u"Bare"_s, u"7.0"_s, 0},
                   {u"Bare"_s, u"2.5"_s, 1},      {u"Bare"_s, u"bl"_s, 1},   {u"Bare"_s, u"TEXT"_s, 1},
                   {u"PS3Games"_s, u"blus"_s, 1}, {u"Bare"_s, u"x'42'"_s, 0}};
    for (const auto& [table, id, count] : lookUps) {
        DatabaseStatement statement;
        statement.table = table;
        statement.condition = {u"GameID"_s, id};
        connection.isOpen() ? connection.Close() : void();
        connection.Open(connectionTo(file.path()));
        records.Open(statement, connection);
        EXPECT_EQ(records.RecordCount(), count) << qPrintable(id);
        if (count == 0)
            continue;
        // Known is what is found: the same value is refused.
        records.AddNew();
        records.setValue(u"GameID"_s, id);
        EXPECT_EQ(errorNumberOf([&] { records.Update(); }), db::duplicate) << qPrintable(id);
    }
    EXPECT_EQ(ids(u"SELECT * FROM Bare where GameName='Seven' ORDER BY GameID Asc"_s),
              (QStringList{u"BL"_s, u"text"_s}));
    EXPECT_EQ(ids(u"SELECT * FROM Bare where GameName='0.3'"_s), QStringList{u"7"_s});
    EXPECT_EQ(ids(u"SELECT * FROM Bare ORDER BY GameID Asc"_s),
              (QStringList{u"2.5"_s, u"7"_s, u"BL"_s, u"text"_s}));
}

TEST_F(RecordsetTest, WorksOnATableWithoutRowIds)
{
    file.execute(
        u"CREATE TABLE Own (GameImage BLOB, GameName TEXT, GameID TEXT COLLATE NOCASE, Part INTEGER, "
        "GameNotes TEXT, PRIMARY KEY (GameID, Part)) WITHOUT ROWID"_s);
    file.execute(
        u"WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 FROM n WHERE i < 300) "
        "INSERT INTO Own SELECT zeroblob(i), 'Title ' || (i * 7 % 301), 'ID' || i, 1, 'n' || i FROM n"_s);
    open(u"SELECT * FROM Own ORDER BY GameName Desc"_s);
    ASSERT_EQ(records.RecordCount(), 300);
    for (; !records.atEnd(); records.MoveNext()) {
        const int i = records.value(u"GameID"_s).mid(2).toInt();
        EXPECT_EQ(records.value(u"GameName"_s), u"Title %1"_s.arg(i * 7 % 301));
        EXPECT_EQ(records.value(u"GameNotes"_s), u"n%1"_s.arg(i));
        EXPECT_EQ(records.ActualSize(u"GameImage"_s), i);
        EXPECT_EQ(records.GetChunk(u"GameImage"_s, 5).size() + records.GetChunk(u"GameImage"_s, 1'000).size(),
                  i);
    }
    records.AddNew();
    for (const auto& column : {u"GameID"_s, u"GameName"_s, u"Part"_s})
        records.setValue(column, u"9"_s);
    records.Update();
    records.setValue(u"GameID"_s, u"New"_s); // the key itself
    records.Update();
    records.setValue(u"GameName"_s, u"named"_s);
    records.Update();
    EXPECT_EQ(records.value(u"GameName"_s), u"named"_s);
    records.AddNew();
    records.setValue(u"GameID"_s, u"NEW"_s);
    records.setValue(u"Part"_s, u"9"_s);
    EXPECT_EQ(errorNumberOf([&] { records.Update(); }), db::duplicate);
    EXPECT_EQ(ids(u"SELECT * FROM Own where GameID='id7'"_s), QStringList{u"ID7"_s});
    DatabaseCommand command;
    command.setActiveConnection(connection);
    command.setCommandText(u"DELETE * FROM Own WHERE GameID='id8'"_s);
    EXPECT_EQ(command.Execute(), 1);
    EXPECT_EQ(stored(u"SELECT GameID || Part || GameName FROM Own WHERE GameID IN ('ID8', 'New')"_s),
              QStringList{u"New9named"_s});
}

TEST_F(RecordsetTest, SearchesByPattern)
{
    file.addGames(u"PS3Games"_s, {{u"A1"_s, u"100% ÄRGER's"_s},
                                  {u"A2"_s, QString()},
                                  {u"B1"_s, u"[a] ärger"_s},
                                  {u"B_2"_s, u"ärgerlich"_s, QString(300, u'n')}});
    const auto found = [&](const QString& pattern, const QString& column = u"GameName"_s) {
        DatabaseStatement statement;
        statement.table = u"PS3Games"_s;
        statement.condition = {column, pattern, DatabaseStatement::Comparison::Like};
        statement.order = {column, true};
        open(u"SELECT * FROM PS3Links"_s);
        records.Close();
        records.Open(statement, connection);
        QString all;
        for (; !records.atEnd(); records.MoveNext())
            all += records.value(u"GameID"_s) + u'=' + records.value(u"GameName"_s) + u';';
        return all;
    };
    EXPECT_EQ(found(u"%Ärger"_s), u"B1=[a] ärger;"_s);
    EXPECT_EQ(found(u"%ärger'%"_s), u"A1=100% ÄRGER's;"_s);
    EXPECT_EQ(found(u"%"_s, u"GameID"_s), u"B_2=ärgerlich;B1=[a] ärger;A2=;A1=100% ÄRGER's;"_s);
    EXPECT_EQ(found(u"%%"_s).count(u';'), 4) << "what has no name, too";
    EXPECT_EQ(found(u"%_%"_s).count(u';'), 3);
    EXPECT_EQ(ids(u"SELECT * FROM PS3Games where GameID LIKE 'b%' ORDER BY GameID Asc"_s),
              (QStringList{u"B1"_s, u"B_2"_s}));
    EXPECT_EQ(ids(u"SELECT * FROM PS3Games where GameName like '[a]%'"_s), QStringList{u"B1"_s});
}

TEST_F(RecordsetTest, HoldsLongAndOddValues)
{
    const QString longText = QString(100'000, u'%');
    const QString odd = u"a\0b \"quoted\" \\ \u4E2D\U0001F3AE"_s;
    open(u"SELECT * FROM PS3Games"_s);
    add(longText, odd);
    add(odd, longText);
    EXPECT_TRUE(ids(u"SELECT * FROM PS3Games ORDER BY GameName Asc"_s) == (QStringList{odd, longText}));
    EXPECT_EQ(ids(u"SELECT * FROM PS3Games where GameName='"_s + longText + u"'"_s), QStringList{odd});
    EXPECT_EQ(ids(u"SELECT * FROM PS3Games where GameID='"_s + odd.toUpper() + u"'"_s), QStringList{odd});
}

TEST_F(RecordsetTest, ReadsBinariesInChunks)
{
    QByteArray picture(200'000, Qt::Uninitialized);
    for (qsizetype i = 0; i < picture.size(); ++i)
        picture[i] = static_cast<char>(i * 7 + i / 256);
    file.addGames(u"PS3Games"_s, {{u"A"_s, u"x"_s, {}, picture}, {u"B"_s, u"y"_s, {}, "b"}});
    open(u"SELECT * FROM PS3Games"_s);
    EXPECT_EQ(records.ActualSize(u"GameImage"_s), picture.size());
    QByteArray read;
    for (QByteArray chunk; !(chunk = records.GetChunk(u"GameImage"_s, 65'536)).isEmpty();)
        read += chunk;
    EXPECT_EQ(read, picture);
    records.MoveNext();
    EXPECT_EQ(records.GetChunk(u"GameImage"_s, 100), "b");
    records.AddNew();
    EXPECT_EQ(errorNumberOf([&] { (void)records.GetChunk(u"GameImage"_s, 1); }), db::notAllowed);
}

TEST_F(RecordsetTest, TellsWhatIsNotThere)
{
    const auto openFailure = [&](const QString& statement) {
        return errorNumberOf([&] { open(statement); });
    };
    EXPECT_EQ(openFailure(u"SELECT * FROM Games"_s), db::missingTable);
    EXPECT_EQ(openFailure(u"SELECT * FROM sqlite_schema"_s), db::missingTable);
    EXPECT_EQ(openFailure(u"SELECT * FROM PS3Games where Game='x'"_s), db::unknownColumn);
    EXPECT_EQ(openFailure(u"SELECT * FROM PS3Games ORDER BY Title Asc"_s), db::unknownColumn);
    open(u"select * from ps3games order by gamename asc"_s);
    EXPECT_EQ(errorNumberOf([&] { records.AddNew(), records.setValue(u"Title"_s, u"x"_s); }),
              db::unknownColumn);
}

TEST_F(RecordsetTest, ObjectsKnowWhetherTheyAreOpen)
{
    EXPECT_EQ(errorNumberOf([&] { records.Open(u"SELECT * FROM PS3Games"_s, connection); }),
              db::objectClosed);
    EXPECT_EQ(errorNumberOf([&] { connection.Close(); }), db::objectClosed);
    EXPECT_EQ(errorNumberOf([&] { records.Close(); }), db::objectClosed);
    EXPECT_EQ(errorNumberOf([&] { records.UpdateBatch(); }), db::objectClosed);
    EXPECT_EQ(errorNumberOf([&] { (void)records.RecordCount(); }), db::objectClosed);
    DatabaseCommand command;
    command.setCommandText(u"DELETE * FROM PS3Games WHERE GameID='x'"_s);
    EXPECT_EQ(errorNumberOf([&] { command.Execute(); }), db::objectClosed);

    open(u"SELECT * FROM PS3Games"_s);
    EXPECT_EQ(errorNumberOf([&] { records.Open(u"SELECT * FROM PS3Games"_s, connection); }), db::objectOpen);
    EXPECT_EQ(errorNumberOf([&] { connection.Open(connectionTo(file.path())); }), db::objectOpen);
    Recordset second;
    second.Open(u"SELECT * FROM PS3Links "_s, connection);
    connection.Close();
    EXPECT_FALSE(records.isOpen());
    EXPECT_EQ(errorNumberOf([&] { second.AddNew(); }), db::objectClosed);
    EXPECT_EQ(ids(u"SELECT * FROM PS3Games"_s), QStringList{});
}

TEST_F(RecordsetTest, DeletesWhatTheConditionNames)
{
    file.addGames(u"PS3Games"_s, {{u"A"_s, u"x"_s}, {u"a%"_s, u"X"_s}, {u"Ä"_s, u"y"_s}});
    connection.Open(connectionTo(file.path()));
    DatabaseCommand command;
    command.setActiveConnection(connection);
    const auto deleted = [&](const QString& statement) {
        command.setCommandText(statement);
        return command.Execute();
    };
    EXPECT_EQ(deleted(u"DELETE * FROM PS3Games WHERE GameID='%'"_s), 0);
    EXPECT_EQ(deleted(u"DELETE * FROM PS3Games WHERE GameID='ä'"_s), 1);
    EXPECT_EQ(deleted(u"DELETE * FROM PS3Games WHERE GameName='X';"_s), 2);
    EXPECT_EQ(stored(u"SELECT GameID FROM PS3Games"_s), QStringList{});
    EXPECT_EQ(errorNumberOf([&] { deleted(u"SELECT * FROM PS3Games"_s); }), db::badSyntax);
    EXPECT_EQ(errorNumberOf([&] { open(u"DELETE * FROM PS3Games WHERE GameID='A'"_s); }), db::badSyntax);
}

TEST_F(RecordsetTest, RenamesTables)
{
    file.execute(
        u"CREATE TABLE Games (GameID TEXT); CREATE VIEW Taken AS SELECT 1; CREATE TABLE \"Zwölf \"\"x\"\"\" (a)"_s);
    connection.Open(connectionTo(file.path()));
    EXPECT_EQ(tableNames(connection),
              (QStringList{u"PS3Games"_s, u"PS3Personal"_s, u"PS3Links"_s, u"Games"_s, u"Zwölf \"x\""_s}));
    EXPECT_EQ(errorNumberOf([&] { renameTable(connection, u"games"_s, u"PS3GAMES"_s); }), db::tableExists);
    EXPECT_EQ(errorNumberOf([&] { renameTable(connection, u"Games"_s, u"taken"_s); }), db::tableExists);
    EXPECT_EQ(errorNumberOf([&] { renameTable(connection, u"Nothing"_s, u"x"_s); }), db::missingTable);
    EXPECT_EQ(errorNumberOf([&] { renameTable(connection, u"Games"_s, u""_s); }), db::badSyntax);
    open(u"SELECT * FROM Games"_s);
    renameTable(connection, u"GAMES"_s, u"gameS"_s);
    renameTable(connection, u"ZWÖLF \"X\""_s, u"'; DROP TABLE PS3Games; --"_s);
    renameTable(connection, u"ps3games"_s, u"ÄÖ"_s);
    renameTable(connection, u"äö"_s, u"äÖ"_s);
    EXPECT_EQ(tableNames(connection), (QStringList{u"äÖ"_s, u"PS3Personal"_s, u"PS3Links"_s, u"gameS"_s,
                                                   u"'; DROP TABLE PS3Games; --"_s}));
    EXPECT_EQ(ids(u"SELECT * FROM äÖ"_s), QStringList{});
}

TEST_F(RecordsetTest, WalksManyRowsWithEveryColumn)
{
    QList<GameRow> rows;
    for (int i = 0; i < 20'000; ++i)
        rows.append({u"ID%1"_s.arg(i, 7, 10, QChar(u'0')),
                     u"Title %1"_s.arg((i * 7919) % 20'000, 5, 10, QChar(u'0')),
                     i % 3 == 0 ? QString() : u"notes %1"_s.arg(i) + QString(i % 500, u'n')});
    file.addGames(u"PS3Games"_s, rows);
    file.execute(u"DELETE FROM PS3Games WHERE rowid % 5 = 0"_s);
    for (const auto& order : {u" ORDER BY GameName Asc"_s, u" ORDER BY GameID Desc"_s, u""_s}) {
        open(u"SELECT * FROM PS3Games"_s + order);
        ASSERT_EQ(records.RecordCount(), 16'000);
        QString last;
        for (int position = 1; !records.atEnd(); records.MoveNext(), ++position) {
            ASSERT_EQ(records.AbsolutePosition(), position);
            const GameRow& row = rows[records.value(u"GameID"_s).mid(2).toInt()];
            ASSERT_EQ(records.value(u"GameName"_s), row.name);
            ASSERT_EQ(records.value(u"GameNotes"_s), row.notes);
            ASSERT_EQ(records.value(u"GameNotes"_s).isNull(), row.notes.isNull());
            if (order.contains(u"Name"_s)) {
                ASSERT_LT(last, row.name);
            }
            last = row.name;
        }
    }
}

} // namespace varnhold::test
