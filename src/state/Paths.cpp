#include "state/Paths.h"

#include "platform/FileErrors.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <array>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

bool canHoldFiles(const QString& folder)
{
    const QFileInfo info(folder);
    return info.isDir() && info.isWritable();
}

QString usable(const QString& folder)
{
    const QString root = QDir::cleanPath(QDir(folder).absolutePath());
    if (!QDir().mkpath(root))
        throw RunTimeError(errors::pathNotFound, u"The program's folder cannot be made: "_s + root);
    if (!canHoldFiles(root))
        throw RunTimeError(errors::pathFileAccess, u"The program's folder cannot be written to: "_s + root);
    return root;
}

/// Copies the installed share folder to `root`, which then stands complete or not at all.
void fill(const QString& root, const QString& shareFolder)
{
    const auto check = [](bool done, const QString& path) {
        if (!done)
            throw RunTimeError(errors::pathFileAccess, u"The program's folder cannot be filled: "_s + path);
    };
    check(QDir().mkpath(QFileInfo(root).path()), root);
    QTemporaryDir fresh(root + u"-XXXXXX"_s);
    check(fresh.isValid(), root);
    const QDir share(shareFolder);
    QDirIterator walk(shareFolder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    while (walk.hasNext()) {
        const QString source = walk.next();
        const QString target = fresh.filePath(share.relativeFilePath(source));
        check(QDir().mkpath(QFileInfo(target).path()) && QFile::copy(source, target), target);
        // The installed files may be read-only; these are the user's.
        QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
    }
    check(QDir().rename(fresh.path(), root), root);
    fresh.setAutoRemove(false);
}

} // namespace

QString Paths::settingsIni() const
{
    return root + u"/Settings.ini"_s;
}

QString Paths::hostsIni() const
{
    return root + u"/hosts.ini"_s;
}

QString Paths::gameDatabase() const
{
    return root + u"/GameDB.mdb"_s;
}

QString Paths::defaultSkin() const
{
    return root + u"/skin/default"_s;
}

QString Paths::versionFile() const
{
    return root + u"/version.txt"_s;
}

QString Paths::idList() const
{
    return root + u"/ps3gameids.txt"_s;
}

QString Paths::sound(int index) const
{
    static constexpr std::array<QStringView, 4> names = {u"click.wav", u"menu.wav", u"startup.wav",
                                                         u"shutdown.wav"};
    return root + u"/wav/"_s + names.at(index).toString();
}

Paths findPaths(const QString& given, const QString& executableFolder, const QString& shareFolder)
{
    if (!given.isEmpty())
        return {usable(given)};
    const QString named = qEnvironmentVariable("VARNHOLD_ROOT");
    if (!named.isEmpty())
        return {usable(named)};
    const bool installed = QFileInfo(shareFolder).isDir();
    if (!installed && canHoldFiles(executableFolder))
        return {QDir::cleanPath(QDir(executableFolder).absolutePath())};
    const QString own =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/varnhold"_s;
    if (installed && !QFileInfo::exists(own))
        fill(own, shareFolder);
    return {usable(own)};
}

} // namespace varnhold
