#include "platform/ReplaceFile.h"

#include "platform/FileErrors.h"

#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <algorithm>
#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace varnhold {

namespace {

constexpr QStringView prefix = u".varnhold-";
constexpr qsizetype digitCount = 16;

bool isOurs(QStringView name)
{
    return name.startsWith(prefix) && name.size() == prefix.size() + digitCount &&
           std::ranges::all_of(name.sliced(prefix.size()), [](QChar c) { return c >= u'0' && c <= u'9'; });
}

QString freshName()
{
    constexpr quint64 names = 10'000'000'000'000'000; // of sixteen digits
    const quint64 number = QRandomGenerator::system()->generate64() % names;
    return prefix.toString() + QString::number(number).rightJustified(digitCount, u'0');
}

/// Where the links of a path lead to in the end; what is there need not exist.
QString linkEnd(const QString& path)
{
    constexpr int mostLinks = 40;
    QFileInfo info(path);
    for (int i = 0; i < mostLinks && info.isSymLink(); ++i)
        info.setFile(info.symLinkTarget());
    return info.filePath();
}

bool isSame(const struct stat& left, const struct stat& right)
{
    return left.st_dev == right.st_dev && left.st_ino == right.st_ino;
}

/// Gives the file beside the target the owner and the mode of the old one, the owner as far as allowed.
void takeRights(int file, const struct stat& old)
{
    if (::fchown(file, old.st_uid, old.st_gid) != 0 &&
        ::fchown(file, static_cast<uid_t>(-1), old.st_gid) != 0)
        errno = 0; // neither is ours to give: it stays as new files are here
    constexpr mode_t rights = 07777;
    if (::fchmod(file, old.st_mode & rights) != 0)
        throw errorFromErrno(errno);
}

/// Some file systems cannot flush a folder, and one may be written to that may not be read: no failure.
void flushFolder(const QString& folder)
{
    const int descriptor = ::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    const int code = ::fsync(descriptor) == 0 ? 0 : errno;
    ::close(descriptor);
    if (code != 0 && code != EINVAL && code != ENOTSUP)
        throw errorFromErrno(code);
}

} // namespace

FileReplacement::FileReplacement(const QString& target, Links links)
    : m_target(links == Links::Follow ? linkEnd(target) : target)
{
    if (m_target.contains(QChar::Null) || m_target.isEmpty() || m_target.endsWith(u'/'))
        throw RunTimeError(errors::badFileName);
    const QByteArray name = QFile::encodeName(m_target);
    const QString folder = QFileInfo(m_target).path();
    struct stat old = {};
    if (::lstat(name.constData(), &old) != 0) {
        if (errno != ENOENT)
            throw errorFromErrno(errno);
        constexpr mode_t usual = 0666;
        makeTemporary(folder, usual);
        return;
    }
    m_replaces = true;
    const bool isReplacedLink = S_ISLNK(old.st_mode) && links == Links::Replace;
    if (!isReplacedLink && !S_ISREG(old.st_mode))
        throw RunTimeError(errors::pathFileAccess);
    // The mode is asked as well, since access rights alone would let root overrule the file's owner.
    if (!isReplacedLink && ((old.st_mode & S_IWUSR) == 0 || ::access(name.constData(), W_OK) != 0))
        throw RunTimeError(errors::pathFileAccess);
    constexpr mode_t usual = 0666;
    constexpr mode_t ownersOnly = 0600;
    makeTemporary(folder, isReplacedLink ? usual : ownersOnly);
    if (isReplacedLink)
        return;
    try {
        takeRights(m_file, old);
    } catch (const RunTimeError&) {
        discard();
        throw;
    }
}

FileReplacement::~FileReplacement()
{
    discard();
}

/// The lock tells a start of the program elsewhere that this file is being worked on. It goes with the
/// process, however that ends.
void FileReplacement::makeTemporary(const QString& folder, unsigned mode)
{
    constexpr int attempts = 100;
    for (int i = 0; i < attempts; ++i) {
        const QString path = folder + u'/' + freshName();
        const QByteArray name = QFile::encodeName(path);
        const int file = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode);
        if (file < 0) {
            if (errno == EEXIST || errno == EINTR)
                continue;
            throw errorFromErrno(errno);
        }
        // Another process's clearing may have come between: it holds the lock, or the name is gone already.
        struct stat made = {};
        const bool isLocked = ::flock(file, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
        if (isLocked && ::fstat(file, &made) == 0 && made.st_nlink > 0) {
            m_file = file;
            m_temporary = path;
            return;
        }
        ::close(file);
    }
    throw RunTimeError(errors::pathFileAccess);
}

void FileReplacement::discard()
{
    if (m_file < 0)
        return;
    if (!m_temporary.isEmpty())
        ::unlink(QFile::encodeName(m_temporary).constData());
    ::close(m_file);
    m_file = -1;
}

void FileReplacement::write(QByteArrayView bytes)
{
    if (m_failed)
        throw RunTimeError(errors::pathFileAccess);
    while (!bytes.isEmpty()) {
        const ssize_t count = ::write(m_file, bytes.data(), static_cast<std::size_t>(bytes.size()));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0) {
            m_failed = true;
            throw count == 0 ? RunTimeError(errors::diskFull) : errorFromErrno(errno);
        }
        m_size += count;
        bytes = bytes.sliced(count);
    }
}

void FileReplacement::commit(Flush flush)
{
    const bool flushes = flush == Flush::Yes || m_replaces;
    if (m_failed || m_temporary.isEmpty())
        throw RunTimeError(errors::pathFileAccess);
    m_failed = true;
    if (flushes && ::fsync(m_file) != 0)
        throw errorFromErrno(errno);
    if (::rename(QFile::encodeName(m_temporary).constData(), QFile::encodeName(m_target).constData()) != 0)
        throw errorFromErrno(errno);
    m_temporary.clear(); // it bears the target's name now
    if (flushes)
        flushFolder(QFileInfo(m_target).path());
}

void replaceFile(const QString& target, QByteArrayView bytes, FileReplacement::Links links)
{
    FileReplacement replacement(target, links);
    replacement.write(bytes);
    replacement.commit();
}

void clearLeftovers(const QString& folder)
{
    QStringList found; // listed first: a folder that changes while it is walked may show an entry twice
    QDirIterator walk(folder, QDir::Files | QDir::Hidden | QDir::NoSymLinks);
    while (walk.hasNext()) {
        walk.next();
        if (isOurs(walk.fileName()))
            found.append(walk.filePath());
    }
    for (const QString& path : found) {
        const QByteArray name = QFile::encodeName(path);
        const int file = ::open(name.constData(), O_WRONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC);
        if (file < 0)
            continue;
        struct stat opened = {};
        struct stat named = {};
        const bool isLeft = ::flock(file, LOCK_EX | LOCK_NB) == 0 && ::fstat(file, &opened) == 0 &&
                            S_ISREG(opened.st_mode) && ::lstat(name.constData(), &named) == 0 &&
                            isSame(opened, named);
        if (isLeft)
            ::unlink(name.constData());
        ::close(file);
    }
}

} // namespace varnhold
