#pragma once

#include "platform/Socket.h"

#include <QHostAddress>
#include <QList>
#include <QTimer>

#include <memory>

class QHostInfo;
class QSocketNotifier;

namespace varnhold {

class ChunkMover;

/// A socket of the system, non-blocking, watched by the event loop. Names are resolved beside the event loop;
/// the addresses of a name are tried one after another, IPv6 and IPv4 alike. One event hands over at most
/// 1 MiB, so that other connections and timers get their turn, and no event of a connection is raised
/// while one of it is still being handled.
class TcpSocket : public Socket
{
    Q_OBJECT

public:
    TcpSocket(std::shared_ptr<ChunkMover> mover, QObject* parent);
    ~TcpSocket() override;

    void close() override;
    void connectTo(const QString& host, const QString& port) override;
    [[nodiscard]] State state() const override { return m_state; }
    void sendData(const QByteArray& data) override;
    qsizetype peekData(std::span<char> buffer) override;
    QByteArrayView getData() override;
    qint64 moveData(int fileDescriptor, qint64 offset) override;

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
    void flush();
    /// Ends the connection with error(), from the event loop.
    void failLater(int number);
    void fail(int number);
    void release();

    std::shared_ptr<ChunkMover> m_mover;
    State m_state = State::Closed;
    int m_descriptor = -1;
    std::unique_ptr<QSocketNotifier> m_readable;
    std::unique_ptr<QSocketNotifier> m_writable;
    QList<QHostAddress> m_addresses; ///< still to be tried
    quint16 m_port = 0;
    QTimer m_soon;            ///< starts from the event loop what needs no lookup
    int m_soonError = 0;      ///< with it when there is no address to try
    int m_lookup = -1;        ///< running name lookup
    int m_lastError = 0;      ///< errno of the last address tried
    quint32 m_connection = 0; ///< counts connections: tells whether a handler has closed this one
    QByteArray m_unsent;
    qint64 m_waiting = 0; ///< what is left of the chunk that is handed over now
    QByteArray m_chunk;
    bool m_handling = false; ///< an event of this connection is being handled
};

class TcpSocketMaker : public SocketMaker
{
public:
    TcpSocketMaker();
    Socket* makeSocket(QObject* owner) override;

private:
    std::shared_ptr<ChunkMover> m_mover;
};

} // namespace varnhold
