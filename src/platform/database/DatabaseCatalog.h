#pragma once

#include <QString>
#include <QStringList>

namespace varnhold {

class DatabaseConnection;

/// Names of the user's own tables, in the order in which the file lists them.
QStringList tableNames(const DatabaseConnection& connection);
/// Gives a table another name, also one that differs in case only. RunTimeError 0x80040E37 when there is no
/// such table, 0x80040E3F when the name is taken.
void renameTable(const DatabaseConnection& connection, const QString& from, const QString& to);

} // namespace varnhold
