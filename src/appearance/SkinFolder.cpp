#include "appearance/SkinFolder.h"

#include "platform/FileErrors.h"
#include "platform/Files.h"
#include "platform/ReadFile.h"

#include <QDirIterator>
#include <QFile>

#include <cerrno>
#include <unistd.h>
#include <utility>

namespace varnhold {

namespace {

constexpr qint64 largestFile = qint64(256) << 20;

} // namespace

SkinFolder::SkinFolder(QString path) : m_path(std::move(path)) {}

const SkinFolder::Names& SkinFolder::namesOf(const QString& subFolder) const
{
    const auto known = m_listed.constFind(subFolder);
    if (known != m_listed.constEnd())
        return *known;
    const QString folder = subFolder.isEmpty() ? m_path : m_path + u'/' + subFolder;
    if (!FolderExists(folder))
        throw RunTimeError(errors::pathNotFound);
    if (::access(QFile::encodeName(folder).constData(), R_OK | X_OK) != 0)
        throw errorFromErrno(errno);
    Names names;
    QDirIterator walk(folder, QDir::Files | QDir::Dirs | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (walk.hasNext()) {
        walk.next();
        const QString name = walk.fileName();
        // Of two names that differ in case alone the same one is taken on every machine.
        QString& held = names[name.toCaseFolded()];
        if (held.isEmpty() || name < held)
            held = name;
    }
    return *m_listed.insert(subFolder, names);
}

QString SkinFolder::find(const QString& name) const
{
    const qsizetype slash = name.lastIndexOf(u'/');
    QString subFolder;
    if (slash >= 0) {
        const QString wanted = name.first(slash).toCaseFolded();
        subFolder = namesOf({}).value(wanted);
        if (subFolder.isEmpty())
            throw RunTimeError(errors::pathNotFound);
    }
    const QString found = namesOf(subFolder).value(name.mid(slash + 1).toCaseFolded());
    if (found.isEmpty())
        throw RunTimeError(errors::fileNotFound);
    return m_path + u'/' + (subFolder.isEmpty() ? found : subFolder + u'/' + found);
}

bool SkinFolder::has(const QString& name) const
{
    try {
        return FileExists(find(name));
    } catch (const RunTimeError&) {
        return false;
    }
}

QByteArray SkinFolder::read(const QString& name) const
{
    const QString path = find(name);
    try {
        return readFile(path);
    } catch (const RunTimeError& error) {
        // The whole folder may have gone since it was listed.
        if (error.number() == errors::fileNotFound && !FolderExists(m_path))
            throw RunTimeError(errors::pathNotFound);
        throw;
    }
}

QByteArray SkinFolder::readFile(const QString& path)
{
    return varnhold::readFile(path, largestFile);
}

} // namespace varnhold
