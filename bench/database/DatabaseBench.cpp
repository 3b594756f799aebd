// The database layer, from a closed file to a closed file. Records stored with one Update each, against a
// bare loop over a prepared statement with the same journal and against a file in the engine's default mode;
// the walk over a list ordered by name, against the toolkit's query and table model read to their ends.
// database_bench FOLDER [PAIRS], the folder on a real disk.

#include "platform/database/DatabaseConnection.h"
#include "platform/database/Recordset.h"
#include "support/PairedRuns.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QSqlTableModel>
#include <QStringList>
#include <QVariant>

#include <sqlite3.h>

#include <cstdlib>
#include <random>
#include <span>

namespace varnhold::bench {

using namespace Qt::StringLiterals;

namespace {

constexpr int storedRows = 10'000;
constexpr int storedRowsDefaultMode = 500;
constexpr int listedRows = 100'000;

void require(bool condition, const char* what)
{
    if (!condition) {
        std::fprintf(stderr, "%s\n", what);
        std::exit(1);
    }
}

void run(sqlite3* engine, const char* sql)
{
    require(sqlite3_exec(engine, sql, nullptr, nullptr, nullptr) == SQLITE_OK, sql);
}

sqlite3* openBare(const QString& path)
{
    sqlite3* engine = nullptr;
    require(sqlite3_open(QFile::encodeName(path).constData(), &engine) == SQLITE_OK, "open");
    return engine;
}

void makeEmpty(const QString& path)
{
    QFile::remove(path);
    sqlite3* const engine = openBare(path);
    run(engine, "CREATE TABLE PS3Games (GameID TEXT COLLATE NOCASE UNIQUE, GameName TEXT, GameNotes TEXT, "
                "GameImage BLOB)");
    sqlite3_close(engine);
}

struct Title
{
    QString id;
    QString name;
};

/// Titles of two to four made-up words, many of which begin alike, in no order.
QList<Title> makeTitles(int count)
{
    const QStringList words{u"The"_s,     u"Silver"_s,  u"Harbour"_s, u"Legend"_s, u"Racing"_s, u"of"_s,
                            u"Ember"_s,   u"Fall"_s,    u"Über"_s,    u"Quiet"_s,  u"Storm"_s,  u"Keepers"_s,
                            u"Lantern"_s, u"Edition"_s, u"Deep"_s,    u"Valley"_s, u"Wings"_s,  u"Orbit"_s};
    std::mt19937 random(17);
    QList<Title> titles;
    for (int i = 0; i < count; ++i) {
        QStringList name;
        for (auto left = 2 + random() % 3; left > 0; --left)
            name << words[static_cast<qsizetype>(random() % static_cast<unsigned>(words.size()))];
        titles.append({u"BL%1"_s.arg((i * 7'919LL) % 10'000'019, 7, 10, QChar(u'0')),
                       name.join(u' ') + u' ' + QString::number(random() % 1'000)});
    }
    return titles;
}

void fill(const QString& path, const QList<Title>& titles, int notes)
{
    makeEmpty(path);
    sqlite3* const engine = openBare(path);
    run(engine, "PRAGMA synchronous = OFF; BEGIN");
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(engine, "INSERT INTO PS3Games VALUES (?, ?, ?, NULL)", -1, &insert, nullptr);
    const QByteArray text(notes, 'n');
    for (const Title& title : titles) {
        sqlite3_bind_text16(insert, 1, title.id.utf16(), static_cast<int>(title.id.size() * 2),
                            SQLITE_STATIC);
        sqlite3_bind_text16(insert, 2, title.name.utf16(), static_cast<int>(title.name.size() * 2),
                            SQLITE_STATIC);
        if (notes > 0)
            sqlite3_bind_text(insert, 3, text.constData(), static_cast<int>(text.size()), SQLITE_STATIC);
        require(sqlite3_step(insert) == SQLITE_DONE, "insert");
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    run(engine, "COMMIT");
    sqlite3_close(engine);
}

QString connectionTo(const QString& path)
{
    return u"Provider=Microsoft.Jet.OLEDB.4.0;Data Source="_s + path + u";Persist Security Info=False"_s;
}

void storeOurs(const QString& path, const QList<Title>& titles)
{
    DatabaseConnection connection;
    connection.Open(connectionTo(path));
    Recordset records;
    records.Open(u"SELECT * FROM PS3Games"_s, connection);
    for (const Title& title : titles) {
        records.AddNew();
        records.setValue(u"GameID"_s, title.id);
        records.setValue(u"GameName"_s, title.name);
        records.Update();
        records.UpdateBatch();
    }
    records.Close();
    connection.Close();
}

/// Each row a write of its own; texts are there in the engine's encoding already.
void storeBare(const QString& path, std::span<const std::pair<std::string, std::string>> rows, bool logAhead)
{
    sqlite3* const engine = openBare(path);
    if (logAhead)
        run(engine, "PRAGMA journal_mode = WAL; PRAGMA synchronous = NORMAL");
    sqlite3_stmt* insert = nullptr;
    sqlite3_prepare_v2(engine, "INSERT INTO PS3Games (GameID, GameName) VALUES (?, ?)", -1, &insert, nullptr);
    for (const auto& [id, name] : rows) {
        sqlite3_bind_text(insert, 1, id.data(), static_cast<int>(id.size()), SQLITE_STATIC);
        sqlite3_bind_text(insert, 2, name.data(), static_cast<int>(name.size()), SQLITE_STATIC);
        require(sqlite3_step(insert) == SQLITE_DONE, "insert");
        sqlite3_reset(insert);
    }
    sqlite3_finalize(insert);
    if (logAhead)
        run(engine, "PRAGMA journal_mode = DELETE");
    sqlite3_close(engine);
}

bool benchStores(const QString& folder, int pairs)
{
    const QString ourPath = folder + u"/ours.mdb"_s;
    const QString barePath = folder + u"/bare.mdb"_s;
    const QList<Title> titles = makeTitles(storedRows);
    std::vector<std::pair<std::string, std::string>> rows;
    for (const Title& title : titles)
        rows.emplace_back(title.id.toStdString(), title.name.toStdString());
    const auto wall = [](const std::function<void()>& work) { return secondsOf(work); };
    const auto processor = [](const std::function<void()>& work) { return cpuSecondsOf(work); };
    const auto ours = [&](int count, auto&& clock) {
        makeEmpty(ourPath);
        return clock([&] { storeOurs(ourPath, titles.first(count)); }) / count;
    };
    const auto bare = [&](int count, bool logAhead, auto&& clock) {
        makeEmpty(barePath);
        return clock([&] {
                   storeBare(barePath, std::span(rows).first(static_cast<std::size_t>(count)), logAhead);
               }) /
               count;
    };
    const auto many = [&](auto&& clock) {
        return comparePaired(
            pairs, [&] { return ours(storedRows, clock); }, [&] { return bare(storedRows, true, clock); });
    };
    // At least 0.9 of its speed, and at least 25 times its speed, as times.
    bool kept = printPaired("10,000 records, one Update each, against a bare loop", many(wall), "us a row",
                            1e6, 1 / 0.9);
    printPaired("the same, processor time", many(processor), "us a row", 1e6);
    kept = printPaired("the same, against the engine's default mode (500 rows)",
                       comparePaired(
                           3, [&] { return ours(storedRows, wall); },
                           [&] { return bare(storedRowsDefaultMode, false, wall); }),
                       "us a row", 1e6, 1 / 25.0) &&
           kept;
    printPaired("1 record, against the engine's default mode",
                comparePaired(
                    21, [&] { return ours(1, wall); }, [&] { return bare(1, false, wall); }),
                "us", 1e6);
    QFile::remove(ourPath);
    QFile::remove(barePath);
    return kept;
}

qsizetype walkOurs(const QString& path, const QString& order)
{
    DatabaseConnection connection;
    connection.Open(connectionTo(path));
    Recordset records;
    records.Open(u"SELECT * FROM PS3Games ORDER BY %1 Asc"_s.arg(order), connection);
    require(records.RecordCount() == listedRows, "rows are missing");
    qsizetype characters = 0;
    for (; !records.atEnd(); records.MoveNext())
        characters += records.value(u"GameID"_s).size() + records.value(u"GameName"_s).size();
    return characters;
}

/// Opens the toolkit's database for the length of a call.
template <typename Work> qsizetype withToolkit(const QString& path, Work&& work)
{
    const QString name = u"bench"_s;
    qsizetype characters = 0;
    {
        QSqlDatabase database = QSqlDatabase::addDatabase(u"QSQLITE"_s, name);
        database.setDatabaseName(path);
        require(database.open(), "the toolkit opens no database");
        characters = work(database);
    }
    QSqlDatabase::removeDatabase(name);
    return characters;
}

qsizetype walkQuery(const QString& path, const QString& order)
{
    return withToolkit(path, [&](const QSqlDatabase& database) {
        QSqlQuery query(database);
        query.setForwardOnly(true);
        require(query.exec(u"SELECT GameID, GameName FROM PS3Games ORDER BY %1 COLLATE NOCASE"_s.arg(order)),
                "query");
        qsizetype characters = 0;
        while (query.next())
            characters += query.value(0).toString().size() + query.value(1).toString().size();
        return characters;
    });
}

qsizetype walkModel(const QString& path, const QString& order)
{
    return withToolkit(path, [&](const QSqlDatabase& database) {
        QSqlTableModel model(nullptr, database);
        model.setTable(u"PS3Games"_s);
        model.setSort(model.fieldIndex(order), Qt::AscendingOrder);
        require(model.select(), "model");
        while (model.canFetchMore())
            model.fetchMore();
        require(model.rowCount() == listedRows, "rows are missing");
        qsizetype characters = 0;
        for (int row = 0; row < model.rowCount(); ++row)
            characters += model.data(model.index(row, 0)).toString().size() +
                          model.data(model.index(row, 1)).toString().size();
        return characters;
    });
}

bool benchWalks(const QString& folder, int pairs)
{
    const QString path = folder + u"/list.mdb"_s;
    bool kept = true;
    for (const int notes : {0, 1'500}) {
        fill(path, makeTitles(listedRows), notes);
        for (const auto& order : {u"GameName"_s, u"GameID"_s}) {
            const qsizetype characters = walkOurs(path, order);
            const auto timed = [&](auto&& walk) {
                return [&, walk] {
                    return cpuSecondsOf(
                        [&] { require(walk(path, order) == characters, "texts are missing"); });
                };
            };
            const std::string name =
                "100,000 titles by " + order.toStdString() + (notes > 0 ? ", notes" : "") + ", against ";
            printPaired(name + "a query", comparePaired(pairs, timed(walkOurs), timed(walkQuery)), "ms",
                        1000);
            kept =
                printPaired(name + "a table model", comparePaired(pairs, timed(walkOurs), timed(walkModel)),
                            "ms", 1000, 1 / 3.0) &&
                kept;
        }
    }
    QFile::remove(path);
    return kept;
}

} // namespace

} // namespace varnhold::bench

int main(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: database_bench FOLDER [PAIRS]\n");
        return 1;
    }
    const QString folder = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    const int pairs = argc > 2 ? std::atoi(argv[2]) : 7;
    const bool stores = varnhold::bench::benchStores(folder, pairs);
    return varnhold::bench::benchWalks(folder, pairs) && stores ? 0 : 1;
}
