#pragma once

#include <QString>
#include <QStringList>

namespace varnhold {

/// Which texts leave the names of folders.
struct NameCleaning
{
    QStringList unwanted;      ///< in order; blanks count, an empty one does nothing
    bool doubleBlanks = false; ///< two blanks become one first, in one pass: three become two

    /// `list` is separated by commas, as the settings hold it.
    static NameCleaning from(const QString& list, bool doubleBlanks);
};

/// The path without the unwanted texts. They go from the whole of it, so one that stands in the name of a
/// folder above changes where the folder lands; meant.
QString cleanedPath(QString path, const NameCleaning& cleaning);

/// True for what must not be tidied: a first letter "C", exactly that; and, links resolved, the file system's
/// root, the folders that hold people's homes and drives, and the system's own with all below them.
bool isGuarded(const QString& path);

} // namespace varnhold
