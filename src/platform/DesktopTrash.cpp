#include "platform/DesktopTrash.h"

#include "platform/FileErrors.h"
#include "platform/ReadFile.h"
#include "platform/ReplaceFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

std::optional<struct stat> statusOf(const QString& path)
{
    struct stat status = {};
    if (path.contains(QChar::Null) || ::lstat(QFile::encodeName(path).constData(), &status) != 0)
        return std::nullopt;
    return status;
}

bool takesFiles(const QString& trash)
{
    for (const QString& part : {trash + u"/files"_s, trash + u"/info"_s}) {
        if (!QDir().mkpath(part) || ::access(QFile::encodeName(part).constData(), W_OK | X_OK) != 0)
            return false;
    }
    return true;
}

/// The highest folder above the path on the same file system.
QString topOf(const QString& path, dev_t device)
{
    QString top = QFileInfo(path).absolutePath();
    while (top != u"/"_s) {
        const QString above = QFileInfo(top).path();
        const auto status = statusOf(above);
        if (!status || status->st_dev != device)
            break;
        top = above;
    }
    return top;
}

/// The toolkit takes a folder that it could not make for one that it has, and then moves into the working
/// directory. So it is asked only where the trash that it is going to choose is there and can be written to.
bool hasTrash(const QString& path, dev_t device)
{
    const QString data = QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
    if (!QDir::isAbsolutePath(data))
        return false;
    const auto home = statusOf(QDir::homePath());
    const QString homeTrash = data + u"/Trash"_s;
    // Which of the two it chooses is told by the home's file system, wherever the data folder lies.
    if (home && home->st_dev == device)
        return takesFiles(homeTrash);
    const QString top = topOf(path, device);
    const QString user = QString::number(::getuid());
    const auto shared = statusOf(top + u"/.Trash"_s);
    if (shared && S_ISDIR(shared->st_mode) && (shared->st_mode & S_ISVTX) != 0)
        return takesFiles(top + u"/.Trash/"_s + user);
    const QString own = top + u"/.Trash-"_s + user;
    constexpr mode_t ownersOnly = 0700;
    ::mkdir(QFile::encodeName(own).constData(), ownersOnly);
    const auto made = statusOf(own);
    return made && S_ISDIR(made->st_mode) && takesFiles(own);
}

bool liesInTrash(const QString& place)
{
    const QString absolute = QFileInfo(place).absoluteFilePath();
    return QDir::isAbsolutePath(place) && statusOf(place) &&
           !absolute.startsWith(QDir::currentPath() + u"/files/"_s);
}

/// The toolkit writes the old path as it is, where the convention asks for percent signs: a name with "%" or
/// a line end would come back as another one.
void rewriteInfo(const QString& place, const QString& path)
{
    const QFileInfo moved(place);
    const QString trash = QFileInfo(moved.path()).path();
    const QString info = trash + u"/info/"_s + moved.fileName() + u".trashinfo"_s;
    const QString top = QFileInfo(trash).path() + u'/';
    QByteArray text = readFile(info, 1 << 20);
    const qsizetype date = text.lastIndexOf("DeletionDate=");
    const qsizetype old = text.indexOf("Path=");
    if (old < 0 || date < old)
        return;
    // Absolute in the user's own trash, from the top of the file system in the others.
    const bool isAbsolute = text.mid(old).startsWith("Path=/");
    const QString from = isAbsolute || !path.startsWith(top) ? path : path.sliced(top.size());
    replaceFile(info, "[Trash Info]\nPath=" + QFile::encodeName(from).toPercentEncoding("/") + '\n' +
                          text.sliced(date));
}

} // namespace

void DesktopTrash::moveToTrash(const QString& path)
{
    const QString absolute = QFileInfo(path).absoluteFilePath();
    const auto status = statusOf(absolute);
    if (!status)
        throw errorFromErrno(errno == 0 ? ENOENT : errno, errors::fileNotFound);
    if (!hasTrash(absolute, status->st_dev))
        throw RunTimeError(errors::pathFileAccess);
    QString place;
    const bool moved = QFile::moveToTrash(absolute, &place);
    if (moved && liesInTrash(place)) {
        try {
            rewriteInfo(place, absolute);
        } catch (const RunTimeError&) {
            return; // it lies in the trash all the same, as the toolkit left it
        }
        return;
    }
    // Back to where it was, if it went anywhere else.
    if (!statusOf(absolute) && statusOf(place))
        ::renameat2(AT_FDCWD, QFile::encodeName(place).constData(), AT_FDCWD,
                    QFile::encodeName(absolute).constData(), RENAME_NOREPLACE);
    throw RunTimeError(errors::pathFileAccess);
}

} // namespace varnhold
