#include "platform/ReadFile.h"

#include "platform/FileErrors.h"
#include "platform/Files.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace varnhold {

namespace {

class Descriptor
{
public:
    explicit Descriptor(int number) : m_number(number) {}
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;
    ~Descriptor() { ::close(m_number); }

    [[nodiscard]] int number() const { return m_number; }

private:
    int m_number;
};

RunTimeError openError(int code, const QString& path)
{
    if (code == ENOENT && !path.isEmpty() && !FolderExists(QFileInfo(path).path()))
        return RunTimeError(errors::pathNotFound);
    return errorFromErrno(code, errors::fileNotFound);
}

} // namespace

int openRegularFile(const QString& path)
{
    if (path.contains(QChar::Null))
        throw RunTimeError(errors::badFileName);
    const QByteArray name = QFile::encodeName(path);
    // Looked at before it is opened, since opening alone moves a tape or wakes a pipe's writer; and again
    // afterwards, since another thing may have come to the name.
    struct stat status = {};
    if (::stat(name.constData(), &status) != 0)
        throw openError(errno, path);
    if (!S_ISREG(status.st_mode))
        throw RunTimeError(errors::pathFileAccess);
    int file = -1;
    do {
        file = ::open(name.constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK | O_NOCTTY);
    } while (file < 0 && errno == EINTR);
    if (file < 0)
        throw openError(errno, path);
    if (::fstat(file, &status) != 0 || !S_ISREG(status.st_mode)) {
        ::close(file);
        throw RunTimeError(errors::pathFileAccess);
    }
    return file;
}

QByteArray readFile(const QString& path, std::int64_t limit)
{
    const Descriptor file(openRegularFile(path));
    struct stat status = {};
    if (::fstat(file.number(), &status) != 0)
        throw errorFromErrno(errno);
    if (status.st_size > limit)
        throw RunTimeError(errors::outOfMemory);

    // One byte more than the file is said to hold shows its end without another call's growth.
    constexpr qsizetype smallestStep = 4096;
    QByteArray bytes(static_cast<qsizetype>(status.st_size) + 1, Qt::Uninitialized);
    qsizetype filled = 0;
    for (;;) {
        if (filled == bytes.size())
            bytes.resize(bytes.size() + std::max(smallestStep, bytes.size() / 2));
        const ssize_t count =
            ::read(file.number(), bytes.data() + filled, static_cast<std::size_t>(bytes.size() - filled));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            throw errorFromErrno(errno);
        if (count == 0)
            break;
        filled += count;
        if (filled > limit)
            throw RunTimeError(errors::outOfMemory);
    }
    bytes.truncate(filled);
    return bytes;
}

FileBytes tryReadFile(const QString& path, std::int64_t limit)
{
    try {
        return {readFile(path, limit), true};
    } catch (const RunTimeError&) {
        return {};
    }
}

bool isRegularFile(const QString& path)
{
    struct stat status = {};
    return !path.contains(QChar::Null) && ::stat(QFile::encodeName(path).constData(), &status) == 0 &&
           S_ISREG(status.st_mode);
}

} // namespace varnhold
