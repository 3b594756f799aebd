#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>

#include <functional>
#include <span>

namespace varnhold {

/// One TCP client connection on the event loop. Never blocks; events are signals, raised from the event
/// loop and never from inside a call. After close() no event of the old connection comes any more.
///
/// Order of events: connected, dataArrival for as long as data waits, then closed or error. Data that came
/// before an error is handed over first.
class Socket : public QObject
{
    Q_OBJECT

public:
    /// The numbers are those that callers compare with.
    enum class State { Closed = 0, ResolvingHost = 4, Connecting = 6, Connected = 7, Closing = 8, Error = 9 };

    using QObject::QObject;

    virtual void close() = 0;
    /// port is decimal text, 1 to 65535; anything else ends in error(10049 or 380).
    virtual void connectTo(const QString& host, const QString& port) = 0;
    [[nodiscard]] virtual State state() const = 0;
    /// Queues the bytes; they leave as the peer takes them.
    virtual void sendData(const QByteArray& data) = 0;

    /// Inside dataArrival only. Copies up to `buffer.size()` of the chunk's first bytes without taking them;
    /// the count copied.
    virtual qsizetype peekData(std::span<char> buffer) = 0;
    /// Inside dataArrival only. Takes the chunk. The view is valid until the next call on this socket.
    virtual QByteArrayView getData() = 0;

    /// What a move came to: the bytes, and the errno of a write that failed, with which bytes are lost and
    /// the transfer is to be given up; else 0.
    using Moved = std::function<void(qint64 bytes, int cause)>;
    /// Inside dataArrival only. Has the chunk moved to the file at the byte offset, without bringing it into
    /// the program where the system can, and off the event loop's thread, which is told the end. What waits
    /// then goes with it as chunks of their own, up to one that begins with `except`, of which nothing is
    /// touched. No other event is raised meanwhile. The file stays open until the end is told, or until
    /// close(), which waits for what is under way; then nothing is told.
    virtual void moveData(int fileDescriptor, qint64 offset, const QByteArray& except, Moved moved) = 0;

Q_SIGNALS:
    void connected();
    /// bytesTotal: what waits now, the chunk; above 0. What the receiver leaves untaken is handed over again.
    void dataArrival(qint64 bytesTotal);
    /// The peer closed in order, after all its data was handed over.
    void closed();
    /// number: 10054 reset, 10060 timed out, 10061 refused, 11001 unknown host, or another of that range.
    void error(int number, const QString& description);
};

/// Makes sockets, so that tests can hand out scripted ones.
class SocketMaker
{
public:
    virtual ~SocketMaker() = default;
    virtual Socket* makeSocket(QObject* owner) = 0;
};

} // namespace varnhold
