#pragma once

#include <QString>

#include <vector>

namespace varnhold {

/// A folder as a list shows it.
struct FolderEntry
{
    QString path;
    bool isText = true; ///< false: the name's bytes are no UTF-8, so `path` shows it but does not lead to it
};

/// The real folders directly below one, hidden ones too, links not; sorted by name without regard to case.
/// Throws RunTimeError (76 nothing there, 75 not allowed).
std::vector<FolderEntry> subfolders(const QString& folder);

/// Renames or moves a folder, never over something else. Its own name is allowed, and so is one that differs
/// in case only. Throws RunTimeError: 53 the folder is gone, 76 no such parent of the new path or that is not
/// absolute, 58 something is there or the new path is empty, 75 not allowed, 52 a name that cannot be.
void renameFolder(const QString& from, const QString& to);

/// The path with the links of its longest existing part resolved; the rest as it stands, "." and ".." taken
/// out.
QString resolvedPath(const QString& path);

} // namespace varnhold
