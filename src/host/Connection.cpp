#include "host/Connection.h"

#include <QSslSocket>
#include <QTcpSocket>
#include <QTimerEvent>

#include <sys/socket.h>

#include <algorithm>

namespace varnhold::host {

namespace {

constexpr qint64 bufferSize = 256 * 1024;
/// What may wait in the socket before the next piece is made.
constexpr qint64 waitingLimit = 2 * bufferSize;
constexpr int paceMilliseconds = 5;
/// Long enough for the peer to see a piece on its own, on a busy machine too; many pieces get less each.
constexpr int cutMilliseconds = 30;
constexpr int shortCutMilliseconds = 3;
constexpr std::size_t manyCuts = 8;
/// Before a reset, since a reset takes away what the peer has not yet read.
constexpr int resetMilliseconds = 60;

} // namespace

Connection::Connection(QTcpSocket* socket, Handler handler, QObject* parent)
    : QObject(parent), m_socket(socket), m_handler(std::move(handler))
{
    socket->setParent(this);
    socket->setSocketOption(QAbstractSocket::LowDelayOption, 1);
    connect(socket, &QTcpSocket::readyRead, this, &Connection::readMore);
    connect(socket, &QTcpSocket::bytesWritten, this, &Connection::send);
    if (const auto* secure = qobject_cast<QSslSocket*>(socket))
        connect(secure, &QSslSocket::encryptedBytesWritten, this, &Connection::send);
    connect(socket, &QTcpSocket::disconnected, this, &QObject::deleteLater);
    if (socket->bytesAvailable() > 0)
        readMore();
}

void Connection::readMore()
{
    if (m_asked) {
        // Left in the socket, it would turn the orderly end into a reset.
        m_socket->readAll();
        return;
    }
    m_received += m_socket->read(requestLimit + 1 - m_received.size());
    const HttpRequest request = readRequest(m_received);
    if (request.state == HttpRequest::State::Incomplete)
        return;
    m_asked = true;
    m_received.clear();
    m_socket->readAll();
    m_handler(*this, request);
}

void Connection::start(SendPlan plan)
{
    m_plan = std::move(plan);
    m_started = true;
    m_buffer.resize(bufferSize);
    m_clock.start();
    if (m_plan.bytesPerSecond > 0)
        m_paceTimer.start(paceMilliseconds, Qt::PreciseTimer, this);
    send();
}

/// Bytes that are on their way out. Over TLS most of them wait behind the encryption, where bytesToWrite()
/// does not count them.
qint64 Connection::waitingBytes() const
{
    const auto* secure = qobject_cast<QSslSocket*>(m_socket);
    return m_socket->bytesToWrite() + (secure != nullptr ? secure->encryptedBytesToWrite() : 0);
}

/// The stream position that may be reached now.
qint64 Connection::allowedEnd()
{
    qint64 end = m_plan.end;
    if (m_cutsPassed < m_plan.cuts.size())
        end = std::min(end, m_plan.cuts[m_cutsPassed]);
    if (m_plan.bytesPerSecond > 0) {
        const double due =
            static_cast<double>(m_plan.bytesPerSecond) * static_cast<double>(m_clock.nsecsElapsed()) / 1e9;
        // The head goes out at once; only the body is paced.
        end = std::min(end, m_plan.head.size() + static_cast<qint64>(due));
    }
    return end;
}

void Connection::send()
{
    if (!m_started || m_cutTimer.isActive())
        return;
    const qint64 end = allowedEnd();
    while (m_sent < end && waitingBytes() < waitingLimit) {
        const qint64 count = m_plan.read(
            m_sent, {m_buffer.data(), static_cast<std::size_t>(std::min(end - m_sent, bufferSize))});
        if (m_socket->write(m_buffer.constData(), count) != count) {
            m_socket->abort();
            return;
        }
        m_sent += count;
    }
    if (m_sent == m_plan.end) {
        finish();
        return;
    }
    if (m_cutsPassed < m_plan.cuts.size() && m_sent == m_plan.cuts[m_cutsPassed] && waitingBytes() == 0)
        m_cutTimer.start(m_plan.cuts.size() < manyCuts ? cutMilliseconds : shortCutMilliseconds,
                         Qt::PreciseTimer, this);
}

void Connection::finish()
{
    switch (m_plan.how) {
    case SendPlan::End::Close:
        m_started = false;
        m_paceTimer.stop();
        m_socket->disconnectFromHost();
        break;
    case SendPlan::End::Reset:
        if (waitingBytes() == 0) {
            m_started = false;
            m_paceTimer.stop();
            m_cutTimer.start(resetMilliseconds, Qt::PreciseTimer, this);
        }
        break;
    case SendPlan::End::Stall:
        m_paceTimer.stop();
        break;
    }
}

void Connection::reset()
{
    const linger atOnce{1, 0};
    ::setsockopt(static_cast<int>(m_socket->socketDescriptor()), SOL_SOCKET, SO_LINGER, &atOnce,
                 sizeof atOnce);
    m_socket->abort();
}

void Connection::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_cutTimer.timerId()) {
        m_cutTimer.stop();
        if (!m_started) {
            reset();
            return;
        }
        ++m_cutsPassed;
    }
    send();
}

} // namespace varnhold::host
