#include "platform/database/TableSchema.h"

#include "platform/database/DatabaseErrors.h"
#include "platform/database/DatabaseFile.h"

#include <algorithm>
#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

QString textOf(const EngineStatement& row, int column)
{
    return QString::fromUtf8(row.text(column));
}

std::vector<ColumnSchema> readColumns(DatabaseFile& file, const QByteArray& table)
{
    std::vector<ColumnSchema> columns;
    EngineStatement row = file.statement("SELECT name, pk FROM pragma_table_xinfo(?1)");
    row.bindText(1, table);
    while (row.step()) {
        ColumnSchema& column = columns.emplace_back();
        column.name = textOf(row, 0);
        column.quoted = quotedName(column.name);
        column.keyPlace = static_cast<int>(row.integer(1));
    }
    return columns;
}

void markUniqueColumns(DatabaseFile& file, const QByteArray& table, std::vector<ColumnSchema>& columns)
{
    // Partial indexes and those over several columns or expressions are the engine's affair alone.
    EngineStatement row =
        file.statement("SELECT x.name, upper(x.coll) = 'NOCASE' FROM pragma_index_list(?1) AS i, "
                       "pragma_index_xinfo(i.name) AS x "
                       "WHERE i.\"unique\" AND NOT i.partial AND x.key GROUP BY i.name HAVING count(*) = 1");
    row.bindText(1, table);
    while (row.step()) {
        const auto column = std::find_if(columns.begin(), columns.end(), [&](const ColumnSchema& candidate) {
            return candidate.name == textOf(row, 0);
        });
        if (column == columns.end())
            continue;
        column->unique = true;
        column->uniqueIndexFolds |= row.integer(1) != 0;
    }
}

QByteArray rowIdName(const std::vector<ColumnSchema>& columns)
{
    for (const auto& name : {u"rowid"_s, u"_rowid_"_s, u"oid"_s}) {
        const bool taken = std::any_of(columns.begin(), columns.end(), [&](const ColumnSchema& column) {
            return column.name.compare(name, Qt::CaseInsensitive) == 0;
        });
        if (!taken)
            return name.toUtf8();
    }
    return {};
}

RowKeys primaryKey(const std::vector<ColumnSchema>& columns)
{
    std::vector<QByteArray> key;
    for (int place = 1; place <= static_cast<int>(columns.size()); ++place) {
        for (const ColumnSchema& column : columns) {
            if (column.keyPlace == place)
                key.push_back(column.quoted);
        }
    }
    return RowKeys(std::move(key));
}

bool hasRowIds(DatabaseFile& file, const QByteArray& table)
{
    EngineStatement row = file.statement("SELECT wr FROM pragma_table_list(?1) WHERE schema = 'main'");
    row.bindText(1, table);
    return !row.step() || row.integer(0) == 0;
}

} // namespace

int TableSchema::column(const QString& columnName) const
{
    // Nearly always as written, and asked for every value of a walk.
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (columns[i].name == columnName)
            return static_cast<int>(i);
    }
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (sameName(columns[i].name, columnName))
            return static_cast<int>(i);
    }
    throw databaseError(errors::database::unknownColumn, columnName);
}

TableSchema readTableSchema(DatabaseFile& file, const QString& name)
{
    TableSchema schema;
    schema.name = name;
    schema.unquotedName = name.toUtf8();
    schema.quoted = quotedName(name);
    schema.columns = readColumns(file, schema.unquotedName);
    markUniqueColumns(file, schema.unquotedName, schema.columns);
    if (!hasRowIds(file, schema.unquotedName)) {
        schema.rows = primaryKey(schema.columns);
        return schema;
    }
    const QByteArray rowId = rowIdName(schema.columns);
    if (rowId.isEmpty())
        throw RunTimeError(errors::database::locked, u"The table '%1' has no row ids."_s.arg(name));
    schema.rows = RowKeys(rowId);
    return schema;
}

bool sameName(const QString& one, const QString& other)
{
    return one.compare(other, Qt::CaseInsensitive) == 0;
}

QByteArray quotedName(const QString& name)
{
    return '"' + name.toUtf8().replace('"', "\"\"") + '"';
}

} // namespace varnhold
