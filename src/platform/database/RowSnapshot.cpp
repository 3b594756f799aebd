#include "platform/database/RowSnapshot.h"

#include "platform/database/DatabaseErrors.h"
#include "platform/database/DatabaseFile.h"
#include "platform/database/TextFolding.h"
#include "platform/database/TextOrder.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// Single look-ups of a column before it is read as a whole.
constexpr int patience = 64;
/// A column is read as a whole only when at least one in so many row ids of its range belongs to the
/// snapshot.
constexpr quint64 sparsest = 16;
/// Rows to fetch ahead when they are put in order.
constexpr std::size_t ahead = 16;

QString toText(bool null, QByteArrayView text)
{
    if (null)
        return {};
    return text.isEmpty() ? u""_s : QString::fromUtf8(text);
}

const QByteArray& quoted(const TableSchema& table, int column)
{
    return table.columns[static_cast<std::size_t>(column)].quoted;
}

/// The first rows of a table, by which a walk over all of it is planned.
std::vector<qint64> firstRowIds(DatabaseFile& file, const TableSchema& table)
{
    EngineStatement row = file.statement("SELECT " + table.rowId + " FROM " + table.quoted + " LIMIT 32");
    std::vector<qint64> ids;
    while (row.step())
        ids.push_back(row.integer(0));
    return ids;
}

/// Whether a column's values are, by the look of those rows, mostly there and short. A wrong guess costs time
/// and nothing else.
bool looksShort(DatabaseFile& file, const TableSchema& table, int column, const std::vector<qint64>& rowIds)
{
    std::size_t filled = 0;
    for (const qint64 rowId : rowIds) {
        const qint64 size = file.valueSize(table, column, rowId);
        if (size > TextColumn::longest)
            return false;
        filled += size > 0 ? 1 : 0;
    }
    return 2 * filled > rowIds.size();
}

} // namespace

quint64 TextColumn::cellOf(bool isNull, QByteArrayView text)
{
    if (isNull)
        return null;
    if (text.size() > longest)
        return lookUp;
    const quint64 start = m_texts.size();
    m_texts.append(text.data(), static_cast<std::size_t>(text.size()));
    return start << startShift | static_cast<quint64>(text.size()) << lengthShift;
}

void TextColumn::arrange(const std::vector<quint32>& order)
{
    std::vector<quint64> cells;
    std::string texts;
    cells.reserve(m_cells.size());
    texts.reserve(m_texts.size());
    for (std::size_t i = 0; i < order.size(); ++i) {
        // Rows lie all over the memory: the next ones are fetched while this one is copied.
        if (i + 2 * ahead < order.size()) {
            __builtin_prefetch(&m_cells[order[i + 2 * ahead]]);
            __builtin_prefetch(m_texts.data() + (m_cells[order[i + ahead]] >> startShift));
        }
        const quint64 cell = m_cells[order[i]];
        const quint64 size = (cell >> lengthShift) & longest;
        cells.push_back((cell & (null | lookUp)) ? cell : texts.size() << startShift | size << lengthShift);
        texts.append(m_texts, cell >> startShift, size);
    }
    m_cells.swap(cells);
    m_texts.swap(texts);
}

std::optional<QString> TextColumn::text(std::size_t row) const
{
    const quint64 cell = m_cells[row];
    if (cell & lookUp)
        return {};
    const quint64 length = (cell >> lengthShift) & longest;
    return toText(cell & null, {m_texts.data() + (cell >> startShift), static_cast<qsizetype>(length)});
}

RowSnapshot::RowSnapshot(DatabaseFile& file, std::shared_ptr<const TableSchema> table,
                         const DatabaseStatement& statement, const std::vector<qint64>& left)
    : m_file(file),
      m_table(std::move(table)),
      m_columns(m_table->columns.size()),
      m_lookUps(m_table->columns.size())
{
    scan(statement, left);
}

void RowSnapshot::scan(const DatabaseStatement& statement, const std::vector<qint64>& left)
{
    const int compared = statement.condition ? m_table->column(statement.condition->column) : -1;
    const int sorted = statement.order ? m_table->column(statement.order->column) : -1;
    const QByteArray wantedText = statement.condition ? statement.condition->value.toUtf8() : QByteArray();
    const FoldedText wanted(wantedText);

    const std::vector<qint64> first = compared < 0 ? firstRowIds(m_file, *m_table) : std::vector<qint64>();
    std::vector<std::pair<int, TextColumn*>> kept;
    QByteArray sql = "SELECT " + m_table->rowId;
    for (int column = 0; column < static_cast<int>(m_table->columns.size()); ++column) {
        const ColumnSchema& schema = m_table->columns[static_cast<std::size_t>(column)];
        const bool asked = column == compared || column == sorted;
        if (!asked && (compared >= 0 || !(schema.unique || looksShort(m_file, *m_table, column, first))))
            continue;
        kept.emplace_back(column, &m_columns[static_cast<std::size_t>(column)].emplace());
        sql += ", " + schema.quoted;
    }
    sql += " FROM " + m_table->quoted;
    // The file's own index knows the case of ASCII letters. Where that is not enough all rows are looked at.
    const bool byIndex = compared >= 0 && wanted.hasAsciiCaseOnly();
    if (byIndex)
        sql += " WHERE " + quoted(*m_table, compared) + " = ?1 COLLATE NOCASE";
    if (sorted < 0)
        sql += " ORDER BY 1";

    EngineStatement row = m_file.statement(sql);
    if (byIndex)
        row.bindText(1, wantedText);
    TextOrder order;
    std::vector<QByteArrayView> texts(kept.size());
    std::vector<bool> nulls(kept.size());
    while (row.step()) {
        const qint64 rowId = row.integer(0);
        if (!left.empty() && std::binary_search(left.begin(), left.end(), rowId))
            continue;
        bool answers = true;
        for (std::size_t i = 0; i < kept.size() && answers; ++i) {
            const int column = static_cast<int>(i) + 1;
            texts[i] = row.text(column);
            nulls[i] = texts[i].isEmpty() && row.isNull(column);
            answers = kept[i].first != compared || (!nulls[i] && wanted.matches(texts[i]));
        }
        if (!answers)
            continue;
        m_rowIds.push_back(rowId);
        for (std::size_t i = 0; i < kept.size(); ++i) {
            kept[i].second->append(nulls[i], texts[i]);
            if (kept[i].first != sorted)
                continue;
            appendFolded(order.keys(), texts[i]);
            if (nulls[i])
                order.finishNullRow();
            else
                order.finishRow();
        }
    }
    if (sorted >= 0)
        arrange(order.sorted(statement.order->descending));
}

void RowSnapshot::arrange(const std::vector<quint32>& order)
{
    std::vector<qint64> rowIds(m_rowIds.size());
    std::transform(order.begin(), order.end(), rowIds.begin(), [&](quint32 row) { return m_rowIds[row]; });
    m_rowIds.swap(rowIds);
    for (std::optional<TextColumn>& column : m_columns) {
        if (column)
            column->arrange(order);
    }
}

QString RowSnapshot::text(std::size_t position, int column)
{
    auto& loaded = m_columns[static_cast<std::size_t>(column)];
    if (!loaded)
        loadWhenWorthIt(column);
    if (loaded) {
        if (std::optional<QString> text = loaded->text(position))
            return *std::move(text);
    }
    std::optional<QString> text = lookUpText(m_file, *m_table, rowId(position), column);
    if (!text)
        throw databaseError(errors::database::noCurrentRecord);
    return *std::move(text);
}

void RowSnapshot::forget(std::size_t position, int column)
{
    if (auto& loaded = m_columns[static_cast<std::size_t>(column)])
        loaded->forget(position);
}

void RowSnapshot::loadWhenWorthIt(int column)
{
    if (++m_lookUps[static_cast<std::size_t>(column)] != patience)
        return;
    const auto [first, last] = std::minmax_element(m_rowIds.begin(), m_rowIds.end());
    const quint64 range = static_cast<quint64>(*last) - static_cast<quint64>(*first);
    if (m_rowIds.size() > patience && range / sparsest < m_rowIds.size())
        load(column, *first, *last);
}

void RowSnapshot::load(int column, qint64 first, qint64 last)
{
    constexpr quint32 none = std::numeric_limits<quint32>::max();
    std::vector<quint32> positions(static_cast<std::size_t>(last - first) + 1, none);
    for (std::size_t i = 0; i < m_rowIds.size(); ++i)
        positions[static_cast<std::size_t>(m_rowIds[i] - first)] = static_cast<quint32>(i);

    TextColumn texts;
    texts.appendLookUp(); // for rows that were deleted meanwhile
    std::vector<quint32> order(m_rowIds.size(), 0);
    EngineStatement row =
        m_file.statement("SELECT " + m_table->rowId + ", " + quoted(*m_table, column) + " FROM " +
                         m_table->quoted + " WHERE " + m_table->rowId + " BETWEEN ?1 AND ?2 ORDER BY 1");
    row.bindInteger(1, first);
    row.bindInteger(2, last);
    while (row.step()) {
        const quint32 position = positions[static_cast<std::size_t>(row.integer(0) - first)];
        if (position == none)
            continue;
        order[position] = static_cast<quint32>(texts.count());
        const QByteArrayView text = row.text(1);
        texts.append(text.isEmpty() && row.isNull(1), text);
    }
    texts.arrange(order);
    m_columns[static_cast<std::size_t>(column)] = std::move(texts);
}

std::optional<QString> lookUpText(DatabaseFile& file, const TableSchema& table, qint64 rowId, int column)
{
    EngineStatement row = file.statement("SELECT " + quoted(table, column) + " FROM " + table.quoted +
                                         " WHERE " + table.rowId + " = ?1");
    row.bindInteger(1, rowId);
    if (!row.step())
        return {};
    const QByteArrayView text = row.text(0);
    return toText(text.isEmpty() && row.isNull(0), text);
}

} // namespace varnhold
