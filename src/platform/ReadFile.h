#pragma once

#include <QByteArray>
#include <QString>

#include <cstdint>

namespace varnhold {

/// The one door to what a path from outside names (skin, cover, notes, list, database, settings). It opens
/// regular files only, links followed, and never waits: a pipe, a socket, a device or a folder in the place
/// of a file is refused at once.
///
/// Errors are RunTimeError: 53 nothing there, 76 no such folder, 75 not allowed or no regular file, 52 a name
/// that cannot be, 7 too large, others as errorFromErrno has them.

/// Reads the whole file. One that is larger than `limit` bytes is refused (error 7, out of memory), also
/// where it grows while it is read.
QByteArray readFile(const QString& path, std::int64_t limit);

/// The same without an exception: no bytes and no reason.
struct FileBytes
{
    QByteArray bytes;
    bool isRead = false;
};
FileBytes tryReadFile(const QString& path, std::int64_t limit);

/// A descriptor for reading (close-on-exec), owned by the caller, for files that are read piece by piece or
/// handed on.
int openRegularFile(const QString& path);

/// True where the path names a regular file, links followed; opens nothing. For paths that another library
/// opens by name.
bool isRegularFile(const QString& path);

} // namespace varnhold
