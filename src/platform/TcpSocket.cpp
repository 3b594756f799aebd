#include "platform/TcpSocket.h"

#include "platform/ChunkMover.h"
#include "platform/RunTimeError.h"

#include <QHostInfo>
#include <QPointer>
#include <QSocketNotifier>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <netinet/in.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace varnhold {

namespace {

// What a handler may take on the event loop's thread in one turn.
constexpr qint64 handedLimit = qint64{128} << 10;
// What an ordinary pipe of the kernel holds.
constexpr qint64 chunkLimit = qint64{1} << 20;
// One order of a mover: more would be long to wait for, less leaves the movers idle between two.
constexpr qint64 moveLimit = 4 * chunkLimit;
constexpr int moverCount = 2;

int errorNumber(int cause)
{
    switch (cause) {
    case ECONNRESET:
    case EPIPE:
        return errors::connectionReset;
    case ETIMEDOUT:
        return errors::connectTimedOut;
    case ECONNREFUSED:
        return errors::connectionRefused;
    case ENETUNREACH:
        return errors::networkUnreachable;
    case EHOSTUNREACH:
        return errors::hostUnreachable;
    case ECONNABORTED:
        return errors::connectionAborted;
    default:
        return errors::addressNotAvailable;
    }
}

/// Fills the address in its own family; the length used.
socklen_t fillAddress(const QHostAddress& address, quint16 port, sockaddr_storage& storage)
{
    if (address.protocol() == QAbstractSocket::IPv4Protocol) {
        sockaddr_in in = {};
        in.sin_family = AF_INET;
        in.sin_port = htons(port);
        in.sin_addr.s_addr = htonl(address.toIPv4Address());
        std::memcpy(&storage, &in, sizeof in);
        return sizeof in;
    }
    sockaddr_in6 in = {};
    in.sin6_family = AF_INET6;
    in.sin6_port = htons(port);
    in.sin6_scope_id = address.scopeId().toUInt();
    const Q_IPV6ADDR bytes = address.toIPv6Address();
    std::memcpy(&in.sin6_addr, &bytes, sizeof bytes);
    std::memcpy(&storage, &in, sizeof in);
    return sizeof in;
}

/// What waits at a socket now.
qint64 waitingAt(int descriptor)
{
    int waiting = 0;
    return ::ioctl(descriptor, FIONREAD, &waiting) == 0 ? std::min<qint64>(waiting, chunkLimit) : 0;
}

/// Negative with errno for a failure. A reset is told once: who passes over it here meets an orderly end
/// next.
ssize_t peekAt(int descriptor, std::span<char> buffer)
{
    ssize_t copied = 0;
    do {
        copied = ::recv(descriptor, buffer.data(), buffer.size(), MSG_PEEK);
    } while (copied < 0 && errno == EINTR);
    return copied;
}

struct MoveResult
{
    qint64 bytes = 0;
    int cause = 0;
};

/// On a worker. A chunk is looked at before it is moved: moved first, it would lie in the file already when
/// its first bytes are told.
MoveResult moveChunks(int socket, int file, qint64 offset, qint64 count, const QByteArray& except)
{
    thread_local ChunkMover mover; // its pipe stays with the thread
    QByteArray start(except.size(), Qt::Uninitialized);
    qint64 moved = 0;
    while (count > 0) {
        const qint64 bytes = mover.move(socket, file, offset + moved, count);
        if (bytes < 0)
            return {moved, errno};
        moved += bytes;
        if (bytes < count || moved >= moveLimit)
            break;
        count = waitingAt(socket);
        const auto looked = static_cast<std::size_t>(std::min<qint64>(start.size(), count));
        const ssize_t seen = looked > 0 ? peekAt(socket, {start.data(), looked}) : 0;
        if (seen < 0)
            return {moved, errno};
        if (seen == except.size() && start == except)
            break;
    }
    return {moved, 0};
}

/// A notifier may be inside its own signal: it is silenced now and deleted later.
void retire(std::unique_ptr<QSocketNotifier>& notifier)
{
    if (!notifier)
        return;
    notifier->setEnabled(false);
    notifier.release()->deleteLater();
}

} // namespace

TcpSocket::TcpSocket(std::shared_ptr<Workers> movers, QObject* parent)
    : Socket(parent), m_order(std::move(movers))
{
    m_soon.setSingleShot(true);
    connect(&m_soon, &QTimer::timeout, this, &TcpSocket::onSoon);
}

TcpSocket::~TcpSocket()
{
    release();
}

void TcpSocket::close()
{
    release();
    m_state = State::Closed;
}

void TcpSocket::release()
{
    ++m_connection;
    m_order.cancel(); // before the descriptor goes
    m_move.reset();
    m_soon.stop();
    if (m_lookup >= 0)
        QHostInfo::abortHostLookup(std::exchange(m_lookup, -1));
    retire(m_readable);
    retire(m_writable);
    if (m_descriptor >= 0)
        ::close(std::exchange(m_descriptor, -1));
    m_addresses.clear();
    m_unsent.clear();
    m_sendError = 0;
    m_waiting = 0;
    m_handling = false;
}

void TcpSocket::connectTo(const QString& host, const QString& port)
{
    close();
    bool isNumber = false;
    const uint number = port.toUInt(&isNumber);
    m_state = State::ResolvingHost;
    if (!isNumber)
        return failLater(errors::invalidPropertyValue);
    if (number == 0 || number > 65535)
        return failLater(errors::addressNotAvailable);
    m_port = static_cast<quint16>(number);

    // An address needs no lookup, and would get one for its name.
    if (const QHostAddress literal(host); !literal.isNull()) {
        m_addresses = {literal};
        m_soon.start();
        return;
    }
    // By the slot's name: the analyser takes the form with a pointer for a leak.
    m_lookup = QHostInfo::lookupHost(host, this, SLOT(onLookedUp(QHostInfo)));
}

void TcpSocket::onSoon()
{
    if (m_addresses.isEmpty())
        fail(m_soonError);
    else
        tryNextAddress();
}

void TcpSocket::onLookedUp(const QHostInfo& info)
{
    if (info.lookupId() != m_lookup)
        return;
    m_lookup = -1;
    m_addresses = info.addresses();
    if (m_addresses.isEmpty())
        fail(errors::hostNotFound);
    else
        tryNextAddress();
}

void TcpSocket::tryNextAddress()
{
    m_state = State::Connecting;
    while (!m_addresses.isEmpty()) {
        if (startConnect(m_addresses.takeFirst()))
            return;
        m_lastError = errno;
    }
    fail(errorNumber(m_lastError));
}

bool TcpSocket::startConnect(const QHostAddress& address)
{
    sockaddr_storage storage = {};
    const socklen_t length = fillAddress(address, m_port, storage);
    m_descriptor = ::socket(storage.ss_family, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, IPPROTO_TCP);
    if (m_descriptor < 0)
        return false;
    // The interface of the system's calls wants the general type.
    const auto* general = reinterpret_cast<const sockaddr*>(&storage);
    if (::connect(m_descriptor, general, length) == 0 || errno == EINPROGRESS) {
        watch();
        return true;
    }
    const int cause = errno;
    ::close(std::exchange(m_descriptor, -1));
    errno = cause;
    return false;
}

void TcpSocket::watch()
{
    m_writable = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Write);
    connect(m_writable.get(), &QSocketNotifier::activated, this, &TcpSocket::onWritable);
}

void TcpSocket::onWritable()
{
    if (m_state == State::Connected)
        return flush();

    int cause = 0;
    socklen_t length = sizeof cause;
    if (::getsockopt(m_descriptor, SOL_SOCKET, SO_ERROR, &cause, &length) != 0)
        cause = errno;
    if (cause != 0) {
        retire(m_writable);
        ::close(std::exchange(m_descriptor, -1));
        m_lastError = cause;
        return tryNextAddress();
    }
    m_writable->setEnabled(false);
    m_addresses.clear();
    m_state = State::Connected;
    m_readable = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    connect(m_readable.get(), &QSocketNotifier::activated, this, &TcpSocket::onReadable);

    const QPointer<TcpSocket> alive(this);
    const quint32 connection = m_connection;
    m_handling = true;
    Q_EMIT connected();
    if (alive && connection == m_connection) {
        m_handling = false;
        m_readable->setEnabled(true);
    }
}

void TcpSocket::sendData(const QByteArray& data)
{
    if (m_state != State::Connected)
        return;
    m_unsent += data;
    flush();
}

/// A peer that is gone is told after the data that it sent. The system tells of a reset once, and might have
/// told it here.
void TcpSocket::flush()
{
    while (!m_unsent.isEmpty()) {
        const ssize_t sent = ::send(m_descriptor, m_unsent.constData(),
                                    static_cast<std::size_t>(m_unsent.size()), MSG_NOSIGNAL);
        if (sent < 0 && errno == EINTR)
            continue;
        if (sent < 0 && errno == EAGAIN)
            break;
        if (sent >= 0) {
            m_unsent.remove(0, sent);
            continue;
        }
        m_sendError = errno;
        m_unsent.clear();
        if (waitingAt(m_descriptor) == 0)
            failLater(errorNumber(m_sendError));
    }
    m_writable->setEnabled(!m_unsent.isEmpty());
}

void TcpSocket::onReadable()
{
    // A nested loop runs inside a handler: the rest waits until that handler has returned.
    if (m_handling) {
        m_readable->setEnabled(false);
        return;
    }
    if (const qint64 waiting = waitingAt(m_descriptor); waiting > 0)
        return handOver(std::min(waiting, handedLimit));

    char next = 0;
    const ssize_t seen = ::recv(m_descriptor, &next, 1, MSG_PEEK);
    if (seen == 0 && m_sendError != 0) {
        fail(errorNumber(m_sendError));
    } else if (seen == 0) {
        retire(m_readable);
        retire(m_writable);
        m_state = State::Closing;
        Q_EMIT closed();
    } else if (seen < 0 && errno != EAGAIN && errno != EINTR) {
        fail(errorNumber(errno));
    }
}

void TcpSocket::handOver(qint64 bytes)
{
    const QPointer<TcpSocket> alive(this);
    const quint32 connection = m_connection;
    m_waiting = bytes;
    m_handling = true;
    Q_EMIT dataArrival(bytes);
    if (!alive)
        return;
    m_chunk = {};
    if (connection != m_connection)
        return;
    m_waiting = 0;
    if (m_move)
        return startMove();
    m_handling = false;
    if (!m_readable->isEnabled())
        m_readable->setEnabled(true);
}

void TcpSocket::startMove()
{
    m_readable->setEnabled(false);
    m_order.start([socket = m_descriptor, file = m_move->file, offset = m_move->offset, count = m_move->count,
                   except = m_move->except] { return moveChunks(socket, file, offset, count, except); },
                  [this](const MoveResult& result) { onMoved(result.bytes, result.cause); });
}

void TcpSocket::onMoved(qint64 bytes, int cause)
{
    const QPointer<TcpSocket> alive(this);
    const quint32 connection = m_connection;
    const Moved moved = std::move(m_move->moved);
    m_move.reset();
    moved(bytes, cause);
    if (!alive || connection != m_connection)
        return;
    m_handling = false;
    m_readable->setEnabled(true);
}

qsizetype TcpSocket::peekData(std::span<char> buffer)
{
    const auto count = std::min(buffer.size(), static_cast<std::size_t>(m_waiting));
    if (count == 0)
        return 0;
    const ssize_t copied = peekAt(m_descriptor, buffer.first(count));
    if (copied < 0) {
        // What cannot be looked at is not moved either: a head would go to the file as if it were body.
        m_waiting = 0;
        failLater(errorNumber(errno));
    }
    return std::max<qsizetype>(copied, 0);
}

QByteArrayView TcpSocket::getData()
{
    m_chunk.resize(m_waiting);
    qsizetype filled = 0;
    while (filled < m_chunk.size()) {
        const ssize_t taken = ::recv(m_descriptor, m_chunk.data() + filled,
                                     static_cast<std::size_t>(m_chunk.size() - filled), 0);
        if (taken < 0 && errno == EINTR)
            continue;
        if (taken < 0)
            failLater(errorNumber(errno));
        if (taken <= 0)
            break;
        filled += taken;
    }
    m_waiting = 0;
    m_chunk.truncate(filled);
    return m_chunk;
}

/// Begins when the handler has returned, so that the end is never told while it stands.
void TcpSocket::moveData(int fileDescriptor, qint64 offset, const QByteArray& except, Moved moved)
{
    m_move = {fileDescriptor, offset, std::exchange(m_waiting, 0), except, std::move(moved)};
}

void TcpSocket::failLater(int number)
{
    m_addresses.clear();
    m_soonError = number;
    m_soon.start();
}

void TcpSocket::fail(int number)
{
    release();
    m_state = State::Error;
    Q_EMIT error(number, RunTimeError(number).description());
}

TcpSocketMaker::TcpSocketMaker() : m_movers(std::make_shared<Workers>(moverCount)) {}

Socket* TcpSocketMaker::makeSocket(QObject* owner)
{
    return new TcpSocket(m_movers, owner);
}

} // namespace varnhold
