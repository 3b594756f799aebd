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

/// Whether the file's own index cannot tell that the value is taken, in another case or as another type.
bool RowWriter::needsLook(const PendingValue& value)
{
    const ColumnSchema& column = columnOf(value);
    if (!column.unique)
        return false;
    if (value.binary)
        m_otherTypes.insert_or_assign(&column, true);
    return value.binary || !column.uniqueIndexFolds || !hasAsciiCaseOnly(value.bytes) ||
           holdsOtherTypes(column);
}

/// Looked up once: a table of texts stays one unless another program is at work at the same time.
bool RowWriter::holdsOtherTypes(const ColumnSchema& column)
{
    const auto known = m_otherTypes.find(&column);
    if (known != m_otherTypes.end())
        return known->second;
    EngineStatement row = m_file.statement("SELECT EXISTS (SELECT 1 FROM " + m_table->quoted + " WHERE " +
                                           column.quoted + " >= x'') OR EXISTS (SELECT 1 FROM " +
                                           m_table->quoted + " WHERE " + column.quoted + " < '')");
    const bool holds = row.step() && row.integer(0) != 0;
    m_otherTypes.emplace(&column, holds);
    return holds;
}

void RowWriter::requireFree(const PendingValue& value, std::optional<qint64> ownRow)
{
    DatabaseStatement statement;
    statement.condition = {columnOf(value).name, QString::fromUtf8(value.bytes)};
    const RowSnapshot holders(m_file, m_table, statement);
    for (std::size_t i = 0; i < holders.count(); ++i) {
        if (holders.number(i) != ownRow)
            throw databaseError(errors::database::duplicate);
    }
}

/// Looks for taken values where the file's index does not, then writes, all in one transaction; without such
/// values the write stands alone.
template <typename Write>
void RowWriter::writeChecked(const std::vector<PendingValue>& values, std::optional<qint64> ownRow,
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
            requireFree(value, ownRow);
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
    m_insertion += returning();
    return m_insertion;
}

qint64 RowWriter::insert(const std::vector<PendingValue>& values)
{
    const QByteArray& sql = insertion(values);
    const bool byRowId = m_table->rows.areRowIds();
    qint64 number = 0;
    writeChecked(values, {}, [&] {
        EngineStatement statement = m_file.statement(sql);
        bindAll(statement, values);
        if (statement.step()) {
            number = m_table->rows.number(statement);
            statement.step();
        }
    });
    return byRowId ? m_file.lastInsertRowId() : number;
}

void RowWriter::update(qint64 number, const std::vector<PendingValue>& values)
{
    QByteArray sql = "UPDATE " + m_table->quoted + " SET ";
    for (const PendingValue& value : values)
        sql += columnOf(value).quoted + " = ?, ";
    sql.chop(2);
    const int keyPlace = static_cast<int>(values.size()) + 1;
    sql += " WHERE " + m_table->rows.condition(keyPlace) + returning();
    writeChecked(values, number, [&] {
        EngineStatement statement = m_file.statement(sql);
        bindAll(statement, values);
        m_table->rows.bind(statement, keyPlace, number);
        if (statement.step()) {
            m_table->rows.follow(statement, number);
            statement.step();
        }
        if (m_file.changes() == 0)
            throw databaseError(errors::database::noCurrentRecord);
    });
}

/// A row id is known without asking, a key only after the engine has stored it.
QByteArray RowWriter::returning() const
{
    return m_table->rows.areRowIds() ? QByteArray() : " RETURNING " + m_table->rows.list();
}

} // namespace varnhold
