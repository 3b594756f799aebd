#include "covers/ThroughFile.h"

#include "platform/FileErrors.h"
#include "platform/ReadFile.h"

#include <QFile>
#include <QScopeGuard>

#include <cerrno>

#include <fcntl.h>
#include <unistd.h>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 largestFile = qint64{256} << 20;

void writeNew(const char* name, QByteArrayView bytes)
{
    constexpr unsigned mode = 0600;
    const int file = ::open(name, O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
    if (file < 0)
        throw errorFromErrno(errno);
    int failure = 0;
    while (!bytes.isEmpty() && failure == 0) {
        const ssize_t written = ::write(file, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (written >= 0)
            bytes = bytes.sliced(written);
        else if (errno != EINTR)
            failure = errno;
    }
    if (::close(file) != 0 && failure == 0)
        failure = errno;
    if (failure != 0)
        throw errorFromErrno(failure);
}

} // namespace

QByteArray throughFile(const QString& root, QByteArrayView bytes)
{
    const QString path = root + u"/temp.bmp"_s;
    const QByteArray name = QFile::encodeName(path);
    ::unlink(name.constData()); // a link or a pipe of this name is nothing to write through
    const auto gone = qScopeGuard([&name] { ::unlink(name.constData()); });
    writeNew(name.constData(), bytes);
    return readFile(path, largestFile);
}

} // namespace varnhold
