#include "platform/Files.h"

#include "platform/FileErrors.h"

#include <QDirIterator>
#include <QFile>

#include <algorithm>
#include <cerrno>
#include <dirent.h>
#include <memory>
#include <optional>
#include <sys/stat.h>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// The mode of what the path names, links followed; no value on any error.
std::optional<mode_t> modeOf(const QString& path)
{
    struct stat status = {};
    if (path.contains(QChar::Null) || ::stat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return status.st_mode;
}

} // namespace

bool FileExists(const QString& path)
{
    const std::optional<mode_t> mode = modeOf(path);
    if (!mode)
        return false;
    if (S_ISDIR(*mode))
        return path.endsWith(u'/') && QDirIterator(path, QDir::Files | QDir::Hidden | QDir::System).hasNext();
    return true;
}

QString foldedFile(const QString& folder, const QString& name)
{
    const QString exact = folder + u'/' + name;
    if (FileExists(exact))
        return exact;
    // Walked by hand, since a folder of covers is walked for each game that has none.
    const std::unique_ptr<DIR, int (*)(DIR*)> walk(::opendir(QFile::encodeName(folder).constData()),
                                                   ::closedir);
    const QByteArray wanted = name.toUtf8();
    const bool isPlain = std::ranges::all_of(name, [](QChar c) { return c < QChar(0x80); });
    QString best; // of several the same one is taken on every machine
    for (const dirent* entry = nullptr; walk && (entry = ::readdir(walk.get())) != nullptr;) {
        const char* const found = static_cast<const char*>(entry->d_name);
        if (isPlain ? qstricmp(found, wanted.constData()) != 0
                    : QFile::decodeName(found).compare(name, Qt::CaseInsensitive) != 0)
            continue;
        const QString path = folder + u'/' + QFile::decodeName(found);
        if (FileExists(path) && (best.isEmpty() || path < best))
            best = path;
    }
    return best.isEmpty() ? exact : best;
}

bool isOneName(const QString& name)
{
    constexpr qsizetype longestName = 255; // bytes, on all usual file systems
    return !name.isEmpty() && name != u"."_s && name != u".."_s && !name.contains(u'/') &&
           !name.contains(QChar::Null) && QFile::encodeName(name).size() <= longestName;
}

bool FolderExists(const QString& path)
{
    const std::optional<mode_t> mode = modeOf(path);
    return mode && S_ISDIR(*mode);
}

void MakeFolder(const QString& path)
{
    if (FolderExists(path))
        return;
    if (path.contains(QChar::Null))
        throw RunTimeError(errors::badFileName);
    if (::mkdir(QFile::encodeName(path).constData(), 0777) == 0)
        return;
    const int code = errno;
    if (code == EEXIST)
        throw RunTimeError(errors::pathFileAccess);
    throw errorFromErrno(code);
}

} // namespace varnhold
