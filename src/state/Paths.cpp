#include "state/Paths.h"

#include "platform/FileErrors.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

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

/// Files that are there already stay: they may be the user's.
void fill(const QString& root, const QString& shareFolder)
{
    QDirIterator walk(shareFolder, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories);
    const QDir share(shareFolder);
    while (walk.hasNext()) {
        const QString source = walk.next();
        const QString target = root + u'/' + share.relativeFilePath(source);
        QDir().mkpath(QFileInfo(target).path());
        if (QFile::exists(target))
            continue;
        if (!QFile::copy(source, target))
            throw RunTimeError(errors::pathFileAccess, u"The program's folder cannot be filled: "_s + target);
        // The installed files are read-only for users; these are theirs.
        QFile::setPermissions(target, QFile::permissions(target) | QFile::WriteOwner);
    }
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
    if (canHoldFiles(executableFolder))
        return {QDir::cleanPath(QDir(executableFolder).absolutePath())};
    const QString own =
        QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/varnhold"_s;
    const bool firstUse = !QFileInfo::exists(own);
    const QString root = usable(own);
    if (firstUse && QFileInfo(shareFolder).isDir())
        fill(root, shareFolder);
    return {root};
}

} // namespace varnhold
