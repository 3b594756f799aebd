#include "RunCli.h"
#include "support/PrintText.h"
#include "support/RunningService.h"
#include "support/TempRoot.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QMap>

#include <csignal>

#include <sys/types.h>

namespace varnhold::test {
namespace {

using namespace Qt::StringLiterals;

/// A program folder whose hosts are one running service, and a folder for downloads.
class Cli : public testing::Test
{
protected:
    Cli()
    {
        const QByteArray http = service.httpAuthority().toLatin1();
        root.write(u"hosts.ini"_s,
                   "[Hosts]\r\nUse=these\r\n[Servers]\r\n1=" + service.httpsAuthority().toLatin1() +
                       "\r\n1 CA=" + service.caFile().toUtf8() + "\r\n2=" + http +
                       "\r\n4=localhost:" + service.httpsAuthority().section(u':', 1).toLatin1() +
                       "\r\n[Update]\r\nHost=" + http + "\r\n");
    }

    Ran cli(const QStringList& arguments) { return run(QStringList{u"--root"_s, root.path({})} + arguments); }
    Ran download(const QStringList& arguments)
    {
        return cli(QStringList{u"download"_s, u"--to"_s, root.path(u"down"_s)} + arguments);
    }

    static QString package(const QString& id, const QString& version)
    {
        return u"UP0001-%1_00-VARNHOLDSAMPLE00-A%2-V0100.pkg"_s.arg(id, version);
    }
    [[nodiscard]] QStringList downloaded() const { return QDir(root.path(u"down"_s)).entryList(QDir::Files); }

    RunningService service;
    TempRoot root;
};

TEST_F(Cli, ListsPackagesInAlignedColumns)
{
    const Ran ran = cli({u"lookup"_s, u"bcus-10027"_s});
    EXPECT_EQ(ran.code, 0);
    EXPECT_EQ(ran.err, "");
    const QList<QByteArray> lines = ran.out.split('\n');
    ASSERT_EQ(lines.size(), 5) << ran.out.constData();
    EXPECT_EQ(lines.at(0), "BCUS10027  Copper Tide  [2 Updates]");
    EXPECT_TRUE(lines.at(2).startsWith("01.01  02.7600  1.72 MB (1805056 bytes)    "))
        << lines.at(2).constData();
    for (const char* const heading : {"Version", "Bytes", "Sha1", "Url"}) {
        const qsizetype column = lines.at(1).indexOf(heading);
        for (int row = 2; row < 4; ++row) {
            EXPECT_EQ(lines.at(row).sliced(column - 2, 2), "  ") << heading;
            EXPECT_NE(lines.at(row).at(column), ' ') << heading;
        }
    }
}

TEST_F(Cli, TellsTheSameInJson)
{
    const Ran ran = cli({u"lookup"_s, u"BLUS30512"_s, u"--json"_s, u"--server"_s, u"2"_s});
    EXPECT_EQ(ran.code, 0);
    const QJsonObject title = QJsonDocument::fromJson(ran.out).object();
    EXPECT_EQ(title.value("id"_L1), u"BLUS30512"_s);
    EXPECT_EQ(title.value("title"_L1), u"Tin Cathedral"_s);
    const QJsonArray packages = title.value("packages"_L1).toArray();
    ASSERT_EQ(packages.size(), 3);
    // A missing system version shifts those behind it forward, and the last row is left without.
    EXPECT_EQ(packages.at(1).toObject().value("systemVersion"_L1), u"03.3000"_s);
    EXPECT_TRUE(packages.at(2).toObject().value("systemVersion"_L1).isNull());
    EXPECT_EQ(packages.at(2).toObject().value("size"_L1).toInteger(), 4'000'000);
    EXPECT_EQ(packages.at(2).toObject().value("sha1"_L1).toString().size(), 40);
    EXPECT_EQ(service.requests().last(), "/tppkg/np/'BLUS30512/BLUS30512-ver.xml");
}

TEST_F(Cli, DownloadsAndSaysWhichSumAgrees)
{
    const struct
    {
        QStringList arguments;
        QStringList files;
        QByteArray says;
    } cases[] = {
        {{u"BCUS10027"_s, u"--package"_s, u"01.01"_s},
         {package(u"BCUS10027"_s, u"0101"_s)},
         "all but the last 32 bytes"},
        {{u"BLES00256"_s}, {package(u"BLES00256"_s, u"0102"_s)}, "over the whole file"}, // the last one
        {{u"BCES11093"_s, u"--all"_s},
         {package(u"BCES11093"_s, u"0101"_s), package(u"BCES11093"_s, u"0102"_s)},
         "over the whole file"}, // through redirects
    };
    for (const auto& row : cases) {
        const Ran ran = download(row.arguments); // into a folder that the first one makes
        EXPECT_EQ(ran.code, 0) << ran.err.constData();
        EXPECT_EQ(ran.err, "");
        EXPECT_EQ(ran.out.count(row.says), row.files.size()) << ran.out.constData();
        for (const QString& file : row.files) {
            const QByteArray bytes = root.read(u"down/"_s + file);
            EXPECT_EQ(bytes.last(32).first(20),
                      QCryptographicHash::hash(bytes.chopped(32), QCryptographicHash::Sha1));
        }
    }
    EXPECT_EQ(downloaded().filter(u".pkg"_s).size(), 4);
    EXPECT_EQ(downloaded().filter(u".txt"_s).size(), 4);
    EXPECT_EQ(downloaded().filter(u".temp"_s).size(), 0);
}

TEST_F(Cli, KeepsFilesThatAreThere)
{
    const QString name = u"down/"_s + package(u"NPUB30055"_s, u"0101"_s);
    ASSERT_EQ(download({u"NPUB30055"_s}).code, 0);
    const QByteArray good = root.read(name);
    const Ran again = download({u"NPUB30055"_s});
    EXPECT_EQ(again.code, 0);
    EXPECT_TRUE(again.out.contains("is there already"));

    root.write(name, "mine");
    EXPECT_EQ(download({u"NPUB30055"_s}).code, 1);
    EXPECT_EQ(root.read(name), "mine");
    // A rest of an earlier run must not spoil the new file either.
    root.write(QString(name).replace(u".pkg"_s, u".temp"_s), QByteArray(100'000, 'x'));
    EXPECT_EQ(download({u"NPUB30055"_s, u"--overwrite"_s}).code, 0);
    EXPECT_EQ(root.read(name), good);
}

TEST_F(Cli, GoesToTheFolderOfTheSettings)
{
    root.makeFolder(u"down"_s);
    root.write(u"Settings.ini"_s,
               "[Settings]\r\nServer=2\r\nUse DLDir=1\r\nCreate GNFolder=1\r\nSaveDir Path=" +
                   root.path(u"down"_s).toUtf8() + "\r\n");
    EXPECT_EQ(cli({u"download"_s, u"NPUB30055"_s}).code, 0);
    EXPECT_TRUE(QFileInfo::exists(
        root.path(u"down/NPUB30055-[Kite Harbor]/"_s + package(u"NPUB30055"_s, u"0101"_s))));
    EXPECT_TRUE(service.requests().first().startsWith("/tppkg/np/'"));

    for (const QString& title : {u"../../../out"_s, u"AC/DC"_s, QString(300, u'x')}) {
        service.with([&](host::SampleService& running) {
            running.site().addTitle({u"NPUB30055"_s, title, {}, false, {{u"01.01"_s, {}, 20000}}});
        });
        const Ran ran = cli({u"download"_s, u"NPUB30055"_s});
        EXPECT_EQ(ran.code, 1);
        EXPECT_TRUE(ran.err.contains("no folder can be called")) << ran.err.constData();
    }
    EXPECT_EQ(QDir(root.path(u"down"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot).size(), 1);
}

TEST_F(Cli, FailuresHaveCodesAndSentences)
{
    root.write(u"file"_s, "no folder");
    service.with([](host::SampleService& running) {
        const auto document = [&](const QString& id, const QByteArray& attributes) {
            running.site().addPage(u"/tppkg/np/'%1/%1-ver.xml"_s.arg(id), "text/xml",
                                   "<titlepatch titleid=\"" + id.toLatin1() +
                                       "\"><package version=\"01.01\" " + attributes +
                                       "><TITLE>Odd</TITLE></package></titlepatch>");
        };
        const QByteArray origin = "http://" + running.httpAuthority().toLatin1();
        document(u"ODDD00001"_s, "size=\"4\" url=\"" + origin + "/four.pkg\" sha1sum=\"00\"");
        document(u"ODDD00002"_s, "size=\"5\" url=\"" + origin + "/four.pkg\"");
        document(u"ODDD00003"_s, "size=\"4\" url=\"" + origin + "/four.pkg?x=/../\"");
        document(u"ODDD00004"_s,
                 "size=\"4\" url=\"https://" + running.httpsAuthority().toLatin1() + "/four.pkg\"");
        document(u"ODDD00005"_s, "size=\"4\" url=\"http://127.0.0.1:1/four.pkg\"");
        document(u"ODDD00006"_s, "size=\"four\"");
        document(u"ODDD00007"_s, "sha1sum=\"00\"");
        document(u"ODDD00008"_s, "size=\"1e300\" url=\"" + origin + "/four.temp.pkg\"");
        document(u"ODDD00009"_s, "size=\"4\" url=\"" + origin + "/five.pkg\"");
        document(u"ODDD00010"_s, "url=\"" + origin + '/' + QByteArray(251, 'n') + ".pkg\"");
        document(u"ODDD00011"_s, "url=\"" + origin + "/\xf0\x9f\x98\x80.pkg\"");
        running.site().addPage(u"/five.pkg"_s, "application/octet-stream", "fives");
        running.site().addPage(u"/four.pkg"_s, "application/octet-stream", "four");
    });
    service.misbehave(u"*/'BCUS10001/*"_s, u"not-xml"_s);
    service.misbehave(u"*/'BCUS10027/*"_s, u"early-close"_s);
    service.misbehave(u"*/'BCES10002/*"_s, u"endless-redirect"_s);
    service.misbehave(u"*BLES00256*A0101*"_s, u"404"_s);
    service.misbehave(u"*BLES00256*A0102*"_s, u"early-close:500000"_s);
    service.misbehave(u"*BCUS10244*.pkg"_s, u"reset"_s);
    service.misbehave(u"*BCJS30042*.pkg"_s, u"endless-redirect"_s);
    service.misbehave(u"*NPUB30781*.pkg"_s, u"stall:1000"_s);
    service.misbehave(u"*NPJB00094*"_s, u"stall"_s);
    const QStringList server2 = {u"--server"_s, u"2"_s};
    const struct
    {
        QStringList arguments;
        int code;
        QByteArray says;
    } cases[] = {
        {{}, 2, "A command is missing"},
        {{u"fetch"_s, u"BCUS10001"_s}, 2, "no command \"fetch\""},
        {{u"lookup"_s}, 2, "needs the id"},
        {{u"lookup"_s, u"BCUS1000"_s}, 2, "is no id"},
        {{u"lookup"_s, u"BCUS10\u00e401"_s}, 2, "is no id"},
        {{u"lookup"_s, u"../../../x"_s}, 2, "is no id"},
        {{u"lookup"_s, u"BCUS10001"_s, u"BCUS10027"_s}, 2, "is too much"},
        {{u"lookup"_s, u"BCUS10001"_s, u"--all"_s}, 2, "--all does not go with"},
        {{u"lookup"_s, u"BCUS10001"_s, u"--server"_s, u"7"_s}, 2, "1 to 6"},
        {{u"lookup"_s, u"BCUS10001"_s, u"--nonsense"_s}, 2, "nonsense"},
        {{u"download"_s, u"BCUS10001"_s, u"--all"_s, u"--package"_s, u"01.01"_s}, 2, "exclude"},
        {{u"hosts"_s, u"BCUS10001"_s}, 2, "takes nothing"},
        {QStringList{u"lookup"_s, u"XXXX00000"_s} + server2, 3, "There are no updates of XXXX00000"},
        {QStringList{u"lookup"_s, u"BCUS10001"_s} + server2, 1, "did not answer with the update document"},
        {QStringList{u"lookup"_s, u"BCUS10027"_s} + server2, 1, "Failure occurred during download"},
        {QStringList{u"lookup"_s, u"BCES10002"_s} + server2, 1, "Attempt to redirect the navigation failed"},
        {QStringList{u"lookup"_s, u"ODDD00006"_s} + server2, 1, "Type mismatch"},
        // The authority is not named for this one.
        {{u"lookup"_s, u"BCES11093"_s, u"--server"_s, u"4"_s}, 1, "certificate of localhost"},
        {{u"lookup"_s, u"BCUS10027"_s, u"--server"_s, u"5"_s}, 1, "no host for server 5"},
        {{u"download"_s, u"BCUS10027"_s, u"--package"_s, u"09.99"_s}, 3, "has no package 09.99"},
        {{u"download"_s, u"NPUB30055"_s, u"--to"_s, root.path(u"no/where"_s)}, 1, "There is no folder"},
        {{u"download"_s, u"NPUB30055"_s, u"--to"_s, root.path(u"file"_s)}, 1, "There is no folder"},
        {{u"download"_s, u"BLES00256"_s, u"--package"_s, u"01.01"_s},
         1,
         "the server answered \"404 Not Found\""},
        {{u"download"_s, u"BLES00256"_s}, 1, "500000 bytes came, and the document says 2000000"},
        {{u"download"_s, u"BCUS10244"_s}, 1, "reset by remote side"},
        {QStringList{u"download"_s, u"ODDD00001"_s} + server2, 4, "SHA-1 does not agree"},
        {QStringList{u"download"_s, u"ODDD00002"_s} + server2, 1, "is there already"},
        {QStringList{u"download"_s, u"ODDD00002"_s, u"--overwrite"_s} + server2, 1, "the document says 5"},
        {QStringList{u"download"_s, u"ODDD00003"_s} + server2, 1, "does not end in the name of a .pkg file"},
        {QStringList{u"download"_s, u"ODDD00004"_s, u"--overwrite"_s} + server2, 1, "begins with https"},
        {QStringList{u"download"_s, u"ODDD00005"_s, u"--overwrite"_s} + server2, 1,
         "127.0.0.1:1: Connection"},
        {QStringList{u"download"_s, u"ODDD00009"_s} + server2, 1, "more comes than the 4 bytes"},
        {QStringList{u"download"_s, u"ODDD00010"_s} + server2, 1, "a name of 255 bytes"},
        {QStringList{u"download"_s, u"ODDD00011"_s} + server2, 1, "a request cannot carry"},
        {{u"download"_s, u"BCJS30042"_s}, 1, "sent on from one address to the next"},
        {{u"download"_s, u"NPUB30781"_s, u"--timeout"_s, u"1"_s}, 1, "nothing came for 1 s"},
        {{u"lookup"_s, u"NPJB00094"_s, u"--timeout"_s, u"1"_s}, 1, "timed out"},
        {{u"lookup"_s, u"NPJB00094"_s, u"--timeout"_s, u"0"_s}, 2, "1 to 86400"},
        {QStringList{u"lookup"_s, u"ODDD00007"_s, u"--json"_s} + server2, 0, ""},
        {QStringList{u"download"_s, u"ODDD00007"_s} + server2, 1, "gives no address"},
        {QStringList{u"lookup"_s, u"ODDD00008"_s, u"--json"_s} + server2, 0, ""},
        {QStringList{u"download"_s, u"ODDD00008"_s} + server2, 1, "does not end in the name of a .pkg file"},
        {{u"download"_s, u"NPUB30055"_s, u"--to"_s, root.path(u"a.pkg"_s)}, 1, "cannot be kept in"},
    };
    for (const auto& row : cases) {
        QStringList arguments = row.arguments;
        if (arguments.value(0) == u"download" && !arguments.contains(u"--to"_s))
            arguments += {u"--to"_s, root.path(u"down"_s)};
        const Ran ran = cli(arguments);
        EXPECT_EQ(ran.code, row.code) << row.arguments.join(u' ').toStdString() << '\n'
                                      << ran.err.constData();
        EXPECT_TRUE(ran.err.contains(row.says)) << row.arguments.join(u' ').toStdString() << '\n'
                                                << ran.err.constData();
        EXPECT_FALSE(ran.err.contains('\t'));
    }
    // Nothing stays but what has arrived, and its marker.
    EXPECT_EQ(downloaded(), (QStringList{u"four.pkg"_s, u"four.txt"_s}));
    const Ran rootless = run({u"hosts"_s, u"--root"_s, root.path(u"nowhere"_s)});
    EXPECT_TRUE(rootless.code == 1 && rootless.err.contains("There is no folder"))
        << rootless.err.constData();
    EXPECT_FALSE(QFileInfo::exists(root.path(u"nowhere"_s)));
}

/// What stands beside a package before and after, each by the ending of its name; "->" begins what a link
/// points at.
TEST_F(Cli, LeavesAloneWhatIsNotItsOwn)
{
    using Files = QMap<QString, QByteArray>;
    const QByteArray notes = root.path(u"notes"_s).toUtf8();
    service.misbehave(u"*NPEB00112*.pkg"_s, u"early-close"_s);
    const struct
    {
        QString id;
        Files before;
        QStringList options;
        int code;
        QByteArray says;
        Files after; ///< "*": the package
    } cases[] = {
        {u"NPUB30055"_s, {{u"txt"_s, "mine"}}, {}, 1, "no empty file", {{u"txt"_s, "mine"}}},
        {u"NPUB30055"_s,
         {{u"txt"_s, "mine"}, {u"pkg"_s, "old"}},
         {u"--overwrite"_s},
         1,
         "no empty file",
         {{u"txt"_s, "mine"}, {u"pkg"_s, "old"}}},
        {u"NPUB30055"_s, {{u"txt"_s, "->" + notes}}, {}, 1, "no empty file", {{u"txt"_s, "->" + notes}}},
        {u"NPUB30055"_s, {{u"temp"_s, "mine"}}, {}, 1, "no rest of an earlier", {{u"temp"_s, "mine"}}},
        {u"NPUB30055"_s,
         {{u"txt"_s, ""}, {u"temp"_s, "->" + notes}},
         {},
         1,
         "no rest of an earlier",
         {{u"txt"_s, ""}, {u"temp"_s, "->" + notes}}},
        {u"NPUB30055"_s, {{u"txt"_s, ""}, {u"temp"_s, "rest"}}, {}, 0, "", {{u"txt"_s, ""}, {u"pkg"_s, "*"}}},
        {u"NPUB30055"_s,
         {{u"pkg"_s, "->" + notes}},
         {u"--overwrite"_s},
         0,
         "",
         {{u"txt"_s, ""}, {u"pkg"_s, "*"}}},
        // A new one that does not arrive takes neither the old one with it nor its marker.
        {u"NPEB00112"_s,
         {{u"txt"_s, ""}, {u"pkg"_s, "old"}},
         {u"--overwrite"_s},
         1,
         "bytes came",
         {{u"txt"_s, ""}, {u"pkg"_s, "old"}}},
    };
    for (const auto& row : cases) {
        const QString folder = root.path(u"down"_s);
        QDir(folder).removeRecursively();
        root.makeFolder(u"down"_s);
        root.write(u"notes"_s, "notes");
        const QString base = folder + u'/' + QString(package(row.id, u"0101"_s)).chopped(3);
        for (auto file = row.before.cbegin(); file != row.before.cend(); ++file) {
            if (file.value().startsWith("->"))
                QFile::link(QString::fromUtf8(file.value().sliced(2)), base + file.key());
            else
                root.write(u"down/"_s + QFileInfo(base + file.key()).fileName(), file.value());
        }
        const Ran ran = download(QStringList{row.id} + row.options);
        SCOPED_TRACE(testing::Message() << row.says.constData() << ": " << ran.err.constData());
        EXPECT_EQ(ran.code, row.code);
        EXPECT_TRUE(ran.err.contains(row.says));
        Files after;
        for (const QFileInfo& file : QDir(folder).entryInfoList(QDir::Files | QDir::System))
            after.insert(file.suffix(), file.isSymLink()       ? "->" + file.symLinkTarget().toUtf8()
                                        : file.size() == 20000 ? QByteArray("*")
                                                               : root.read(u"down/"_s + file.fileName()));
        EXPECT_EQ(after, row.after);
        EXPECT_EQ(root.read(u"notes"_s), "notes");
    }
}

TEST_F(Cli, WorksThroughAList)
{
    service.misbehave(u"*NPEB00112*.pkg"_s, u"early-close"_s);
    service.with([](host::SampleService& running) {
        running.site().addPage(u"/bare.pkg"_s, "application/octet-stream", "bare");
    });
    const QByteArray bare = service.url(u"/bare.pkg"_s).toUtf8();
    root.write(u"list"_s, "\xef\xbb\xbf"
                          "BCUS-10027 # the same\r\nBLES00256\tIts name\r# none\n\nnonsense\n" +
                              bare + "\n" + bare + "\nNPEB00112\nXXXX00000\nhttps://x/y.pkg\n");
    const QStringList batch = {u"batch"_s, root.path(u"list"_s), u"--server"_s, u"2"_s,
                               u"--to"_s,  root.path(u"down"_s), u"--jobs"_s,   u"5"_s};
    const Ran dry = cli(batch + QStringList{u"--dry-run"_s, u"--latest"_s});
    EXPECT_EQ(dry.out.count("would be downloaded"), 4) << dry.out.constData();
    EXPECT_TRUE(dry.code == 2 && !QFileInfo::exists(root.path(u"down"_s)));

    const Ran first = cli(batch);
    EXPECT_EQ(first.code, 2); // that of the first line that did not go well
    EXPECT_EQ(first.out.count("SHA-1 agrees"), 4) << first.out.constData();
    EXPECT_TRUE(first.out.endsWith("5 downloaded, 0 there already, 2 failed, 2 lines that are none\n"))
        << first.out.constData();
    for (const char* const told : {"line 5: \"nonsense\"", "line 8: NPEB00112 01.01: ",
                                   "line 9: There are no updates", "line 10: \"https://x/y.pkg\""})
        EXPECT_TRUE(first.err.contains(told)) << told << first.err.constData();
    EXPECT_EQ(downloaded().filter(u".pkg"_s).size(), 5);
    EXPECT_EQ(downloaded().size(), 10);

    root.write(u"down/"_s + package(u"BCUS10027"_s, u"0102"_s), "mine");
    root.write(u"list"_s, "BCUS10027\nNPEB00112\nXXXX00000\n" + bare);
    const Ran second = cli(batch);
    EXPECT_EQ(second.code, 1);
    EXPECT_EQ(root.read(u"down/"_s + package(u"BCUS10027"_s, u"0102"_s)), "mine");
    EXPECT_TRUE(second.out.contains(", 2 there already, ")) << second.out.constData();
    EXPECT_EQ(cli({u"batch"_s, root.path(u"none"_s)}).code, 1);
    EXPECT_EQ(cli(batch + QStringList{u"--jobs"_s, u"6"_s}).code, 2);
}

TEST_F(Cli, AListThatIsInterruptedLeavesNothing)
{
    service.misbehave(u"*BLES00256*A0102*"_s, u"stall:1000"_s);
    root.write(u"list"_s, "BLES00256\n");
    root.makeFolder(u"down"_s);
    QProcess process;
    process.start(QCoreApplication::applicationDirPath() + u"/varnhold-cli"_s,
                  {u"--root"_s, root.path({}), u"batch"_s, root.path(u"list"_s), u"--server"_s, u"2"_s,
                   u"--to"_s, root.path(u"down"_s), u"--latest"_s});
    const QString half = root.path(u"down/"_s + package(u"BLES00256"_s, u"0102"_s).chopped(4) + u".temp"_s);
    while (QFileInfo(half).size() == 0 && !process.waitForFinished(20)) {
    }
    ::kill(static_cast<pid_t>(process.processId()), SIGINT);
    ASSERT_TRUE(process.waitForFinished());
    EXPECT_EQ(process.exitStatus(), QProcess::CrashExit); // as a shell expects it
    EXPECT_EQ(process.exitCode(), SIGINT);
    EXPECT_EQ(downloaded(), QStringList());
}

TEST_F(Cli, TellsMarksAndNews)
{
    const QString folder = u"down/BCUS10027-[Copper Tide]/"_s;
    root.makeFolder(folder);
    root.write(u"Settings.ini"_s,
               "[Settings]\r\nServer=2\r\nUse DLDir=1\r\nCreate GNFolder=1\r\nSaveDir Path=" +
                   root.path(u"down"_s).toUtf8() + "\r\n");
    ASSERT_EQ(cli({u"download"_s, u"BCUS10027"_s}).code, 0);
    const Ran marks = cli({u"marks"_s, u"BCUS10027"_s, u"--sums"_s});
    EXPECT_EQ(marks.code, 0) << marks.err.constData();
    EXPECT_TRUE(marks.out.contains("01.01  none      -       UP") &&
                marks.out.contains("01.02  complete  agrees  UP"))
        << marks.out.constData();
    root.write(folder + package(u"BCUS10027"_s, u"0102"_s), "mine");
    const Ran wrong = cli({u"marks"_s, u"BCUS10027"_s, u"--sums"_s, u"--json"_s});
    EXPECT_EQ(wrong.code, 4);
    const QJsonObject row =
        QJsonDocument::fromJson(wrong.out).object().value("packages"_L1).toArray().at(1).toObject();
    EXPECT_EQ(row.value("mark"_L1), u"incomplete"_s);
    EXPECT_EQ(row.value("sha1"_L1), u"differs"_s);

    const auto check = [&] { return cli({u"check"_s}).code; };
    EXPECT_EQ(check(), 5); // there is no id list here yet
    root.write(u"ps3gameids.txt"_s, QByteArray(1'000'000, 'x'));
    EXPECT_EQ(check(), 0);
    service.misbehave(u"*ps3gameids*"_s, u"404"_s);
    EXPECT_EQ(check(), 1);
    service.with([](host::SampleService& running) {
        running.site().addPage(u"/Varnhold/txt/version.txt"_s, "text/plain", "99.0");
    });
    EXPECT_EQ(check(), 5);
}

TEST_F(Cli, RenamesAsItSaysBefore)
{
    root.write(u"Settings.ini"_s, "[Settings]\r\nDouble=1\r\nUnwanted Strings=[,],000\r\n");
    const struct
    {
        QStringList folders;
        int code;
        QByteArray says; ///< by either run
        QStringList after;
    } cases[] = {
        {{u"A [x]"_s, u"BCUS10001 B"_s, u"c"_s}, 0, "cuts ids too", {u"A x"_s, u"BCUS11 B"_s, u"c"_s}},
        {{u"[a"_s, u"a]"_s}, 1, "File already exists", {u"a"_s, u"a]"_s}},
        {{u"000"_s}, 1, "000\" to \"", {u"000"_s}},
    };
    for (const auto& row : cases) {
        const QString base = root.path(u"tidy"_s);
        QDir(base).removeRecursively();
        for (const QString& folder : row.folders)
            root.makeFolder(u"tidy/"_s + folder);
        const Ran preview = cli({u"rename"_s, base});
        EXPECT_EQ(QDir(base).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name | QDir::IgnoreCase),
                  row.folders);
        const Ran run = cli({u"rename"_s, base, u"--apply"_s});
        for (const Ran& ran : {preview, run}) {
            EXPECT_EQ(ran.code, row.code) << ran.err.constData();
            EXPECT_TRUE(ran.err.contains(row.says)) << ran.err.constData();
        }
        EXPECT_EQ(QDir(base).entryList(QDir::Dirs | QDir::NoDotAndDotDot, QDir::Name), row.after);
    }
    for (const QString& folder : {u"/"_s, u"/etc"_s, root.path(u"nowhere"_s)})
        EXPECT_EQ(cli({u"rename"_s, folder, u"--apply"_s}).code, 1);
    EXPECT_TRUE(service.requests().isEmpty());
}

TEST_F(Cli, DocumentsCannotSteerTheTerminal)
{
    service.with([](host::SampleService& running) {
        running.site().addPage(
            u"/tppkg/np/'ODDD00001/ODDD00001-ver.xml"_s, "text/xml",
            "<t id=\"ODDD00001\"><package version=\"01.01&#x85;\"/><TITLE>a&#x9b;31mb</TITLE></t>");
    });
    const Ran ran = cli({u"lookup"_s, u"ODDD00001"_s, u"--server"_s, u"2"_s});
    EXPECT_EQ(ran.code, 0) << ran.err.constData();
    EXPECT_TRUE(ran.out.contains("a?31mb")) << ran.out.constData();
    const Ran json = cli({u"lookup"_s, u"ODDD00001"_s, u"--server"_s, u"2"_s, u"--json"_s});
    EXPECT_TRUE(json.out.contains("a\\u009b31mb")) << json.out.constData();
}

TEST_F(Cli, ShowsHostsAndHelp)
{
    const Ran named = cli({u"hosts"_s});
    EXPECT_EQ(named.code, 0);
    EXPECT_TRUE(named.out.contains("https://" + service.httpsAuthority().toLatin1() + "  " +
                                   service.caFile().toUtf8()));
    EXPECT_TRUE(named.out.contains("(none)"));
    const Ran help = run({u"--help"_s});
    EXPECT_EQ(help.code, 0);
    EXPECT_TRUE(help.out.contains("Exit codes:"));
    const Ran ofCommand = run({u"hosts"_s, u"--help"_s});
    EXPECT_TRUE(ofCommand.out.contains("--root") && !ofCommand.out.contains("--json"));
    EXPECT_EQ(run({u"--version"_s}).out, "varnhold-cli " VARNHOLD_VERSION "\n");
    root.write(u"hosts.ini"_s, "[Hosts]\r\nUse=these\r\n[Servers]\r\n1=a b\r\n");
    const Ran wrong = cli({u"hosts"_s});
    EXPECT_EQ(wrong.code, 1);
    EXPECT_TRUE(wrong.err.contains("[Servers] 1")) << wrong.err.constData();
}

TEST(CliAlone, BringsItsOwnSampleService)
{
    const TempRoot root;
    const Ran hosts = run({u"hosts"_s, u"--root"_s, root.path({})});
    EXPECT_TRUE(hosts.out.contains("sample")) << hosts.out.constData();
    for (int server = 1; server <= 6; ++server) {
        const Ran ran = run({u"lookup"_s, u"BCUS10001"_s, u"--root"_s, root.path({}), u"--server"_s,
                             QString::number(server)});
        EXPECT_EQ(ran.code, 0) << server << ran.err.constData();
        EXPECT_TRUE(ran.err.count('\n') == 1 && ran.err.contains("sample service")) << ran.err.constData();
        EXPECT_TRUE(ran.out.startsWith("BCUS10001  Lantern Reach  [1 Update]\n")) << ran.out.constData();
    }
    // Into the current folder, where neither the settings nor --to name one.
    root.makeFolder(u"here"_s);
    EXPECT_EQ(run({u"download"_s, u"NPEB00112"_s, u"--root"_s, root.path({})}, root.path(u"here"_s)).code, 0);
    EXPECT_EQ(QDir(root.path(u"here"_s)).entryList({u"*.pkg"_s}, QDir::Files).size(), 1);
}

TEST_F(Cli, FetchesCoversFromTheServersInTheirOrder)
{
    const QByteArray http = "http://" + service.httpAuthority().toLatin1();
    root.write(u"Settings.ini"_s, "[Settings]\r\nCover Path=" + root.path(u"covers"_s).toUtf8() +
                                      "\r\n[ServerName]\r\n1=None\r\n2=Sample\r\n[ServerUrl]\r\n1=" + http +
                                      "/nothing/\r\n2=" + http + "/covers/\r\n");
    service.misbehave(u"/nothing/*"_s, u"404"_s);
    EXPECT_EQ(cli({u"cover"_s}).code, 2);
    EXPECT_EQ(cli({u"cover"_s, u"--missing"_s, u"BLUS30443"_s}).code, 2);
    EXPECT_EQ(cli({u"cover"_s, u"BLUS30443"_s}).code, 1) << "the folder is not made";
    root.write(u"covers/bces00001.JPG"_s, "old");

    const Ran fetched = cli({u"cover"_s, u"BLUS30443"_s, u"BCES00001"_s});
    EXPECT_EQ(fetched.code, 0) << fetched.err.constData();
    EXPECT_TRUE(fetched.out.contains("BLUS30443  Sample  ")) << fetched.out.constData();
    EXPECT_TRUE(fetched.out.contains("BCES00001  is there already  ")) << fetched.out.constData();
    EXPECT_TRUE(root.read(u"covers/BLUS30443.jpg"_s).startsWith("\xFF\xD8\xFF"));
    EXPECT_EQ(root.read(u"covers/bces00001.JPG"_s), "old");

    const Ran none = cli({u"cover"_s, u"XXXX00000"_s, u"--json"_s});
    EXPECT_EQ(none.code, 3);
    const QJsonObject line = QJsonDocument::fromJson(none.out).array().first().toObject();
    EXPECT_EQ(line[u"outcome"_s], u"missing"_s);
    EXPECT_EQ(line[u"problems"_s].toArray().size(), 2);
    EXPECT_EQ(cli({u"cover"_s, u"BLUS30443"_s, u"--from"_s, u"nobody"_s}).code, 1);

    service.misbehave(u"/covers/*"_s, u"not-picture"_s);
    root.write(u"covers/BLUS30443.jpg"_s, "old");
    EXPECT_EQ(cli({u"cover"_s, u"BLUS30443"_s, u"--overwrite"_s}).code, 1);
    EXPECT_TRUE(root.read(u"covers/BLUS30443.jpg"_s) == "old");
    EXPECT_TRUE(cli({u"hosts"_s}).out.contains("Sample"));
}

} // namespace
} // namespace varnhold::test
