#pragma once

#include <QString>

namespace varnhold {

class DatabaseWatch;

/// Whether the database at `path` holds a table of that name, in whatever case. Opens and closes a connection
/// of its own and throws as that does.
bool dbTableExists(const QString& path, const QString& name, DatabaseWatch* watch = nullptr);
/// Renames a table of the database at `path`, over a connection of its own.
void dbRenameTable(const QString& path, const QString& from, const QString& to,
                   DatabaseWatch* watch = nullptr);

} // namespace varnhold
