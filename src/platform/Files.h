#pragma once

#include <QString>

namespace varnhold {

/// True for a file, wildcards in its name taken literally; a path that ends in "/" counts when the folder
/// holds a file. A folder, an empty path and any error are false.
bool FileExists(const QString& path);

/// Path of a file in the folder whose name is the given one, its case apart; the name as given where there is
/// none. One that matches exactly goes first.
QString foldedFile(const QString& folder, const QString& name);

/// True for a text that can stand for one name in a folder, and leads nowhere else: not empty, no ".", no
/// "..", no "/" and no NUL in it, at most 255 bytes. What comes from outside (titles, addresses, ids) is
/// asked so before it becomes a part of a path.
bool isOneName(const QString& name);

/// True for a folder, with or without a "/" at its end; any error is false.
bool FolderExists(const QString& path);

/// Makes the folder when there is none; its parent must exist. Throws RunTimeError: 76 no parent, 75 not
/// allowed or a file stands there, 61 disk full, 52 a name that cannot be.
void MakeFolder(const QString& path);

} // namespace varnhold
