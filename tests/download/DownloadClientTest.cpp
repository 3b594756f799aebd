#include "download/DownloadClient.h"
#include "support/FakeClock.h"
#include "support/FakeDownloadFiles.h"
#include "support/FakeMessageBoxes.h"
#include "support/FakePump.h"
#include "support/FakeSocket.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

#include <memory>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

constexpr int roundsOfWait = 160000;

const QString pkgPath = u"/dl/game.pkg"_s;
const QString tempPath = u"/dl/game.temp"_s;
const QString markerPath = u"/dl/game.txt"_s;

QString reportText(int number, const QString& description)
{
    return u"Err Number:\t%1\r\nErr Source:\tVarnhold\r\nErr Description:\t%2\r\n"_s.arg(number).arg(
        description);
}

class DownloadClientTest : public testing::Test
{
protected:
    DownloadClientTest() { reset(); }

    void reset(const QString& path = pkgPath, const QString& url = u"http://www.host.test:81/a/game.pkg"_s)
    {
        files.contents.clear();
        files.calls = 0;
        unloads = 0;
        pump.count = 0;
        client = std::make_unique<DownloadClient>(
            DownloadClient::Services{sockets, files, clock, pump, boxes, u"Title"_s});
        QObject::connect(client.get(), &DownloadClient::unloadRequested, client.get(), [this] { ++unloads; });
        client->setName(u"game.pkg"_s);
        client->setNameTag(path);
        client->setUrl(url);
    }

    void connectUp()
    {
        client->Download1();
        socket().arriveConnected();
    }

    FakeSocket& socket() const { return *sockets.last; }
    bool isStranded() const { return unloads == 0 && socket().state() == Socket::State::Closed; }

    FakeSocketMaker sockets;
    FakeDownloadFiles files;
    FakeClock clock;
    FakePump pump;
    FakeMessageBoxes boxes;
    std::unique_ptr<DownloadClient> client;
    int unloads = 0;
};

TEST_F(DownloadClientTest, asksForThePathAndKeepsWhatArrives)
{
    connectUp();
    EXPECT_EQ(client->labels().name, u"game"_s);
    EXPECT_EQ(socket().connects, QStringList{u"host.test:81"_s});
    EXPECT_EQ(socket().sent,
              QList<QByteArray>{"GET /a/game.pkg HTTP/1.0\r\nHost: host.test\r\nConnection: close\r\n"
                                "Accept: */*\r\nAccept-Encoding: binary\r\n\r\n"});

    socket().arrive("HTTP/1.1 200 OK\r\ncontent-length: 6\r\n\r\nab");
    socket().arrive("cd");
    EXPECT_EQ(client->fileSize(), 6);
    EXPECT_EQ(files.contents.value(tempPath), "abcd");
    EXPECT_TRUE(files.contents.contains(markerPath));

    // Two bytes short, and finished all the same.
    socket().peerCloses();
    EXPECT_EQ(files.contents.value(pkgPath), "abcd");
    EXPECT_FALSE(files.contents.contains(tempPath));
    EXPECT_EQ(client->labels().loaded, u"4 B (4 bytes)"_s);
    EXPECT_EQ(client->labels().caption, u"Download Finished - Elapsed: 00:00:00"_s);
    EXPECT_FALSE(client->labels().cancelEnabled);
    EXPECT_EQ(unloads, 1);
    EXPECT_EQ(pump.count, 1 + roundsOfWait);
}

TEST_F(DownloadClientTest, takesHeaderAndContentApartAtEveryCut)
{
    const QByteArray header = "HTTP/1.0 200 OK\r\nContent-Length: 5\r\n\r\n";
    const QByteArray response = header + "HTTPx";
    for (qsizetype cut = 1; cut < response.size(); ++cut) {
        SCOPED_TRACE(cut);
        reset();
        connectUp();
        socket().arrive(response.first(cut));
        socket().arrive(response.sliced(cut));
        socket().peerCloses();

        QByteArray expected;
        if (cut < 4)
            expected = response; // neither piece begins with the four letters
        else if (cut < header.size())
            expected = response.sliced(cut); // the header's first piece is lost, the other is content
        else if (cut > header.size())
            expected = "HTTPx";
        // Cut between the two: the body looks like a header without an end, and is lost.
        EXPECT_EQ(files.contents.value(pkgPath), expected);
        EXPECT_EQ(client->bytesReceived(), expected.size());
        EXPECT_EQ(client->fileSize(), cut >= header.size() ? 5 : 0);
    }
}

TEST_F(DownloadClientTest, actsOnTheStatusWord)
{
    enum class Then { Goes, Stranded, StrandedFileClosed };
    struct Case
    {
        QByteArray header;
        Then then;
        qint32 size;
        QString connect = {};
        QString box = {};
    };
    const QString tooLarge =
        u"This file is to large!\r\nPlease use another DL Mngr.\r\nErr Description: \tOverflow\r\n"_s;
    const QString badAddress = u"Error: The new Location URL is not valid."_s;
    const QString noStatus = reportText(9, u"Subscript out of range"_s);
    const Case cases[] = {
        {"HTTP/1.0 200 OK", Then::Goes, -1},
        {"HTTP/1.0 200 OK\r\nX: 1\r\nCONTENT-LENGTH:  12 kB\r\nContent-Length: 3", Then::Goes, 12},
        {"HTTP/1.0 200 OK\r\nContent-Length: abc", Then::Goes, 0},
        {"HTTP/1.0 200 OK\r\nContent-Length: 2.5", Then::Goes, 2},
        {"HTTP/1.0 200 OK\r\nContent-Length: 2147483647", Then::Goes, 2147483647},
        {"HTTP/1.0 200 OK\r\nContent-Length: 2147483648", Then::StrandedFileClosed, 0, {}, tooLarge},
        {"HTTP/1.0 302 Found\r\nLocation: http://WWW.other.test/b.pkg", Then::Goes, 0, u"other.test:80"_s},
        {"HTTP/1.0 302 Found\r\nlocation: http://host.test:81/a/game.pkg", Then::Goes, 0, u"host.test:81"_s},
        {"HTTP/1.0 302 Found\r\nLocation: ", Then::Goes, 0, u":80"_s},
        {"HTTP/1.0 302 Found", Then::Goes, 0},
        {"HTTP/1.0 302 Found\r\nLocation: https://other.test/b.pkg", Then::Goes, 0, {}, badAddress},
        {"HTTP/1.0 404 Not Found", Then::StrandedFileClosed, 0},
        {"HTTP/1.0 301 Moved\r\nLocation: http://other.test/", Then::Stranded, 0},
        {"HTTP/1.0  200 OK", Then::Stranded, 0},
        {"HTTP/1.0 206 Partial", Then::Stranded, 0},
        {"HTTP", Then::StrandedFileClosed, 0, {}, noStatus},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.header.toStdString());
        reset();
        connectUp();
        if (!c.box.isEmpty())
            boxes.expect(c.box, c.then == Then::Goes ? u"Error"_s : u"ErrorException"_s);
        socket().arrive(c.header + "\r\n\r\n");
        EXPECT_EQ(client->fileSize(), c.size);
        EXPECT_EQ(isStranded(), c.then != Then::Goes);
        EXPECT_EQ(socket().connects.mid(1), c.connect.isEmpty() ? QStringList() : QStringList{c.connect});
        EXPECT_EQ(client->labels().url, u"http://www.host.test:81/a/game.pkg"_s);

        // What a late chunk does tells whether the file is still taken for open.
        socket().connectTo(u"again"_s, u"1"_s);
        socket().arrive("late");
        EXPECT_EQ(files.contents.value(tempPath), c.then == Then::StrandedFileClosed ? "" : "late");
        EXPECT_EQ(unloads, 0);
    }
}

TEST_F(DownloadClientTest, asksAnewAfterARedirectAndEndsOnlyWithThePeer)
{
    connectUp();
    for (int i = 0; i < 50; ++i) {
        socket().arrive("HTTP/1.0 302 Found\r\nLocation: http://host.test/x" + QByteArray::number(i) +
                        "\r\n\r\n");
        socket().arriveConnected();
    }
    EXPECT_TRUE(socket().sent.last().startsWith("GET /x49 HTTP/1.0\r\nHost: host.test\r\n"));
    EXPECT_EQ(socket().sent.size(), 51);

    // A body's chunk that looks like a header is read as one: its status closes the socket.
    socket().arrive("HTTP/1.0 200 OK\r\n\r\nab");
    socket().arrive("HTTP is how this text begins\r\n\r\nand goes on");
    EXPECT_TRUE(isStranded());
    EXPECT_EQ(files.contents.value(tempPath), "ab");

    client->cmdCancel_Click();
    EXPECT_TRUE(files.contents.isEmpty());
    EXPECT_EQ(client->labels().caption, u"Download Cancelled ..."_s);
    EXPECT_EQ(unloads, 1);
}

TEST_F(DownloadClientTest, overwritesTheStartOfAnOldPartAndAppendsTheRest)
{
    files.contents.insert(tempPath, "0123456789");
    connectUp();
    socket().arrive("HTTP/1.0 200 OK\r\n\r\nab");
    socket().arrive("cd");
    socket().arrive("HTTP/1.0 200 OK\r\n\r\nef"); // the position has moved to the end by now
    EXPECT_EQ(files.contents.value(tempPath), "ab23456789cdef");
}

TEST_F(DownloadClientTest, saysHowFarItIs)
{
    struct Case
    {
        int size;
        int received;
        quint32 milliseconds;
        QString loaded, speed, remaining, elapsed, done;
        int percent;
    };
    const QString kilo = u"1 KB (1024 bytes)"_s;
    const QString none = u"00:00:00"_s;
    const Case cases[] = {
        // Half a second rounds down to an elapsed time of 0: no speed, and no time left.
        {4096, 1024, 500, kilo, u"0 B/s"_s, none, none, u"25%"_s, 25},
        {4096, 1024, 1500, kilo, u"512 B/s"_s, u"00:00:06"_s, u"00:00:02"_s, u"25%"_s, 25},
        {4096, 1024, 2500, kilo, u"512 B/s"_s, u"00:00:06"_s, u"00:00:02"_s, u"25%"_s, 25},
        // More than was told: the negative time shows as a positive one.
        {100, 5300, 1000, u"5.18 KB (5300 bytes)"_s, u"5.18 KB/s"_s, u"00:00:01"_s, u"00:00:01"_s, u"5300%"_s,
         5300},
        // Text and bar round a half differently.
        {200, 5, 100, u"5 B (5 bytes)"_s, u"0 B/s"_s, none, none, u"3%"_s, 2},
        {0, 10, 1000, u"10 B (10 bytes)"_s, u"10 B/s"_s, u"00:00:01"_s, u"00:00:01"_s, {}, 0},
        {-1, 1024, 90061000, kilo, u"0 B/s"_s, none, u"01:01:01"_s, u"-102400%"_s, -102400},
        {2000000, 100, 100000, u"100 B (100 bytes)"_s, u"1 B/s"_s, u"03:31:40"_s, u"00:01:40"_s, u"0%"_s, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(testing::Message() << c.size << " " << c.received << " " << c.milliseconds);
        reset();
        connectUp();
        const QByteArray length = c.size < 0 ? "" : "\r\nContent-Length: " + QByteArray::number(c.size);
        socket().arrive("HTTP/1.0 200 OK" + length + "\r\n\r\n");
        socket().arrive("x");
        EXPECT_EQ(client->labels().fileSize, QString()); // never at the first chunk
        clock.advance(99);
        socket().arrive("x");
        EXPECT_EQ(client->labels().fileSize, QString());
        clock.advance(c.milliseconds - 99);
        socket().arrive(QByteArray(c.received - 2, 'x'));

        const DownloadLabels& labels = client->labels();
        EXPECT_EQ(labels.loaded, c.loaded);
        EXPECT_EQ(labels.speed, c.speed);
        EXPECT_EQ(labels.caption, u"Downloading - Remaining: %1 - Elapsed: %2"_s.arg(c.remaining, c.elapsed));
        EXPECT_EQ(labels.done, c.done);
        EXPECT_EQ(labels.percent, c.percent);
    }
    EXPECT_EQ(client->labels().fileSize, u"1.91 MB (2000000 bytes)"_s);
    EXPECT_EQ(client->labels().bytesR, u"0.1 kB"_s);
    EXPECT_EQ(client->labels().kBytes, u"1953.12 kB"_s);
}

TEST_F(DownloadClientTest, strandsOnAddressesAndTargetsThatCannotBe)
{
    reset(u"game.pkg"_s);
    client->Download1();
    EXPECT_TRUE(socket().connects.isEmpty());

    for (const QString& url : {u"https://host.test/x.pkg"_s, u"host.test:0/x.pkg"_s, u"host.test:port"_s}) {
        reset(pkgPath, url);
        boxes.expect(u"Error: The entered URL is not valid"_s, u"Error"_s);
        client->Download1();
        EXPECT_TRUE(socket().connects.isEmpty());
        EXPECT_EQ(files.contents.keys(), (QStringList{tempPath, markerPath}));
    }

    // The target stands in the way: five tries, then the old file stays.
    reset(u"/dl/"_s);
    files.contents.insert(u"/dl/"_s, "old");
    QList<int> tried;
    for (int i = 1; i <= 5; ++i)
        pump.at(i, [&] { files.contents.insert(u"/dl/"_s, "old"), tried.append(files.calls); });
    boxes.expect(u"Error: Unable to overwrite the File"_s, u"Error"_s);
    client->Download1();
    EXPECT_EQ(tried, (QList<int>{1, 2, 3, 4, 5}));
    EXPECT_EQ(pump.count, 5);
    EXPECT_TRUE(socket().connects.isEmpty());
    EXPECT_EQ(unloads, 0);
}

/// Open, marker, header's body, two chunks, the old target's end, rename: each failing in turn.
TEST_F(DownloadClientTest, survivesEveryFailingFileCall)
{
    const QString full = reportText(61, u"Disk full"_s);
    const QString notOpen = reportText(52, u"Bad file name or number"_s);
    struct Case
    {
        QString box;
        int unloads;
        QStringList left;
    };
    const Case cases[] = {
        {notOpen, 0, {markerPath}},        // the open failed silently, the first write tells
        {{}, 1, {pkgPath}},                // only the marker is missing
        {full, 0, {tempPath, markerPath}}, // header's body: stranded
        {full, 1, {}},                     // content: cancelled
        {full, 1, {}},
        {full, 0, {pkgPath, tempPath, markerPath}}, // the old file cannot go: stays open
        {full, 0, {tempPath, markerPath}},          // rename
        {{}, 1, {pkgPath, markerPath}},
    };
    int call = 0;
    for (const Case& c : cases) {
        SCOPED_TRACE(++call);
        reset();
        files.failingCall = call;
        if (!c.box.isEmpty())
            boxes.expect(c.box, u"ErrorException"_s);
        connectUp();
        socket().arrive("HTTP/1.0 200 OK\r\nContent-Length: 6\r\n\r\nab");
        socket().arrive("cd");
        socket().arrive("ef");
        files.contents.insert(files.contents.contains(tempPath) ? pkgPath : u"/other"_s, "old");
        socket().peerCloses();
        files.contents.remove(u"/other"_s);
        if (call < 6 && call != 2)
            files.contents.remove(pkgPath); // put there by this test and never touched
        EXPECT_EQ(unloads, c.unloads);
        EXPECT_EQ(files.contents.keys(), c.left);
    }
}

TEST_F(DownloadClientTest, losesAChunkSilentlyOrEndsPast32Bits)
{
    connectUp();
    socket().arrive("HTTP/1.0 200 OK\r\n\r\n");
    for (const int number : {91, 5, 0}) {
        files.failure = number;
        files.failingCall = files.calls + 1;
        socket().arrive("lost");
    }
    socket().arrive("kept");
    EXPECT_EQ(files.contents.value(tempPath), "kept");

    files.extraBytes = 2147483647 - 4 - 4;
    socket().arrive("last");
    EXPECT_EQ(client->bytesReceived(), 2147483647);
    files.extraBytes = 0;
    boxes.expect(reportText(6, u"Overflow"_s), u"ErrorException"_s);
    socket().arrive("x");
    EXPECT_TRUE(files.contents.isEmpty());
    EXPECT_EQ(unloads, 1);
}

TEST_F(DownloadClientTest, endsOnceWhateverHappensInItsWaits)
{
    // Exit while the finished window still stands.
    connectUp();
    pump.at(100, [&] { client->btnExit_Click(); });
    socket().peerCloses();
    EXPECT_EQ(unloads, 1);

    // Exit, and the owner lets it go, in the pump of the start.
    reset();
    pump.at(1, [&] {
        client->btnExit_Click();
        client.reset();
    });
    client->Download1();
    EXPECT_EQ(unloads, 1);
    EXPECT_TRUE(files.contents.isEmpty());

    // Gone in the wait after a cancel.
    reset();
    connectUp();
    pump.at(pump.count + 7, [&] { client.reset(); });
    client->cmdCancel_Click();
    EXPECT_EQ(unloads, 0);

    // Exit leaves the part and the marker.
    reset();
    connectUp();
    client->btnExit_Click();
    client->cmdCancel_Click();
    EXPECT_EQ(unloads, 1);
    EXPECT_EQ(files.contents.keys(), (QStringList{tempPath, markerPath}));

    // A cancel before there are files fails, and the start goes on.
    reset();
    pump.at(1, [&] {
        boxes.expect(u"53 File not found"_s, u"Title"_s);
        client->cmdCancel_Click();
    });
    client->Download1();
    EXPECT_EQ(socket().connects.size(), 1);
    EXPECT_TRUE(client->labels().cancelEnabled);
    boxes.expect(u"Connection is reset by remote side"_s, u"Error 10054"_s);
    socket().fails(10054, u"Connection is reset by remote side"_s);
    EXPECT_EQ(unloads, 0);
    boxes.expect(tempPath, u"game"_s);
    client->lblName_Click();
}

TEST_F(DownloadClientTest, losesAFileWhoseNameHasNoPkg)
{
    reset(u"/dl/game.PKG"_s);
    connectUp();
    socket().arrive("HTTP/1.0 200 OK\r\n\r\nab");
    boxes.expect(reportText(53, u"File not found"_s), u"ErrorException"_s);
    socket().peerCloses();
    EXPECT_TRUE(files.contents.isEmpty());
    EXPECT_EQ(unloads, 0);
}

} // namespace

} // namespace varnhold::test
