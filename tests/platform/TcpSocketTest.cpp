#include "platform/TcpSocket.h"
#include "support/LoopbackPeer.h"
#include "support/PrintText.h"
#include "support/PumpUntil.h"

#include <gtest/gtest.h>

#include <QStringList>
#include <QTemporaryFile>

#include <fcntl.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class TcpSocketTest : public testing::Test
{
protected:
    TcpSocketTest()
    {
        QObject::connect(socket, &Socket::connected, socket, [this] { events.append(u"connected"_s); });
        QObject::connect(socket, &Socket::dataArrival, socket, [this] {
            if (takesData)
                data += socket->getData();
            if (events.isEmpty() || events.last() != u"data"_s)
                events.append(u"data"_s);
        });
        QObject::connect(socket, &Socket::closed, socket, [this] { events.append(u"closed"_s); });
        QObject::connect(socket, &Socket::error, socket,
                         [this](int number) { events.append(u"error %1"_s.arg(number)); });
    }

    void connectUp()
    {
        socket->connectTo(u"127.0.0.1"_s, peer.port());
        pumpUntil([&] { return socket->state() == Socket::State::Connected; });
        peer.accept();
    }
    void pumpUntilEvent(const QString& event)
    {
        pumpUntil([&] { return !events.isEmpty() && events.last() == event; });
    }

    LoopbackPeer peer;
    TcpSocketMaker maker;
    QObject owner;
    Socket* socket = maker.makeSocket(&owner);
    QStringList events;
    QByteArray data;
    bool takesData = true;
};

TEST_F(TcpSocketTest, handsOverAllDataBeforeTheEnd)
{
    connectUp();
    socket->sendData("hello");
    EXPECT_EQ(peer.receive(5), "hello");
    peer.send("one ");
    pumpUntil([&] { return data == "one "; });
    peer.send("two");
    peer.shutDownSending();
    pumpUntilEvent(u"closed"_s);
    EXPECT_EQ(data, "one two");
    EXPECT_EQ(socket->state(), Socket::State::Closing);

    // The other half still works; then the same object connects anew.
    socket->close();
    EXPECT_EQ(peer.receive(1), "");
    data.clear();
    events.clear();
    connectUp();
    peer.send("last words");
    peer.reset();
    pumpUntilEvent(u"error 10054"_s);
    EXPECT_EQ(data, "last words");
    EXPECT_EQ(events, (QStringList{u"connected"_s, u"data"_s, u"error 10054"_s}));
    EXPECT_EQ(socket->state(), Socket::State::Error);
}

TEST_F(TcpSocketTest, tellsWhyItCannotConnect)
{
    peer.stopListening();
    struct Case
    {
        QString host, port, event;
    };
    const Case cases[] = {
        {u"127.0.0.1"_s, peer.port(), u"error 10061"_s},
        {u"localhost"_s, peer.port(), u"error 10061"_s},
        {u"name.invalid"_s, u"80"_s, u"error 11001"_s},
        {QString(), u"80"_s, u"error 11001"_s},
        {u"127.0.0.1"_s, u"70000"_s, u"error 10049"_s},
        {u"127.0.0.1"_s, u"80x"_s, u"error 380"_s},
        {u"["_s, u":1]"_s, u"error 380"_s},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.host.toStdString() + ":" + c.port.toStdString());
        events.clear();
        socket->connectTo(c.host, c.port);
        EXPECT_TRUE(events.isEmpty()); // never from inside the call
        pumpUntilEvent(c.event);
    }
}

TEST_F(TcpSocketTest, takesTheNextAddressOfAName)
{
    // localhost has an IPv6 and an IPv4 address here or there; the peer listens on IPv4 alone.
    socket->connectTo(u"localhost"_s, peer.port());
    pumpUntilEvent(u"connected"_s);

    LoopbackPeer peer6(true);
    socket->connectTo(u"::1"_s, peer6.port());
    pumpUntil([&] { return events.size() == 2; });
    EXPECT_EQ(events.last(), u"connected"_s);
}

TEST_F(TcpSocketTest, saysNothingMoreAfterItWasClosed)
{
    for (const QString& host : {u"127.0.0.1"_s, u"localhost"_s, u"name.invalid"_s}) {
        socket->connectTo(host, peer.port());
        socket->close();
    }
    connectUp();
    peer.send("never seen");
    socket->close();
    for (int i = 0; i < 50; ++i)
        QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
    EXPECT_EQ(events, QStringList{u"connected"_s});
    EXPECT_EQ(data, "");
}

TEST_F(TcpSocketTest, raisesNoEventInsideAHandler)
{
    connectUp();
    int depth = 0;
    int deepest = 0;
    QObject::connect(socket, &Socket::dataArrival, socket, [&] {
        deepest = std::max(deepest, ++depth);
        for (int i = 0; i < 20; ++i)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 1);
        --depth;
    });
    peer.send("a");
    pumpUntil([&] { return data == "a"; });
    peer.send("b");
    peer.close();
    pumpUntilEvent(u"closed"_s);
    EXPECT_EQ(data, "ab");
    EXPECT_EQ(deepest, 1);
}

TEST_F(TcpSocketTest, movesBytesIntoFilesUnchanged)
{
    QByteArray all(3'000'000, Qt::Uninitialized);
    for (qsizetype i = 0; i < all.size(); ++i)
        all[i] = static_cast<char>(i * 31 / 7);
    takesData = false;
    // The kernel refuses to splice into a file that is open for appending: that is the way through the
    // buffer.
    for (const int flags : {O_WRONLY, O_WRONLY | O_APPEND}) {
        SCOPED_TRACE(flags);
        QTemporaryFile file;
        ASSERT_TRUE(file.open());
        const int descriptor = ::open(qPrintable(file.fileName()), flags | O_CLOEXEC);
        qint64 moved = 0;
        int orders = 0;
        const QObject context;
        QObject::connect(socket, &Socket::dataArrival, &context, [&](qint64 waiting) {
            char start[4];
            EXPECT_EQ(socket->peekData(start), std::min<qint64>(4, waiting));
            EXPECT_EQ(start[0], all.at(moved));
            socket->moveData(descriptor, moved, {}, [&](qint64 bytes, int cause) {
                EXPECT_EQ(cause, 0);
                moved += bytes;
                ++orders;
            });
            EXPECT_EQ(socket->peekData(start), 0);
        });
        connectUp();
        for (qsizetype at = 0; at < all.size(); at += 100'000) {
            peer.send(all.mid(at, 100'000));
            pumpUntil([&] { return moved >= std::min(at + 100'000, all.size()); });
        }
        EXPECT_TRUE(file.readAll() == all);
        EXPECT_GE(orders, 30);
        socket->close();
        ::close(descriptor);
    }
}

TEST_F(TcpSocketTest, reportsAFullDisk)
{
    takesData = false;
    int cause = 0;
    const int full = ::open("/dev/full", O_WRONLY | O_CLOEXEC);
    QObject::connect(socket, &Socket::dataArrival, socket, [&] {
        socket->moveData(full, 0, {}, [&](qint64 /*bytes*/, int number) {
            cause = number;
            socket->close();
        });
    });
    connectUp();
    peer.send("x");
    pumpUntil([&] { return cause != 0; });
    EXPECT_EQ(cause, ENOSPC);
    ::close(full);
}

} // namespace

} // namespace varnhold::test
