#include "platform/Files.h"

#include "platform/FileErrors.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <sys/stat.h>

namespace varnhold {

bool FileExists(const QString& path)
{
    if (path.endsWith(u'/'))
        return !QDir(path).entryList(QDir::Files | QDir::Hidden | QDir::System).isEmpty();
    const QFileInfo info(path);
    return info.exists() && !info.isDir();
}

bool FolderExists(const QString& path)
{
    return QFileInfo(path).isDir();
}

void MakeFolder(const QString& path)
{
    if (FolderExists(path))
        return;
    if (::mkdir(QFile::encodeName(path).constData(), 0777) == 0)
        return;
    const int code = errno;
    if (code == EEXIST)
        throw RunTimeError(errors::pathFileAccess);
    throw errorFromErrno(code);
}

} // namespace varnhold
