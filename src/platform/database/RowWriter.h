#pragma once

#include "platform/database/TableSchema.h"

#include <QByteArray>

#include <vector>

namespace varnhold {

class DatabaseFile;

/// A value on its way into a column: text as UTF-8, or bytes.
struct PendingValue
{
    int column = 0;
    bool binary = false;
    QByteArray bytes;
};

/// Each call is a write of its own. A value that a unique column holds in any case, beyond ASCII too, gives
/// RunTimeError 0x80040E21.

/// The new row's id.
qint64 insertRow(DatabaseFile& file, const TableSchema& table, const std::vector<PendingValue>& values);
/// RunTimeError 3021 when the row is gone.
void updateRow(DatabaseFile& file, const TableSchema& table, qint64 rowId,
               const std::vector<PendingValue>& values);

} // namespace varnhold
