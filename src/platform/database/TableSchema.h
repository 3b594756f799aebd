#pragma once

#include "platform/database/RowKeys.h"

#include <QByteArray>
#include <QString>

#include <vector>

namespace varnhold {

class DatabaseFile;

struct ColumnSchema
{
    QString name;
    QByteArray quoted;             ///< for the engine's own statements
    bool unique = false;           ///< alone, not together with others
    bool uniqueIndexFolds = false; ///< its unique index ignores the case of ASCII letters
    int keyPlace = 0;              ///< from 1 in the primary key
};

/// What the layer needs to know of a table.
struct TableSchema
{
    QString name;
    QByteArray unquotedName;
    QByteArray quoted;
    RowKeys rows;
    std::vector<ColumnSchema> columns;

    /// Index of the column of that name in any case. RunTimeError 0x80040E10 when there is none.
    [[nodiscard]] int column(const QString& columnName) const;
};

/// `name` exactly as the file has it.
TableSchema readTableSchema(DatabaseFile& file, const QString& name);

/// Whether two names of tables or columns are the same but for their case.
bool sameName(const QString& one, const QString& other);

/// A name as it stands in the engine's statements, whatever it holds.
QByteArray quotedName(const QString& name);

} // namespace varnhold
