#pragma once

#include <QByteArray>
#include <QString>

namespace varnhold::test {

/// The far end of a connection, driven by hand from the test's own thread. Listens on a free loopback port
/// from the start.
class LoopbackPeer
{
public:
    explicit LoopbackPeer(bool ipv6 = false);
    LoopbackPeer(const LoopbackPeer&) = delete;
    LoopbackPeer& operator=(const LoopbackPeer&) = delete;
    ~LoopbackPeer();

    [[nodiscard]] QString port() const { return QString::number(m_port); }
    void accept(); ///< waits for a connection; the one before is closed
    /// Sends all; blocks when the other side's buffers are full.
    void send(const QByteArray& bytes);
    /// What has come, at least `count` bytes; less when the other side closed.
    QByteArray receive(qsizetype count);
    void shutDownSending();
    void close();
    void reset();         ///< closes with a reset
    void stopListening(); ///< connections to the port are refused from now on

private:
    int m_listener = -1;
    int m_peer = -1;
    quint16 m_port = 0;
};

} // namespace varnhold::test
