#include "support/FileServer.h"

#include <algorithm>
#include <cctype>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>

#include <netinet/in.h>
#include <sys/mman.h>
#include <sys/prctl.h>
#include <sys/sendfile.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace varnhold::bench {

namespace {

constexpr std::size_t blockSize = 16 << 20;

[[noreturn]] void die(const char* what)
{
    std::perror(what);
    std::exit(1);
}

/// Memory that sendfile can read from.
int makeBlock()
{
    const int block = ::memfd_create("block", MFD_CLOEXEC);
    const std::string piece(1 << 20, 'x');
    for (std::size_t filled = 0; filled < blockSize; filled += piece.size()) {
        if (::write(block, piece.data(), piece.size()) != static_cast<ssize_t>(piece.size()))
            die("block");
    }
    return block;
}

bool sendAll(int peer, const std::string& bytes)
{
    return ::write(peer, bytes.data(), bytes.size()) == static_cast<ssize_t>(bytes.size());
}

void serve(int peer, int block, const std::string& document)
{
    std::string request;
    char piece[4096];
    while (request.find("\r\n\r\n") == std::string::npos) {
        const ssize_t count = ::read(peer, piece, sizeof piece);
        if (count <= 0) {
            ::close(peer);
            return;
        }
        request.append(piece, static_cast<std::size_t>(count));
    }
    const char* path = request.c_str() + std::strlen("GET /");
    const bool isFile = std::isdigit(static_cast<unsigned char>(*path)) != 0;
    std::size_t rest = isFile ? std::strtoull(path, nullptr, 10) : document.size();
    const std::string header = "HTTP/1.0 200 OK\r\nContent-Length: " + std::to_string(rest) + "\r\n\r\n";
    if (!sendAll(peer, header) || (!isFile && !sendAll(peer, document)) || !isFile)
        rest = 0;
    while (rest > 0) {
        off_t offset = 0;
        const ssize_t sent = ::sendfile(peer, block, &offset, std::min(rest, blockSize));
        if (sent <= 0)
            break;
        rest -= static_cast<std::size_t>(sent);
    }
    ::close(peer);
}

[[noreturn]] void run(int listener, const std::string& document)
{
    ::prctl(PR_SET_PDEATHSIG, SIGKILL);
    std::signal(SIGPIPE, SIG_IGN);
    const int block = makeBlock();
    for (;;) {
        const int peer = ::accept(listener, nullptr, nullptr);
        if (peer >= 0)
            std::thread(serve, peer, block, document).detach();
    }
}

} // namespace

FileServer::FileServer(const std::function<std::string(std::uint16_t port)>& document)
{
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = {};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto* general = reinterpret_cast<sockaddr*>(&address);
    if (listener < 0 || ::bind(listener, general, length) != 0 || ::listen(listener, 64) != 0 ||
        ::getsockname(listener, general, &length) != 0)
        die("server");
    m_port = ntohs(address.sin_port);
    m_process = ::fork();
    if (m_process == 0)
        run(listener, document ? document(m_port) : std::string());
    ::close(listener);
}

FileServer::~FileServer()
{
    ::kill(m_process, SIGKILL);
    ::waitpid(m_process, nullptr, 0);
}

} // namespace varnhold::bench
