#include "platform/ChunkMover.h"

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

namespace varnhold {

namespace {

constexpr int pipeSize = 1 << 20; // what an ordinary user may ask for
constexpr std::size_t bufferSize = 512 * 1024;

bool writeAll(int file, const char* bytes, std::size_t count, qint64 offset)
{
    while (count > 0) {
        const ssize_t written = ::pwrite(file, bytes, count, offset);
        if (written < 0 && errno == EINTR)
            continue;
        if (written < 0)
            return false;
        bytes += written;
        count -= static_cast<std::size_t>(written);
        offset += written;
    }
    return true;
}

} // namespace

ChunkMover::~ChunkMover()
{
    closePipe();
}

qint64 ChunkMover::move(int socket, int file, qint64 offset, qint64 count)
{
    if (!m_kernelRefuses && (m_pipe[0] >= 0 || openPipe()))
        return moveThroughPipe(socket, file, offset, count);
    return moveThroughBuffer(socket, file, offset, count);
}

bool ChunkMover::openPipe()
{
    if (::pipe2(m_pipe, O_CLOEXEC | O_NONBLOCK) != 0) {
        m_pipe[0] = m_pipe[1] = -1;
        return false;
    }
    // A smaller pipe works too.
    (void)::fcntl(m_pipe[1], F_SETPIPE_SZ, pipeSize);
    return true;
}

void ChunkMover::closePipe()
{
    for (int& end : m_pipe) {
        if (end >= 0)
            ::close(end);
        end = -1;
    }
}

/// The pipe goes with the bytes that it holds.
qint64 ChunkMover::failPipe(int cause)
{
    closePipe();
    errno = cause;
    return -1;
}

qint64 ChunkMover::moveThroughPipe(int socket, int file, qint64 offset, qint64 count)
{
    qint64 moved = 0;
    while (moved < count) {
        const ssize_t taken =
            ::splice(socket, nullptr, m_pipe[1], nullptr, static_cast<std::size_t>(count - moved),
                     SPLICE_F_MOVE | SPLICE_F_NONBLOCK);
        if (taken < 0 && errno == EINTR)
            continue;
        if (taken < 0 && (errno == EINVAL || errno == ENOSYS)) {
            m_kernelRefuses = true;
            const qint64 rest = moveThroughBuffer(socket, file, offset + moved, count - moved);
            return rest < 0 ? -1 : moved + rest;
        }
        if (taken <= 0)
            break;

        qint64 waiting = taken;
        while (waiting > 0) {
            off64_t position = offset + moved;
            const ssize_t written = ::splice(m_pipe[0], nullptr, file, &position,
                                             static_cast<std::size_t>(waiting), SPLICE_F_MOVE);
            if (written < 0 && errno == EINTR)
                continue;
            if (written < 0 && (errno == EINVAL || errno == ENOSYS)) {
                // This file system takes no pages from a pipe; what the pipe holds goes by the buffer, and so
                // does everything from now on.
                m_kernelRefuses = true;
                if (moveThroughBuffer(m_pipe[0], file, offset + moved, waiting) < 0)
                    return failPipe(errno);
                moved += waiting;
                const qint64 rest = moveThroughBuffer(socket, file, offset + moved, count - moved);
                return rest < 0 ? -1 : moved + rest;
            }
            if (written <= 0)
                return failPipe(written < 0 ? errno : ENOSPC);
            waiting -= written;
            moved += written;
        }
    }
    return moved;
}

qint64 ChunkMover::moveThroughBuffer(int source, int file, qint64 offset, qint64 count)
{
    m_buffer.resize(bufferSize);
    qint64 moved = 0;
    while (moved < count) {
        const auto wanted = std::min(static_cast<std::size_t>(count - moved), m_buffer.size());
        const ssize_t taken = ::read(source, m_buffer.data(), wanted);
        if (taken < 0 && errno == EINTR)
            continue;
        if (taken <= 0)
            break;
        if (!writeAll(file, m_buffer.data(), static_cast<std::size_t>(taken), offset + moved))
            return -1;
        moved += taken;
    }
    return moved;
}

} // namespace varnhold
