#include "platform/database/RowWriter.h"

#include "platform/database/DatabaseErrors.h"
#include "platform/database/DatabaseFile.h"
#include "platform/database/RowSnapshot.h"
#include "platform/database/TextFolding.h"

#include <algorithm>
#include <memory>
#include <optional>

namespace varnhold {

namespace {

const ColumnSchema& columnOf(const TableSchema& table, const PendingValue& value)
{
    return table.columns[static_cast<std::size_t>(value.column)];
}

/// Whether the file's own index cannot tell that the value is taken in another case.
bool needsLook(const TableSchema& table, const PendingValue& value)
{
    const ColumnSchema& column = columnOf(table, value);
    return column.unique && !value.binary && !(column.uniqueIndexFolds && hasAsciiCaseOnly(value.bytes));
}

void requireFree(DatabaseFile& file, const TableSchema& table, const PendingValue& value,
                 std::optional<qint64> ownRowId)
{
    DatabaseStatement statement;
    statement.condition = {columnOf(table, value).name, QString::fromUtf8(value.bytes)};
    const RowSnapshot holders(file, std::make_shared<const TableSchema>(table), statement);
    for (std::size_t i = 0; i < holders.count(); ++i) {
        if (holders.rowId(i) != ownRowId)
            throw databaseError(errors::database::duplicate);
    }
}

/// Looks for taken values where the file's index does not, then writes, all in one transaction; without such
/// values the write stands alone.
template <typename Write>
void writeChecked(DatabaseFile& file, const TableSchema& table, const std::vector<PendingValue>& values,
                  std::optional<qint64> ownRowId, Write&& write)
{
    file.prepareWrite();
    const auto look = [&](const PendingValue& value) { return needsLook(table, value); };
    if (std::none_of(values.begin(), values.end(), look)) {
        write();
        return;
    }
    Transaction transaction(file);
    for (const PendingValue& value : values) {
        if (look(value))
            requireFree(file, table, value, ownRowId);
    }
    write();
    transaction.commit();
}

void bindAll(EngineStatement& statement, const std::vector<PendingValue>& values)
{
    int index = 0;
    for (const PendingValue& value : values) {
        if (value.binary)
            statement.bindBinary(++index, value.bytes);
        else
            statement.bindText(++index, value.bytes);
    }
}

} // namespace

qint64 insertRow(DatabaseFile& file, const TableSchema& table, const std::vector<PendingValue>& values)
{
    QByteArray sql = "INSERT INTO " + table.quoted;
    QByteArray names;
    QByteArray places;
    for (const PendingValue& value : values) {
        names += (names.isEmpty() ? "" : ", ") + columnOf(table, value).quoted;
        places += places.isEmpty() ? "?" : ", ?";
    }
    sql += values.empty() ? QByteArray(" DEFAULT VALUES") : " (" + names + ") VALUES (" + places + ')';
    writeChecked(file, table, values, {}, [&] {
        EngineStatement statement = file.statement(sql);
        bindAll(statement, values);
        statement.step();
    });
    return file.lastInsertRowId();
}

void updateRow(DatabaseFile& file, const TableSchema& table, qint64 rowId,
               const std::vector<PendingValue>& values)
{
    QByteArray sql = "UPDATE " + table.quoted + " SET ";
    for (const PendingValue& value : values)
        sql += columnOf(table, value).quoted + " = ?, ";
    sql.chop(2);
    sql += " WHERE " + table.rowId + " = ?";
    writeChecked(file, table, values, rowId, [&] {
        EngineStatement statement = file.statement(sql);
        bindAll(statement, values);
        statement.bindInteger(static_cast<int>(values.size()) + 1, rowId);
        statement.step();
        if (file.changes() == 0)
            throw databaseError(errors::database::noCurrentRecord);
    });
}

} // namespace varnhold
