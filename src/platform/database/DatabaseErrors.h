#pragma once

#include "platform/RunTimeError.h"

#include <QString>

namespace varnhold {

namespace errors::database {

/// Codes of the database layer, carried by RunTimeError. The values are those of the provider that the
/// program's handlers were written against.
inline constexpr int locked = static_cast<int>(0x80004005);        ///< also: read-only, damaged, disk full
inline constexpr int unknownColumn = static_cast<int>(0x80040E10); ///< a name that is no column
inline constexpr int badSyntax = static_cast<int>(0x80040E14);
inline constexpr int duplicate =
    static_cast<int>(0x80040E21); ///< a value that a unique column holds, at Update
inline constexpr int missingTable = static_cast<int>(0x80040E37);
inline constexpr int tableExists = static_cast<int>(0x80040E3F);
inline constexpr int cannotOpen = static_cast<int>(0x80040E4D); ///< no file, empty file or path, no database
inline constexpr int noCurrentRecord = 3021;
inline constexpr int notAllowed = 3219; ///< the operation does not fit the recordset's state
inline constexpr int objectClosed = 3704;
inline constexpr int objectOpen = 3705;

} // namespace errors::database

/// One of the codes above with its text, which ends in the name of what it is about, if there is one.
RunTimeError databaseError(int number, const QString& name = {});

} // namespace varnhold
