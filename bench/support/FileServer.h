#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include <sys/types.h>

namespace varnhold::bench {

/// A server in a process of its own, so that its work is not counted in ours. "GET /N/anything" is answered
/// with N bytes "x", sent by the kernel from memory as fast as the peer takes them; then it closes. Any other
/// path gets the document, which may name the port.
class FileServer
{
public:
    explicit FileServer(const std::function<std::string(std::uint16_t port)>& document = {});
    FileServer(const FileServer&) = delete;
    FileServer& operator=(const FileServer&) = delete;
    ~FileServer();

    [[nodiscard]] std::uint16_t port() const { return m_port; }

private:
    pid_t m_process = -1;
    std::uint16_t m_port = 0;
};

} // namespace varnhold::bench
