#pragma once

#include "platform/database/TableSchema.h"

#include <QByteArray>

#include <memory>
#include <optional>
#include <unordered_map>
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

/// Writes records of one table, each call a write of its own. A value that a unique column holds in any case,
/// beyond ASCII and as another type too, gives RunTimeError 0x80040E21.
class RowWriter
{
public:
    RowWriter(DatabaseFile& file, std::shared_ptr<const TableSchema> table);

    /// The new row's number.
    qint64 insert(const std::vector<PendingValue>& values);
    /// RunTimeError 3021 when the row is gone.
    void update(qint64 number, const std::vector<PendingValue>& values);

private:
    const QByteArray& insertion(const std::vector<PendingValue>& values);
    template <typename Write>
    void writeChecked(const std::vector<PendingValue>& values, std::optional<qint64> ownRow, Write&& write);
    void requireFree(const PendingValue& value, std::optional<qint64> ownRow);
    [[nodiscard]] const ColumnSchema& columnOf(const PendingValue& value) const;
    bool needsLook(const PendingValue& value);
    bool holdsOtherTypes(const ColumnSchema& column);
    [[nodiscard]] QByteArray returning() const;

    DatabaseFile& m_file;
    std::shared_ptr<const TableSchema> m_table;
    std::unordered_map<const ColumnSchema*, bool> m_otherTypes;
    // Most records set the same columns as the one before.
    std::vector<int> m_columns;
    QByteArray m_insertion; ///< the statement for those columns
};

} // namespace varnhold
