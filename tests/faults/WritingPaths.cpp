// The table of all paths by which the program changes files. One more is one more row:
//   - a function `use...` that does what the program does, from the folder it is given to what it tells the
//     user, with its own services and no fakes of files or sockets; true where it tells a success;
//   - a function `check...` that says what must hold after any fault (the old or the new file is whole, and
//     after a success the new one) and after the use that follows it without one;
//   - what lies there before, and, where it needs a service, how `use` gets its address (`argument`).
// All files stand below root.path("work"), which is `root` in `use`; faults reach no others. FaultsTest tries
// each call that such a use makes: opening, writing, renaming, flushing, removing, connecting, sending and
// receiving. `most` keeps a slow path's share of the tests' time small (all together: twenty seconds).

#include "faults/WritingPaths.h"

#include "covers/CoverFetch.h"
#include "covers/ThroughFile.h"
#include "download/DiskFiles.h"
#include "download/DownloadClient.h"
#include "platform/Clock.h"
#include "platform/DownloadToFile.h"
#include "platform/MessageBoxes.h"
#include "platform/MessagePump.h"
#include "platform/NetworkFetch.h"
#include "platform/ReplaceFile.h"
#include "platform/RunTimeError.h"
#include "platform/TcpSocket.h"
#include "platform/database/DatabaseCompaction.h"
#include "platform/database/DatabaseConnection.h"
#include "platform/database/DatabaseCopy.h"
#include "platform/database/Recordset.h"
#include "platform/richtext/RichTextFile.h"
#include "platform/richtext/RtfReader.h"
#include "search/ListText.h"
#include "search/RowImport.h"
#include "state/ApplicationState.h"
#include "state/ErrorReport.h"
#include "state/Paths.h"
#include "state/SettingsFile.h"
#include "support/FakePump.h"
#include "support/PrintText.h"
#include "support/TestDatabase.h"
#include "tools/ReportFile.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QUuid>

#include <unistd.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

// Settings.ini and Skin.ini

const QByteArray oldIni = "; note\r\n[Settings]\r\nServer=1\r\n\r\n[Position]\r\nLeft=10\r\n";
const QByteArray newIni = "; note\r\n[Settings]\r\nServer=2\r\n\r\n[Position]\r\nLeft=10\r\n";

bool useSettings(const QString& root, const QString& /*argument*/)
{
    const Paths paths{root};
    const ApplicationState state;
    SettingsFile file(paths, state);
    file.clearLeftovers();
    return file.replaceSections({{u"Settings"_s, {{u"Server"_s, u"2"_s}}}});
}

bool useSkinFile(const QString& root, const QString& /*argument*/)
{
    const Paths paths{root};
    ApplicationState state;
    state.SkinPath = root + u"/skin"_s;
    SettingsFile file(paths, state);
    file.clearLeftovers();
    file.Skin_Write(u"Settings"_s, u"Server"_s, u"2"_s); // tells nothing
    return file.Skin_Read(u"Settings"_s, u"Server"_s, {}) == u"2";
}

void checkIni(const TempRoot& root, const QString& folder, const QString& name, FaultOutcome outcome)
{
    const QByteArray bytes = root.read(folder + u'/' + name);
    EXPECT_TRUE(bytes == newIni || (outcome != FaultOutcome::Acknowledged && bytes == oldIni))
        << bytes.constData();
    if (outcome == FaultOutcome::Acknowledged) {
        EXPECT_EQ(QDir(root.path(folder)).entryList(QDir::Files | QDir::Hidden), QStringList{name});
    }
}

// Notes

bool useNotes(const QString& root, const QString& /*argument*/)
{
    try {
        saveRtf(root + u"/notes.rtf"_s, readRtf("new"));
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

void checkNotes(FaultPlace& place, FaultOutcome outcome)
{
    const QString text = readRtf(place.root.read(u"work/notes.rtf"_s)).plainText();
    EXPECT_TRUE(text == u"new"_s || (outcome != FaultOutcome::Acknowledged && text == u"old"_s));
    if (outcome == FaultOutcome::Acknowledged) {
        EXPECT_EQ(QDir(place.root.path(u"work"_s)).entryList(QDir::Files | QDir::Hidden),
                  QStringList{u"notes.rtf"_s});
    }
}

// A report

bool useReport(const QString& root, const QString& /*argument*/)
{
    return silently([&] { saveReport(reportPath({root}, u"notes"_s), reportContents(u"new"_s)); });
}

// A download by the window's road

const QByteArray packageBytes = QByteArray("made-up package ").repeated(20'000);

/// Boxes that a user would have to answer; the first ends the use.
class CountedBoxes : public MessageBoxes
{
public:
    BoxAnswer show(const MessageBox& /*box*/) override
    {
        ++count;
        return BoxAnswer::Ok;
    }
    int count = 0;
};

bool useDownload(const QString& root, const QString& url)
{
    // What a kill left is what the windows ask about; here it is taken away without the calls under test.
    static_cast<void>(::truncate(QFile::encodeName(root + u"/x.temp"_s).constData(), 0));
    TcpSocketMaker sockets;
    DiskFiles files;
    MonotonicClock clock;
    FakePump pump;
    pump.ending = true; // the wait before the window closes ends at once
    CountedBoxes boxes;
    DownloadClient client({sockets, files, clock, pump, boxes});
    bool isUnloaded = false;
    QObject::connect(&client, &DownloadClient::unloadRequested, &client, [&] { isUnloaded = true; });
    client.setUrl(url);
    client.setNameTag(root + u"/x.pkg"_s);
    client.Download1();
    const bool isFaulty = !qEnvironmentVariableIsEmpty("VARNHOLD_FAULT");
    const QDeadlineTimer patience(isFaulty ? 1'000 : 10'000); // an answer that never comes is no success
    while (!isUnloaded && boxes.count == 0 && !patience.hasExpired())
        QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
    return isUnloaded && boxes.count == 0;
}

void checkDownload(FaultPlace& place, FaultOutcome outcome)
{
    const bool isThere = QFile::exists(place.root.path(u"work/x.pkg"_s));
    EXPECT_TRUE(isThere || outcome != FaultOutcome::Acknowledged);
    if (isThere) {
        EXPECT_TRUE(place.root.read(u"work/x.pkg"_s) == packageBytes);
        QFile::remove(place.root.path(u"work/x.pkg"_s)); // the windows would ask about it
    }
}

// A download by the terminal

const QString terminalPackage = u"work/down/UP0001-BLES00256_00-VARNHOLDSAMPLE00-A0102-V0100.pkg"_s;

void prepareTerminal(FaultPlace& place)
{
    place.root.write(u"work/hosts.ini"_s, "[Hosts]\r\nUse=these\r\n[Servers]\r\n2=" +
                                              place.service().httpAuthority().toLatin1() + "\r\n");
    place.root.write(terminalPackage, "the old package");
}

/// The built program takes this process's place, faults and all.
bool useTerminal(const QString& root, const QString& /*argument*/)
{
    const QByteArray program = QFile::encodeName(QCoreApplication::applicationDirPath() + u"/varnhold-cli"_s);
    const QByteArray folder = QFile::encodeName(root);
    const QByteArray down = folder + "/down";
    ::execl(program.constData(), "varnhold-cli", "--root", folder.constData(), "download", "--overwrite",
            "--to", down.constData(), "--server", "2", "BLES00256", nullptr);
    return false;
}

void checkTerminal(FaultPlace& place, FaultOutcome outcome)
{
    const QByteArray bytes = place.root.read(terminalPackage);
    const bool isNew =
        bytes.size() > 32 &&
        bytes.last(32).first(20) == QCryptographicHash::hash(bytes.chopped(32), QCryptographicHash::Sha1);
    EXPECT_TRUE(isNew || (outcome != FaultOutcome::Acknowledged && bytes == "the old package"));
}

// A game database

void prepareDatabase(FaultPlace& place)
{
    const TestDatabase database(place.root.path(u"work/Games.mdb"_s));
    database.addGames(u"PS3Games"_s, {{u"A"_s, u"old"_s}, {u"B"_s, u"stays"_s}});
}

bool useDatabase(const QString& root, const QString& /*argument*/)
{
    try {
        DatabaseConnection connection;
        connection.Open(u"Data Source="_s + root + u"/Games.mdb"_s);
        Recordset records;
        records.Open(u"SELECT * FROM PS3Games where GameID='A'"_s, connection);
        records.setValue(u"GameName"_s, u"new"_s);
        records.Update();
        records.AddNew();
        records.setValue(u"GameID"_s, QUuid::createUuid().toString());
        records.setValue(u"GameName"_s, u"added"_s);
        records.Update();
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

void checkDatabase(FaultPlace& place, FaultOutcome outcome)
{
    const QString path = place.root.path(u"work/Games.mdb"_s);
    const TestDatabase database = TestDatabase::opened(path);
    EXPECT_TRUE(database.isSound());
    const QStringList names = database.column(u"SELECT GameName FROM PS3Games ORDER BY GameID"_s);
    EXPECT_TRUE(names.contains(u"stays"_s));
    EXPECT_TRUE(names.contains(u"new"_s) ||
                (outcome != FaultOutcome::Acknowledged && names.contains(u"old"_s)));
    EXPECT_TRUE(names.contains(u"added"_s) || outcome != FaultOutcome::Acknowledged);
}

// Its compaction and its backup

/// Kept by its owner with a log, which is folded in first and wanted again afterwards.
void prepareMaintenance(FaultPlace& place)
{
    const TestDatabase database(place.root.path(u"work/Games.mdb"_s));
    QList<GameRow> rows;
    for (int i = 0; i < 100; ++i)
        rows.append({QString::number(i), u"name"_s, QString(900, u'n')});
    database.addGames(u"PS3Games"_s, rows);
    database.execute(u"DELETE FROM PS3Games WHERE GameID % 2; PRAGMA journal_mode = WAL"_s);
    place.root.write(u"work/Backup/GameDB.mdb"_s, "the old backup");
}

template <typename Work> bool succeeds(Work&& work)
{
    try {
        work();
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

bool useCompaction(const QString& root, const QString& /*argument*/)
{
    return succeeds([&] { compactDatabaseFile(root + u"/Games.mdb"_s); });
}

bool useBackup(const QString& root, const QString& /*argument*/)
{
    return succeeds([&] {
        clearDatabaseLeftovers(root + u"/Backup"_s);
        copyDatabaseFile(root + u"/Games.mdb"_s, root + u"/Backup/GameDB.mdb"_s);
    });
}

void expectWhole(const QString& path)
{
    const TestDatabase database = TestDatabase::opened(path);
    EXPECT_TRUE(database.isSound());
    EXPECT_EQ(database.column(u"SELECT count(*) || ' ' || sum(GameID) || ' ' || sum(length(GameNotes)) FROM "
                              "PS3Games"_s),
              QStringList{u"50 2450 45000"_s});
}

void checkCompaction(FaultPlace& place, FaultOutcome outcome)
{
    expectWhole(place.root.path(u"work/Games.mdb"_s));
    if (outcome == FaultOutcome::Acknowledged) {
        QStringList files = QDir(place.root.path(u"work"_s)).entryList(QDir::Files | QDir::Hidden);
        files.removeIf(
            [](const QString& name) { return name.endsWith(u"-journal"); }); // where nothing can be removed
        EXPECT_EQ(files, QStringList{u"Games.mdb"_s});
    }
}

void checkBackup(FaultPlace& place, FaultOutcome outcome)
{
    expectWhole(place.root.path(u"work/Games.mdb"_s));
    if (outcome != FaultOutcome::Acknowledged &&
        place.root.read(u"work/Backup/GameDB.mdb"_s) == "the old backup")
        return;
    expectWhole(place.root.path(u"work/Backup/GameDB.mdb"_s));
    if (outcome == FaultOutcome::Acknowledged) {
        EXPECT_EQ(QDir(place.root.path(u"work/Backup"_s)).entryList(QDir::Files | QDir::Hidden),
                  QStringList{u"GameDB.mdb"_s});
    }
}

// A cover in the place of an old one

const QByteArray coverBytes = QByteArray::fromHex("4749463839610200020091000000ff0000ff000000ffffffff"
                                                  "2c0000000002000200000203443405003b");

bool useCover(const QString& root, const QString& url)
{
    EventLoopPump pump;
    NetworkFetch fetch(pump, {});
    clearLeftovers(root);
    return fetchCover(fetch, url, root + u"/X.jpg"_s).isFetched;
}

void checkCover(FaultPlace& place, FaultOutcome outcome)
{
    const QByteArray bytes = place.root.read(u"work/X.jpg"_s);
    EXPECT_TRUE(bytes == coverBytes || (outcome != FaultOutcome::Acknowledged && bytes == "old"));
    if (outcome == FaultOutcome::Acknowledged) {
        EXPECT_EQ(QDir(place.root.path(u"work"_s)).entryList(QDir::Files | QDir::Hidden),
                  QStringList{u"X.jpg"_s});
    }
}

// The picture on its way into the entry editor

bool useTemporaryPicture(const QString& root, const QString& /*argument*/)
{
    const QByteArray picture(100'000, 'p');
    return succeeds([&] { EXPECT_EQ(throughFile(root, picture), picture); });
}

void checkTemporaryPicture(FaultPlace& place, FaultOutcome outcome)
{
    // Only a kill and a removal that fails leave it there, for the next use to clear away.
    EXPECT_TRUE(!QFile::exists(place.root.path(u"work/temp.bmp"_s)) || outcome != FaultOutcome::Refused);
}

// A marker set by hand

bool useMarker(const QString& root, const QString& /*argument*/)
{
    return succeeds([&] { DiskFiles().createEmpty(root + u"/x.txt"_s); });
}

void checkMarker(FaultPlace& place, FaultOutcome outcome)
{
    const QString path = place.root.path(u"work/x.txt"_s);
    EXPECT_TRUE(QFile::exists(path) || outcome != FaultOutcome::Acknowledged);
    EXPECT_EQ(QFile(path).size(), 0);
}

// A file of the update host: the version, the id list

const QByteArray oldList = "BLES00001 the old list\r\n";
const QByteArray newList = QByteArray("BLES00256 made up\r\n").repeated(5'000);

bool useFetch(const QString& root, const QString& url)
{
    clearLeftovers(root);
    EventLoopPump pump;
    NetworkFetch fetch(pump, {});
    return Download_To_File(fetch, url, root + u"/ps3gameids.txt"_s,
                            {.silence = std::chrono::seconds(1), .whole = std::chrono::seconds(10)});
}

void checkFetch(FaultPlace& place, FaultOutcome outcome)
{
    const QByteArray bytes = place.root.read(u"work/ps3gameids.txt"_s);
    EXPECT_TRUE(bytes == newList || (outcome != FaultOutcome::Acknowledged && bytes == oldList))
        << bytes.size();
    if (outcome == FaultOutcome::Acknowledged) {
        EXPECT_EQ(QDir(place.root.path(u"work"_s)).entryList(QDir::Files | QDir::Hidden),
                  QStringList{u"ps3gameids.txt"_s});
    }
}

// Lists

TextRows listRows()
{
    TextRows rows;
    for (int i = 0; i < 20; ++i)
        rows.append(QString::number(100 + i), u"new");
    return rows;
}

bool useListExport(const QString& root, const QString& /*argument*/)
{
    return succeeds([&] { exportList(listRows(), root + u"/list.txt"_s); });
}

void checkListExport(FaultPlace& place, FaultOutcome outcome)
{
    const QByteArray bytes = place.root.read(u"work/list.txt"_s);
    EXPECT_TRUE(bytes == listBytes(listRows()) || (outcome != FaultOutcome::Acknowledged && bytes == "old"));
    if (outcome == FaultOutcome::Acknowledged) {
        EXPECT_EQ(QDir(place.root.path(u"work"_s)).entryList(QDir::Files | QDir::Hidden),
                  QStringList{u"list.txt"_s});
    }
}

bool useListImport(const QString& root, const QString& /*argument*/)
{
    return succeeds([&] {
        DatabaseConnection connection;
        connection.Open(u"Data Source="_s + root + u"/Games.mdb"_s);
        importRows(connection, u"PS3Games"_s, listRows(), [](int) {});
    });
}

/// Rows come in their order, and none is half there.
void checkListImport(FaultPlace& place, FaultOutcome outcome)
{
    const TestDatabase database = TestDatabase::opened(place.root.path(u"work/Games.mdb"_s));
    EXPECT_TRUE(database.isSound());
    const QStringList added =
        database.column(u"SELECT GameID FROM PS3Games WHERE GameName = 'new' ORDER BY GameID"_s);
    for (qsizetype i = 0; i < added.size(); ++i)
        EXPECT_EQ(added.at(i), QString::number(100 + i));
    EXPECT_TRUE(added.size() == 20 || outcome != FaultOutcome::Acknowledged);
    EXPECT_EQ(database.column(u"SELECT GameName FROM PS3Games WHERE GameID IN ('A', 'B') ORDER BY GameID"_s),
              (QStringList{u"old"_s, u"stays"_s}));
}

} // namespace

const std::vector<WritingPath>& writingPaths()
{
    static const std::vector<WritingPath> paths = {
        {.name = "Settings",
         .prepare = [](FaultPlace& place) { place.root.write(u"work/Settings.ini"_s, oldIni); },
         .use = useSettings,
         .check = [](FaultPlace& place,
                     FaultOutcome outcome) { checkIni(place.root, u"work"_s, u"Settings.ini"_s, outcome); }},
        {.name = "SkinFile",
         .prepare = [](FaultPlace& place) { place.root.write(u"work/skin/Skin.ini"_s, oldIni); },
         .use = useSkinFile,
         .check = [](FaultPlace& place,
                     FaultOutcome outcome) { checkIni(place.root, u"work/skin"_s, u"Skin.ini"_s, outcome); },
         .mayPassOverFlushes = true},
        {.name = "Notes",
         .prepare = [](FaultPlace& place) { place.root.write(u"work/notes.rtf"_s, "old"); },
         .use = useNotes,
         .check = checkNotes},
        {.name = "Report",
         .prepare = [](FaultPlace& place) { place.root.write(u"work/notes.rtf"_s, "old"); },
         .use = useReport,
         .check = checkNotes},
        {.name = "DownloadWindow",
         .prepare =
             [](FaultPlace& place) {
                 place.service().with([](host::SampleService& service) {
                     service.site().addPage(u"/made/x.pkg"_s, "application/octet-stream", packageBytes);
                 });
             },
         .use = useDownload,
         .check = checkDownload,
         .argument = [](FaultPlace& place) { return place.service().url(u"/made/x.pkg"_s); },
         .most = 4},
        {.name = "Cover",
         .prepare =
             [](FaultPlace& place) {
                 place.root.write(u"work/X.jpg"_s, "old");
                 place.service().with([](host::SampleService& service) {
                     service.site().addPage(u"/made/X.jpg"_s, "image/gif", coverBytes);
                 });
             },
         .use = useCover,
         .check = checkCover,
         .argument = [](FaultPlace& place) { return place.service().url(u"/made/X.jpg"_s); },
         .most = 4},
        {.name = "DownloadTerminal",
         .prepare = prepareTerminal,
         .use = useTerminal,
         .check = checkTerminal,
         .most = 3},
        {.name = "Database",
         .prepare = prepareDatabase,
         .use = useDatabase,
         .check = checkDatabase,
         .most = 3,
         .mayPassOverFlushes = true},
        {.name = "TemporaryPicture",
         .prepare = [](FaultPlace& place) { place.root.makeFolder(u"work"_s); },
         .use = useTemporaryPicture,
         .check = checkTemporaryPicture},
        {.name = "Compaction",
         .prepare = prepareMaintenance,
         .use = useCompaction,
         .check = checkCompaction,
         .most = 5,
         .mayPassOverFlushes = true},
        {.name = "ListExport",
         .prepare = [](FaultPlace& place) { place.root.write(u"work/list.txt"_s, "old"); },
         .use = useListExport,
         .check = checkListExport,
         .most = 6},
        {.name = "ListImport",
         .prepare = prepareDatabase,
         .use = useListImport,
         .check = checkListImport,
         .most = 4,
         .mayPassOverFlushes = true},
        {.name = "Backup",
         .prepare = prepareMaintenance,
         .use = useBackup,
         .check = checkBackup,
         .most = 5,
         .mayPassOverFlushes = true},
        {.name = "Marker",
         .prepare = [](FaultPlace& place) { place.root.makeFolder(u"work"_s); },
         .use = useMarker,
         .check = checkMarker},
        {.name = "HostFile",
         .prepare =
             [](FaultPlace& place) {
                 place.root.write(u"work/ps3gameids.txt"_s, oldList);
                 place.service().with([](host::SampleService& service) {
                     service.site().addPage(u"/made/ids.txt"_s, "text/plain", newList);
                 });
             },
         .use = useFetch,
         .check = checkFetch,
         .argument = [](FaultPlace& place) { return place.service().url(u"/made/ids.txt"_s); },
         .most = 4},
    };
    return paths;
}

} // namespace varnhold::test
