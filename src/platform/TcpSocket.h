#pragma once

#include "platform/Socket.h"
#include "platform/Workers.h"

#include <QHostAddress>
#include <QList>
#include <QTimer>

#include <memory>
#include <optional>

class QHostInfo;
class QSocketNotifier;

namespace varnhold {

/// A socket of the system, non-blocking, watched by the event loop. Names are resolved beside the event loop;
/// the addresses of a name are tried one after another, IPv6 and IPv4 alike. One event hands over at most
/// 128 KiB, so that other connections and timers get their turn, and no event of a connection is raised
/// while one of it is still being handled or moved.
class TcpSocket : public Socket
{
    Q_OBJECT

public:
    TcpSocket(std::shared_ptr<Workers> movers, QObject* parent);
    ~TcpSocket() override;

    void close() override;
    void connectTo(const QString& host, const QString& port) override;
    [[nodiscard]] State state() const override { return m_state; }
    void sendData(const QByteArray& data) override;
    qsizetype peekData(std::span<char> buffer) override;
    QByteArrayView getData() override;
    void moveData(int fileDescriptor, qint64 offset, const QByteArray& except, Moved moved) override;

private Q_SLOTS:
    void onLookedUp(const QHostInfo& info);

private:
    void onSoon();
    void tryNextAddress();
    bool startConnect(const QHostAddress& address);
    void watch();
    void onWritable();
    void onReadable();
    void handOver(qint64 bytes);
    void startMove();
    void onMoved(qint64 bytes, int cause);
    void flush();
    /// Ends the connection with error(), from the event loop.
    void failLater(int number);
    void fail(int number);
    void release();

    /// A chunk that is to be moved, or is being moved.
    struct Move
    {
        int file = -1;
        qint64 offset = 0;
        qint64 count = 0;
        QByteArray except;
        Moved moved;
    };

    State m_state = State::Closed;
    int m_descriptor = -1;
    std::unique_ptr<QSocketNotifier> m_readable;
    std::unique_ptr<QSocketNotifier> m_writable;
    QList<QHostAddress> m_addresses; ///< still to be tried
    quint16 m_port = 0;
    QTimer m_soon;            ///< starts from the event loop what needs no lookup
    int m_sendError = 0;      ///< errno of the send that failed; told when what the peer sent has been read
    int m_soonError = 0;      ///< with it when there is no address to try
    int m_lookup = -1;        ///< running name lookup
    int m_lastError = 0;      ///< errno of the last address tried
    quint32 m_connection = 0; ///< counts connections: tells whether a handler has closed this one
    QByteArray m_unsent;
    qint64 m_waiting = 0; ///< what is left of the chunk that is handed over now
    QByteArray m_chunk;
    std::optional<Move> m_move;
    bool m_handling = false; ///< an event of this connection is being handled, or its chunk moved
    WorkOrder m_order;
};

class TcpSocketMaker : public SocketMaker
{
public:
    TcpSocketMaker();
    Socket* makeSocket(QObject* owner) override;

private:
    std::shared_ptr<Workers> m_movers;
};

} // namespace varnhold
