#include "platform/database/RowWriter.h"

#include "platform/database/DatabaseErrors.h"
#include "platform/database/DatabaseFile.h"
#include "platform/database/RowSnapshot.h"
#include "platform/database/TextFolding.h"

#include <algorithm>
#include <utility>

namespace varnhold {

namespace {

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

RowWriter::RowWriter(DatabaseFile& file, std::shared_ptr<const TableSchema> table)
    : m_file(file), m_table(std::move(table))
{
}

const ColumnSchema& RowWriter::columnOf(const PendingValue& value) const
{
    return m_table->columns[static_cast<std::size_t>(value.column)];
}

/// Whether the file's own index cannot tell that the value is taken in another case.
bool RowWriter::needsLook(const PendingValue& value) const
{
    const ColumnSchema& column = columnOf(value);
    return column.unique && !value.binary && !(column.uniqueIndexFolds && hasAsciiCaseOnly(value.bytes));
}

void RowWriter::requireFree(const PendingValue& value, std::optional<qint64> ownRowId)
{
    DatabaseStatement statement;
    statement.condition = {columnOf(value).name, QString::fromUtf8(value.bytes)};
    const RowSnapshot holders(m_file, m_table, statement);
    for (std::size_t i = 0; i < holders.count(); ++i) {
        if (holders.rowId(i) != ownRowId)
            throw databaseError(errors::database::duplicate);
    }
}

/// Looks for taken values where the file's index does not, then writes, all in one transaction; without such
/// values the write stands alone.
template <typename Write>
void RowWriter::writeChecked(const std::vector<PendingValue>& values, std::optional<qint64> ownRowId,
                             Write&& write)
{
    m_file.prepareWrite();
    const auto look = [this](const PendingValue& value) { return needsLook(value); };
    if (std::none_of(values.begin(), values.end(), look)) {
        write();
        return;
    }
    Transaction transaction(m_file);
    for (const PendingValue& value : values) {
        if (look(value))
            requireFree(value, ownRowId);
    }
    write();
    transaction.commit();
}

const QByteArray& RowWriter::insertion(const std::vector<PendingValue>& values)
{
    const auto same = [](int column, const PendingValue& value) { return column == value.column; };
    if (!m_insertion.isEmpty() &&
        std::equal(m_columns.begin(), m_columns.end(), values.begin(), values.end(), same))
        return m_insertion;
    m_columns.clear();
    QByteArray names;
    QByteArray places;
    for (const PendingValue& value : values) {
        m_columns.push_back(value.column);
        names += (names.isEmpty() ? "" : ", ") + columnOf(value).quoted;
        places += places.isEmpty() ? "?" : ", ?";
    }
    m_insertion = "INSERT INTO " + m_table->quoted;
    m_insertion +=
        values.empty() ? QByteArray(" DEFAULT VALUES") : " (" + names + ") VALUES (" + places + ')';
    return m_insertion;
}

qint64 RowWriter::insert(const std::vector<PendingValue>& values)
{
    const QByteArray& sql = insertion(values);
    writeChecked(values, {}, [&] {
        EngineStatement statement = m_file.statement(sql);
        bindAll(statement, values);
        statement.step();
    });
    return m_file.lastInsertRowId();
}

void RowWriter::update(qint64 rowId, const std::vector<PendingValue>& values)
{
    QByteArray sql = "UPDATE " + m_table->quoted + " SET ";
    for (const PendingValue& value : values)
        sql += columnOf(value).quoted + " = ?, ";
    sql.chop(2);
    sql += " WHERE " + m_table->rowId + " = ?";
    writeChecked(values, rowId, [&] {
        EngineStatement statement = m_file.statement(sql);
        bindAll(statement, values);
        statement.bindInteger(static_cast<int>(values.size()) + 1, rowId);
        statement.step();
        if (m_file.changes() == 0)
            throw databaseError(errors::database::noCurrentRecord);
    });
}

} // namespace varnhold
