#pragma once

#include "platform/Socket.h"

#include <QByteArray>
#include <QList>
#include <QStringList>

#include <algorithm>
#include <cstring>
#include <unistd.h>
#include <utility>

namespace varnhold::test {

/// Keeps what it was asked and raises what the test tells it to, nothing by itself. Silent after close(), as
/// a real one.
class FakeSocket : public Socket
{
public:
    using Socket::Socket;

    void arriveConnected()
    {
        m_state = State::Connected;
        Q_EMIT connected();
    }
    void arrive(const QByteArray& chunk)
    {
        if (m_state == State::Closed)
            return;
        m_chunk = chunk;
        Q_EMIT dataArrival(chunk.size());
    }
    void peerCloses()
    {
        if (m_state != State::Closed)
            Q_EMIT closed();
    }
    void fails(int number, const QString& description) { Q_EMIT error(number, description); }

    void close() override { m_state = State::Closed; }
    void connectTo(const QString& host, const QString& port) override
    {
        m_state = State::Connecting;
        connects.append(host + u':' + port);
    }
    [[nodiscard]] State state() const override { return m_state; }
    void sendData(const QByteArray& data) override { sent.append(data); }
    qsizetype peekData(std::span<char> buffer) override
    {
        const auto count = std::min(buffer.size(), static_cast<std::size_t>(m_chunk.size()));
        std::memcpy(buffer.data(), m_chunk.constData(), count);
        return static_cast<qsizetype>(count);
    }
    QByteArrayView getData() override
    {
        m_taken = std::exchange(m_chunk, {});
        return m_taken;
    }
    void moveData(int file, qint64 offset, const QByteArray& /*except*/, Moved moved) override
    {
        const QByteArrayView chunk = getData();
        moved(::pwrite(file, chunk.data(), static_cast<std::size_t>(chunk.size()), offset), 0);
    }

    QStringList connects; ///< "host:port" each
    QList<QByteArray> sent;

private:
    State m_state = State::Closed;
    QByteArray m_chunk;
    QByteArray m_taken;
};

class FakeSocketMaker : public SocketMaker
{
public:
    Socket* makeSocket(QObject* owner) override { return last = new FakeSocket(owner); }

    FakeSocket* last = nullptr;
};

} // namespace varnhold::test
