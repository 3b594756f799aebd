#include "support/LoopbackPeer.h"

#include <gtest/gtest.h>

#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace varnhold::test {

namespace {

void closeEnd(int& descriptor)
{
    if (descriptor >= 0)
        ::close(std::exchange(descriptor, -1));
}

} // namespace

LoopbackPeer::LoopbackPeer(bool ipv6)
{
    sockaddr_in6 address6 = {};
    address6.sin6_family = AF_INET6;
    address6.sin6_addr = IN6ADDR_LOOPBACK_INIT;
    sockaddr_in address4 = {};
    address4.sin_family = AF_INET;
    address4.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    auto* address = ipv6 ? reinterpret_cast<sockaddr*>(&address6) : reinterpret_cast<sockaddr*>(&address4);
    socklen_t length = ipv6 ? sizeof address6 : sizeof address4;

    m_listener = ::socket(address->sa_family, SOCK_STREAM | SOCK_CLOEXEC, 0);
    EXPECT_EQ(::bind(m_listener, address, length), 0);
    EXPECT_EQ(::listen(m_listener, 8), 0);
    EXPECT_EQ(::getsockname(m_listener, address, &length), 0);
    m_port = ntohs(ipv6 ? address6.sin6_port : address4.sin_port);
}

LoopbackPeer::~LoopbackPeer()
{
    close();
    stopListening();
}

void LoopbackPeer::accept()
{
    close();
    m_peer = ::accept4(m_listener, nullptr, nullptr, SOCK_CLOEXEC);
    EXPECT_GE(m_peer, 0);
}

void LoopbackPeer::send(const QByteArray& bytes)
{
    EXPECT_EQ(::send(m_peer, bytes.constData(), static_cast<std::size_t>(bytes.size()), MSG_NOSIGNAL),
              bytes.size());
}

QByteArray LoopbackPeer::receive(qsizetype count)
{
    QByteArray received;
    char piece[4096];
    while (received.size() < count) {
        const ssize_t taken = ::recv(m_peer, piece, sizeof piece, 0);
        if (taken <= 0)
            break;
        received.append(piece, taken);
    }
    return received;
}

void LoopbackPeer::shutDownSending()
{
    ::shutdown(m_peer, SHUT_WR);
}

void LoopbackPeer::close()
{
    closeEnd(m_peer);
}

void LoopbackPeer::reset()
{
    const linger now = {1, 0};
    ::setsockopt(m_peer, SOL_SOCKET, SO_LINGER, &now, sizeof now);
    close();
}

void LoopbackPeer::stopListening()
{
    closeEnd(m_listener);
}

} // namespace varnhold::test
