#include "platform/Folders.h"

#include "platform/FileErrors.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <sys/stat.h>

namespace varnhold {

namespace {

struct Listed
{
    QString folded;
    FolderEntry entry;
};

bool isFolder(const dirent& entry, int folder)
{
    if (entry.d_type != DT_UNKNOWN)
        return entry.d_type == DT_DIR;
    struct stat status = {};
    return ::fstatat(folder, entry.d_name, &status, AT_SYMLINK_NOFOLLOW) == 0 && S_ISDIR(status.st_mode);
}

bool isSameThing(const QByteArray& left, const QByteArray& right)
{
    struct stat first = {};
    struct stat second = {};
    return ::lstat(left.constData(), &first) == 0 && ::lstat(right.constData(), &second) == 0 &&
           first.st_dev == second.st_dev && first.st_ino == second.st_ino;
}

/// What the system says of a failed rename, where a missing source and a missing parent are the same to it.
RunTimeError renameError(int code, const QByteArray& source)
{
    struct stat status = {};
    const bool sourceIsThere = ::lstat(source.constData(), &status) == 0;
    return errorFromErrno(code, sourceIsThere ? errors::pathNotFound : errors::fileNotFound);
}

} // namespace

std::vector<FolderEntry> subfolders(const QString& folder)
{
    const auto close = [](DIR* open) { ::closedir(open); };
    const std::unique_ptr<DIR, decltype(close)> open(::opendir(QFile::encodeName(folder).constData()), close);
    if (!open)
        throw errorFromErrno(errno);
    std::vector<Listed> found;
    const QString prefix = folder.endsWith(u'/') ? folder : folder + u'/';
    while (const dirent* entry = ::readdir(open.get())) {
        const QByteArrayView name(entry->d_name);
        if (name == "." || name == ".." || !isFolder(*entry, ::dirfd(open.get())))
            continue;
        const QString text = QFile::decodeName(name.toByteArray());
        found.push_back({text.toCaseFolded(), {prefix + text, QFile::encodeName(text) == name}});
    }
    std::ranges::sort(found, [](const Listed& left, const Listed& right) {
        const int order = left.folded.compare(right.folded);
        return order != 0 ? order < 0 : left.entry.path < right.entry.path;
    });
    std::vector<FolderEntry> result;
    result.reserve(found.size());
    for (Listed& listed : found)
        result.push_back(std::move(listed.entry));
    return result;
}

void renameFolder(const QString& from, const QString& to)
{
    if (to.isEmpty())
        throw RunTimeError(errors::fileExists);
    if (from.contains(QChar::Null) || to.contains(QChar::Null))
        throw RunTimeError(errors::badFileName);
    if (!to.startsWith(u'/') || !from.startsWith(u'/'))
        throw RunTimeError(errors::pathNotFound);
    const QByteArray source = QFile::encodeName(from);
    const QByteArray target = QFile::encodeName(to);
    if (::renameat2(AT_FDCWD, source.constData(), AT_FDCWD, target.constData(), RENAME_NOREPLACE) == 0)
        return;
    const int code = errno;
    // The flag refuses a folder's own name too; and some file systems know no such flag.
    if (code == EEXIST && isSameThing(source, target)) {
        if (::rename(source.constData(), target.constData()) == 0)
            return;
        throw renameError(errno, source);
    }
    if (code == EINVAL || code == ENOSYS) {
        struct stat status = {};
        if (!isSameThing(source, target) && ::lstat(target.constData(), &status) == 0)
            throw RunTimeError(errors::fileExists);
        if (::rename(source.constData(), target.constData()) == 0)
            return;
        throw renameError(errno, source);
    }
    throw renameError(code, source);
}

QString resolvedPath(const QString& path)
{
    const QString clean = QDir::cleanPath(path);
    for (QString part = clean;;) {
        const QString real = QFileInfo(part).canonicalFilePath();
        if (!real.isEmpty())
            return QDir::cleanPath(real + clean.sliced(part.size()));
        const qsizetype slash = part.lastIndexOf(u'/');
        if (slash < 0)
            return clean;
        part.truncate(slash);
        if (part.isEmpty())
            return clean;
    }
}

} // namespace varnhold
