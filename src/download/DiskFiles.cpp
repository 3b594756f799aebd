#include "download/DiskFiles.h"

#include "platform/FileErrors.h"
#include "platform/Files.h"
#include "platform/Socket.h"

#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace varnhold {

namespace {

/// A NUL would cut the path short, and another file would be meant.
QByteArray systemPath(const QString& path)
{
    if (path.contains(QChar::Null))
        throw RunTimeError(errors::badFileName);
    return QFile::encodeName(path);
}

class DiskFile : public DownloadFile
{
public:
    DiskFile() = default;
    DiskFile(const DiskFile&) = delete;
    DiskFile& operator=(const DiskFile&) = delete;
    ~DiskFile() override { DiskFile::close(); }

    void open(const QString& path) override
    {
        close();
        m_descriptor = ::open(systemPath(path).constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NONBLOCK, 0666);
        if (m_descriptor < 0)
            throw errorFromErrno(errno);
    }

    [[nodiscard]] bool isOpen() const override { return m_descriptor >= 0; }

    void close() override
    {
        if (isOpen())
            ::close(m_descriptor);
        m_descriptor = -1;
        m_position = 0;
    }

    void write(QByteArrayView bytes) override
    {
        requireOpen();
        while (!bytes.isEmpty()) {
            const ssize_t written =
                ::pwrite(m_descriptor, bytes.data(), static_cast<std::size_t>(bytes.size()), m_position);
            if (written < 0 && errno == EINTR)
                continue;
            if (written < 0)
                throw errorFromErrno(errno);
            m_position += written;
            bytes = bytes.sliced(written);
        }
    }

    void appendFrom(Socket& socket, const QByteArray& except,
                    std::function<void(const Appended&)> done) override
    {
        requireOpen();
        struct stat status = {};
        if (::fstat(m_descriptor, &status) != 0)
            throw errorFromErrno(errno);
        const auto moved = [this, end = status.st_size, done = std::move(done)](qint64 bytes, int cause) {
            m_position = end + bytes;
            if (cause != 0)
                done({bytes, errorFromErrno(cause)});
            else
                done({bytes, std::nullopt});
        };
        socket.moveData(m_descriptor, status.st_size, except, moved);
    }

private:
    void requireOpen() const
    {
        if (!isOpen())
            throw RunTimeError(errors::badFileName);
    }

    int m_descriptor = -1;
    off_t m_position = 0;
};

} // namespace

std::unique_ptr<DownloadFile> DiskFiles::makeFile()
{
    return std::make_unique<DiskFile>();
}

bool DiskFiles::exists(const QString& path)
{
    return FileExists(path);
}

void DiskFiles::remove(const QString& path)
{
    if (::unlink(systemPath(path).constData()) != 0)
        throw errorFromErrno(errno, errors::fileNotFound);
}

void DiskFiles::rename(const QString& from, const QString& to)
{
    const QByteArray source = systemPath(from);
    const QByteArray target = systemPath(to);
    if (::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0)
        return;
    // Some file systems know no such flag; there the look and the rename are two steps.
    if (errno == EINVAL || errno == ENOSYS) {
        if (QFileInfo::exists(to))
            throw RunTimeError(errors::fileExists);
        if (::rename(source.constData(), target.constData()) == 0)
            return;
    }
    throw errorFromErrno(errno, errors::fileNotFound);
}

void DiskFiles::createEmpty(const QString& path)
{
    const int descriptor = // a pipe in its place fails, where it would wait for a reader
        ::open(systemPath(path).constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NONBLOCK, 0666);
    if (descriptor < 0)
        throw errorFromErrno(errno);
    ::close(descriptor);
}

void DiskFiles::makeFolder(const QString& path)
{
    MakeFolder(path);
}

} // namespace varnhold
