#include "download/DiskFiles.h"
#include "download/DownloadClient.h"
#include "platform/Clock.h"
#include "platform/TcpSocket.h"
#include "support/FakeMessageBoxes.h"
#include "support/FakePump.h"
#include "support/LoopbackPeer.h"
#include "support/PrintText.h"
#include "support/PumpUntil.h"
#include "support/RunningService.h"
#include "support/TempRoot.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QTimer>

#include <functional>
#include <memory>
#include <utility>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

QByteArray madeUpBytes(qsizetype count)
{
    QByteArray bytes(count, Qt::Uninitialized);
    for (qsizetype i = 0; i < count; ++i)
        bytes[i] = static_cast<char>((i * 7919) >> 5);
    return bytes;
}

/// The real thing: sockets, files, clock.
class DownloadRoadTest : public testing::Test
{
protected:
    void start(const QString& url, const QString& name)
    {
        unloads = 0;
        client =
            std::make_unique<DownloadClient>(DownloadClient::Services{sockets, files, clock, pump, boxes});
        QObject::connect(client.get(), &DownloadClient::unloadRequested, client.get(), [this] { ++unloads; });
        client->setUrl(url);
        client->setNameTag(folder() + u'/' + name);
        client->Download1();
    }
    void pumpUntilUnloaded()
    {
        pumpUntil([&] { return unloads > 0; });
    }
    [[nodiscard]] QString folder() const { return root.path(u"dl"_s); }
    [[nodiscard]] QStringList names() const { return QDir(folder()).entryList(QDir::Files, QDir::Name); }

    void SetUp() override
    {
        root.makeFolder(u"dl"_s);
        pump.ending = true; // the wait before the unload ends at once
    }

    TempRoot root;
    TcpSocketMaker sockets;
    DiskFiles files;
    MonotonicClock clock;
    FakePump pump;
    FakeMessageBoxes boxes;
    std::unique_ptr<DownloadClient> client;
    int unloads = 0;
};

TEST_F(DownloadRoadTest, bringsEveryByteInPiecesOfAnySize)
{
    for (const qsizetype piece : {1, 2, 3, 4, 5, 1460}) {
        SCOPED_TRACE(piece);
        LoopbackPeer peer;
        const QByteArray body = madeUpBytes(piece * 30 + 1);
        start(u"127.0.0.1:"_s + peer.port() + u"/x.pkg"_s, u"x.pkg"_s);
        for (int i = 0; i < 5; ++i) // the connection comes up, and the request leaves
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        peer.accept();
        const QByteArray request = peer.receive(90);
        EXPECT_TRUE(request.startsWith("GET /x.pkg HTTP/1.0\r\nHost: 127.0.0.1\r\n")) << request.constData();
        peer.send("HTTP/1.0 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n");
        pumpUntil([&] { return client->fileSize() == body.size(); });
        for (qsizetype at = 0; at < body.size(); at += piece) {
            peer.send(body.mid(at, piece));
            pumpUntil([&] { return client->bytesReceived() == std::min(at + piece, body.size()); });
        }
        peer.close();
        pumpUntilUnloaded();
        EXPECT_TRUE(root.read(u"dl/x.pkg"_s) == body);
        EXPECT_EQ(names(), (QStringList{u"x.pkg"_s, u"x.txt"_s}));
    }
}

TEST_F(DownloadRoadTest, readsAChunkThatLooksLikeAHeaderBehindOneOnItsWay)
{
    const QByteArray body = madeUpBytes(100'000);
    for (int i = 0; i < 20; ++i) {
        LoopbackPeer peer;
        start(u"127.0.0.1:"_s + peer.port() + u"/x.pkg"_s, u"x.pkg"_s);
        pumpUntil([&] { return client->findChild<Socket*>()->state() == Socket::State::Connected; });
        peer.accept();
        peer.receive(90);
        peer.send("HTTP/1.0 200 OK\r\nContent-Length: 5\r\n\r\n");
        pumpUntil([&] { return client->fileSize() == 5; });
        // Behind the client: its chunk is ordered, and the next arrives before that is moved.
        QStringList events;
        const QObject once;
        QObject::connect(client->findChild<Socket*>(), &Socket::dataArrival, &once, [&] {
            events.append(u"%1 of %2"_s.arg(client->bytesReceived()).arg(client->fileSize()));
            if (events.size() == 1)
                peer.send("HTTP/1.0 200 OK\r\nContent-Length: 9\r\n\r\ntail");
        });
        peer.send(body);
        pumpUntil([&] { return client->fileSize() == 9; });
        peer.close();
        pumpUntilUnloaded();
        EXPECT_EQ(events.first(), u"0 of 5"_s);
        EXPECT_EQ(events.last(), u"4 of 9"_s);
        EXPECT_TRUE(root.read(u"dl/x.pkg"_s) == body + "tail");
    }
}

TEST_F(DownloadRoadTest, endsWhileAChunkIsOnItsWay)
{
    const QByteArray body = madeUpBytes(3'000'000);
    RunningService service;
    service.with([&](host::SampleService& s) {
        s.site().addPage(u"/made/x.pkg"_s, "application/octet-stream", body);
    });
    const struct
    {
        std::function<void()> act;
        QStringList left;
    } ends[] = {
        {[&] { client->cmdCancel_Click(); }, {}},
        {[&] { client->btnExit_Click(); }, {u"x.temp"_s, u"x.txt"_s}},
        {[&] { client.reset(); }, {u"x.temp"_s, u"x.txt"_s}},
    };
    for (int i = 0; i < 30; ++i) {
        const auto& end = ends[i % 3];
        bool ended = false;
        start(service.url(u"/made/x.pkg"_s), u"x.pkg"_s);
        QObject::connect(client->findChild<Socket*>(), &Socket::dataArrival, client.get(), [&] {
            if (client->fileSize() > 0 && !std::exchange(ended, true))
                QTimer::singleShot(0, [&end] { end.act(); });
        });
        pumpUntil([&] { return ended; });
        QCoreApplication::processEvents();
        ASSERT_EQ(names(), end.left);
        if (!end.left.isEmpty()) {
            const QByteArray part = root.read(u"dl/x.temp"_s);
            EXPECT_TRUE(part == body.first(part.size()));
            QFile::remove(folder() + u"/x.temp"_s);
        }
        QFile::remove(folder() + u"/x.txt"_s);
    }
}

TEST_F(DownloadRoadTest, livesWithWhateverAServerDoes)
{
    enum class End { Unloaded, Box, Stranded, Cancelled };
    struct Case
    {
        const char* misbehaviour;
        End end;
        qsizetype bytes; ///< in the file that is left; -1: any number
        QString box = {};
        QString title = {};
    };
    const qsizetype size = 3'000'000;
    const Case cases[] = {
        {"", End::Unloaded, size},
        {"redirect-port", End::Unloaded, size},
        {"no-length", End::Unloaded, size},
        {"wrong-length", End::Unloaded, size},
        {"early-close:100000", End::Unloaded, 100'000},
        {"reset:100000", End::Box, -1, u"Connection is reset by remote side"_s, u"Error 10054"_s},
        {"redirect-empty", End::Box, 0, u"Authoritative answer: Host not found"_s, u"Error 11001"_s},
        {"404", End::Stranded, 0},
        {"redirect-self", End::Cancelled, 0},
        {"stall", End::Cancelled, 0},
        {"stall:1000", End::Cancelled, 0},
        {"endless-headers", End::Cancelled, 0},
    };
    RunningService service;
    const QByteArray body = madeUpBytes(size);
    service.with([&](host::SampleService& s) {
        s.site().addPage(u"/made/x.pkg"_s, "application/octet-stream", body);
    });
    for (const Case& c : cases) {
        SCOPED_TRACE(c.misbehaviour);
        for (const QString& name : names())
            QFile::remove(folder() + u'/' + name);
        if (*c.misbehaviour != 0)
            service.misbehave(u"*"_s, QString::fromLatin1(c.misbehaviour));
        if (!c.box.isEmpty())
            boxes.expect(c.box, c.title);
        boxes.shown.clear();
        const qsizetype requests = service.requests().size();
        start(service.url(u"/made/x.pkg"_s), u"x.pkg"_s);
        switch (c.end) {
        case End::Unloaded:
            pumpUntilUnloaded();
            EXPECT_TRUE(root.read(u"dl/x.pkg"_s) == body.first(c.bytes));
            EXPECT_EQ(names(), (QStringList{u"x.pkg"_s, u"x.txt"_s}));
            continue;
        case End::Box:
            pumpUntil([&] { return !boxes.shown.isEmpty(); });
            break;
        case End::Stranded:
        case End::Cancelled:
            pumpUntil([&] { return service.requests().size() > requests; });
            for (int i = 0; i < 50; ++i)
                QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
            break;
        }
        EXPECT_EQ(unloads, 0);
        EXPECT_EQ(names(), (QStringList{u"x.temp"_s, u"x.txt"_s}));
        if (c.end == End::Stranded) {
            EXPECT_EQ(QFileInfo(folder() + u"/x.temp"_s).size(), 0);
        }
        client->cmdCancel_Click();
        EXPECT_EQ(unloads, 1);
        EXPECT_EQ(names(), QStringList());
    }
}

TEST_F(DownloadRoadTest, tellsOfNamesAndFoldersThatCannotBe)
{
    RunningService service;
    service.with([](host::SampleService& s) {
        s.site().addPage(u"/made/x.pkg"_s, "application/octet-stream", "body");
    });
    const std::pair<QString, bool> cases[] = {
        {u"plain.pkg"_s, true},        {u"query.pkg?a=1"_s, true},
        {u"line\nend.pkg"_s, true},    {u".."_s, false},
        {u"missing/x.pkg"_s, false},   {QString(300, u'x') + u".pkg"_s, false},
        {u"plain.pkg/x.pkg"_s, false},
    };
    for (const auto& [name, works] : cases) {
        SCOPED_TRACE(name.toStdString());
        if (!works)
            boxes.expect(
                u"Err Number:\t52\r\nErr Source:\tVarnhold\r\nErr Description:\tBad file name or number\r\n"_s);
        boxes.shown.clear();
        start(service.url(u"/made/x.pkg"_s), name);
        pumpUntil([&] { return unloads > 0 || !boxes.shown.isEmpty(); });
        EXPECT_EQ(unloads, works ? 1 : 0);
        EXPECT_TRUE(!works || root.read(u"dl/"_s + name) == "body");
    }

    // A folder that goes while the file is open.
    service.misbehave(u"*"_s, u"stall:2"_s);
    start(service.url(u"/made/x.pkg"_s), u"gone.pkg"_s);
    pumpUntil([&] { return client->bytesReceived() > 0; });
    ASSERT_TRUE(QDir(folder()).removeRecursively());
    boxes.expect(u"53 File not found"_s);
    client->cmdCancel_Click();
    EXPECT_EQ(unloads, 0);
    client->btnExit_Click();
    EXPECT_EQ(unloads, 1);
}

} // namespace

} // namespace varnhold::test
