#include "platform/RecycleFile.h"

#include "platform/RunTimeError.h"
#include "platform/Trash.h"

#include <QDir>
#include <QDirIterator>
#include <QFileInfo>

namespace varnhold {

namespace {

/// Path of what is to go; empty when nothing matches.
QString lookUp(const QString& folder, const QString& name)
{
    if (name.isEmpty() || name == u'.' || name == u".." || name.contains(QChar::Null))
        return {};
    const QFileInfo exact(folder + u'/' + name);
    if (exact.isSymLink())
        return {};
    if (exact.exists())
        return exact.filePath();
    QDirIterator walk(folder, QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
    while (walk.hasNext()) {
        walk.next();
        if (!walk.fileInfo().isSymLink() && walk.fileName().compare(name, Qt::CaseInsensitive) == 0)
            return walk.filePath();
    }
    return {};
}

} // namespace

void RecycleFile(Trash& trash, const QString& path)
{
    const qsizetype slash = path.lastIndexOf(u'/');
    const QString found = slash < 0 ? QString() : lookUp(path.first(slash), path.sliced(slash + 1));
    if (found.isEmpty())
        throw RunTimeError(errors::badFileName);
    trash.moveToTrash(found);
}

} // namespace varnhold
