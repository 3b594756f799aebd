#pragma once

#include <QtGlobal>

#include <vector>

namespace varnhold {

/// Moves bytes from a TCP socket into a file without bringing them into the program: through a pipe of the
/// kernel. Where a file system refuses that, through one buffer that all moves share. Not for use by two
/// threads.
class ChunkMover
{
public:
    ChunkMover() = default;
    ChunkMover(const ChunkMover&) = delete;
    ChunkMover& operator=(const ChunkMover&) = delete;
    ~ChunkMover();

    /// Moves `count` bytes that wait at the non-blocking socket to the file at the byte offset. The bytes
    /// moved, which is less when fewer wait; -1 with errno set when a write fails, and then bytes are lost.
    qint64 move(int socket, int file, qint64 offset, qint64 count);

private:
    bool openPipe();
    void closePipe();
    qint64 failPipe(int cause);
    qint64 moveThroughPipe(int socket, int file, qint64 offset, qint64 count);
    qint64 moveThroughBuffer(int source, int file, qint64 offset, qint64 count);

    int m_pipe[2] = {-1, -1};
    bool m_kernelRefuses = false;
    std::vector<char> m_buffer;
};

} // namespace varnhold
