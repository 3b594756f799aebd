// What works on a whole database: a search through 100,000 titles against the engine's own shell with LIKE
// and the same order, from a closed file to all ids and names read; a compaction against the shell's VACUUM
// INTO with a sync, and the memory that it takes; a copy against cp with a sync. maintenance_bench FOLDER
// [PAIRS [MEGABYTES...]], the folder on a real disk.

#include "platform/database/DatabaseCompaction.h"
#include "platform/database/DatabaseConnection.h"
#include "platform/database/DatabaseCopy.h"
#include "platform/database/DatabaseStatement.h"
#include "platform/database/Recordset.h"
#include "support/PairedRuns.h"

#include <QCoreApplication>
#include <QDir>
#include <QFile>
#include <QProcess>

#include <cstdlib>

namespace varnhold::bench {

using namespace Qt::StringLiterals;

namespace {

void require(bool condition, const QString& what)
{
    if (condition)
        return;
    std::fprintf(stderr, "%s\n", qPrintable(what));
    std::exit(1);
}

void run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(program, arguments);
    require(process.waitForFinished(-1) && process.exitCode() == 0, program + u' ' + arguments.join(u' '));
}

void shell(const QString& path, const QString& sql)
{
    run(u"sqlite3"_s, {u"-batch"_s, path, sql});
}

/// Notes in every fourth row; every hundredth name has the rare word.
void makeTitles(const QString& path)
{
    QFile::remove(path);
    shell(path,
          u"PRAGMA synchronous = OFF; CREATE TABLE PS3Games (GameID TEXT COLLATE NOCASE UNIQUE, GameName "
          "TEXT, GameNotes TEXT, GameImage BLOB); WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 "
          "FROM n WHERE i < 100000) INSERT INTO PS3Games SELECT printf('BL%07d', i * 7919 % 10000019), "
          "CASE WHEN i % 100 THEN 'Silver Harbour Edition ' ELSE 'Quiet Lantern ' END || "
          "(i * 31337 % 99991), CASE i % 4 WHEN 0 THEN replace(hex(zeroblob(600)), '00', 'n ') END, NULL "
          "FROM n"_s);
}

/// Every second row is deleted again, so that there is something to compact.
void makePictures(const QString& path, int megabytes)
{
    QFile::remove(path);
    shell(path,
          u"PRAGMA synchronous = OFF; CREATE TABLE PS3Games (GameID TEXT COLLATE NOCASE UNIQUE, GameName "
          "TEXT, GameNotes TEXT, GameImage BLOB); WITH RECURSIVE n(i) AS (SELECT 1 UNION ALL SELECT i + 1 "
          "FROM n WHERE i < %1) INSERT INTO PS3Games SELECT printf('BL%07d', i), 'Title ' || i, "
          "hex(randomblob(500)), randomblob(48000 + i % 4000) FROM n; DELETE FROM PS3Games WHERE rowid % 10 "
          "= 0"_s.arg(megabytes * 20));
}

qsizetype search(const QString& path, const QString& pattern)
{
    DatabaseConnection connection;
    connection.Open(u"Data Source="_s + path);
    DatabaseStatement statement;
    statement.table = u"PS3Games"_s;
    statement.condition = {u"GameName"_s, pattern, DatabaseStatement::Comparison::Like};
    statement.order = {u"GameName"_s, false};
    Recordset records;
    records.Open(statement, connection);
    qsizetype characters = 0;
    for (; !records.atEnd(); records.MoveNext())
        characters += records.value(u"GameID"_s).size() + records.value(u"GameName"_s).size();
    return characters;
}

bool benchSearches(const QString& folder, int pairs)
{
    const QString path = folder + u"/titles.mdb"_s;
    makeTitles(path);
    bool kept = true;
    for (const auto& [name, pattern] : {std::pair{"a rare text", u"%lantern%"_s}, {"all rows", u"%"_s}}) {
        kept = printPaired(
                   "search of 100,000 titles, " + std::string(name),
                   comparePaired(
                       pairs, [&] { return secondsOf([&] { require(search(path, pattern) > 0, path); }); },
                       [&] {
                           return secondsOf([&] {
                               shell(path, u"SELECT GameID, GameName FROM PS3Games WHERE GameName LIKE '"_s +
                                               pattern + u"' ORDER BY GameName COLLATE NOCASE"_s);
                           });
                       }),
                   "ms", 1000, 2) &&
               kept;
    }
    QFile::remove(path);
    return kept;
}

/// Most memory that the process held since the last call, in MiB.
int peakMemory()
{
    QFile status(u"/proc/self/status"_s);
    status.open(QIODevice::ReadOnly);
    const QByteArray text = status.readAll();
    QFile reset(u"/proc/self/clear_refs"_s);
    reset.open(QIODevice::WriteOnly);
    reset.write("5");
    const qsizetype at = text.indexOf("VmHWM:");
    return text.mid(at + 6, text.indexOf("kB", at) - at - 6).trimmed().toInt() / 1024;
}

bool benchFiles(const QString& folder, int pairs, int megabytes)
{
    const QString source = folder + u"/source.mdb"_s;
    const QString ours = folder + u"/ours.mdb"_s;
    const QString theirs = folder + u"/theirs.mdb"_s;
    makePictures(source, megabytes);
    const auto sync = [](const QString& path) { run(u"sync"_s, {path}); };
    const std::string size = std::to_string(megabytes) + " MB";
    peakMemory();
    const int idle = peakMemory();
    bool kept = printPaired("compaction of " + size,
                            comparePaired(
                                pairs,
                                [&] {
                                    QFile::remove(ours);
                                    run(u"cp"_s, {source, ours});
                                    sync(ours);
                                    return secondsOf([&] { compactDatabaseFile(ours); });
                                },
                                [&] {
                                    QFile::remove(theirs);
                                    return secondsOf([&] {
                                        shell(source, u"VACUUM INTO '%1'"_s.arg(theirs));
                                        sync(theirs);
                                    });
                                }),
                            "ms", 1000, 1.3);
    std::printf("  memory above idle: %d MiB\n", peakMemory() - idle);
    kept = printPaired("copy of " + size,
                       comparePaired(
                           pairs,
                           [&] {
                               QFile::remove(ours);
                               return secondsOf([&] { copyDatabaseFile(source, ours); });
                           },
                           [&] {
                               QFile::remove(theirs);
                               return secondsOf([&] {
                                   run(u"cp"_s, {source, theirs});
                                   sync(theirs);
                               });
                           }),
                       "ms", 1000, 1.5) &&
           kept;
    for (const QString& path : {source, ours, theirs})
        QFile::remove(path);
    return kept;
}

} // namespace

} // namespace varnhold::bench

int main(int argc, char** argv)
{
    using namespace varnhold::bench;
    const QCoreApplication application(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: maintenance_bench FOLDER [PAIRS [MEGABYTES...]]\n");
        return 1;
    }
    const QString folder = QDir(QString::fromLocal8Bit(argv[1])).absolutePath();
    const int pairs = argc > 2 ? std::atoi(argv[2]) : 7;
    std::vector<int> sizes{50, 500};
    if (argc > 3) {
        sizes.clear();
        for (int i = 3; i < argc; ++i)
            sizes.push_back(std::atoi(argv[i]));
    }
    bool kept = benchSearches(folder, pairs);
    for (const int megabytes : sizes)
        kept = benchFiles(folder, pairs, megabytes) && kept;
    return kept ? 0 : 1;
}
