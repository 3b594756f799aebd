#include "platform/database/RowSnapshot.h"

#include "platform/database/DatabaseErrors.h"
#include "platform/database/DatabaseFile.h"
#include "platform/database/TextFolding.h"
#include "platform/database/TextOrder.h"
#include "platform/database/TextPattern.h"

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
std::vector<qint64> firstRows(DatabaseFile& file, const TableSchema& table)
{
    EngineStatement row =
        file.statement("SELECT " + table.rows.list() + " FROM " + table.quoted + " LIMIT 32");
    std::vector<qint64> rows;
    while (row.step())
        rows.push_back(table.rows.number(row));
    return rows;
}

/// Whether a column's values are, by the look of those rows, mostly there and short. A wrong guess costs time
/// and nothing else.
bool looksShort(DatabaseFile& file, const TableSchema& table, int column, const std::vector<qint64>& rows)
{
    std::size_t filled = 0;
    for (const qint64 row : rows) {
        const qint64 size = file.valueSize(table, column, row);
        if (size > TextColumn::longest)
            return false;
        filled += size > 0 ? 1 : 0;
    }
    return 2 * filled > rows.size();
}

/// Rows that may be equal as texts, however they are stored: to the engine a number in a column without a
/// type is no text, and a blob nowhere is one. Blobs stand behind all texts and numbers before, so an index
/// finds these too; that they are rare keeps the engine from reading everything.
QByteArray equalInAnyType(const QByteArray& column, const QString& value)
{
    QByteArray condition = column + " = ?1 COLLATE NOCASE OR likelihood(" + column + " >= x'', 0.00001)";
    bool isInteger = false;
    if (QString::number(value.toLongLong(&isInteger)) == value && isInteger)
        condition += " OR " + column + " = CAST(?1 AS INTEGER)";
    else if (!value.isEmpty() && u"0123456789-+.IN"_s.contains(value.front()))
        condition += " OR likelihood(" + column + " < '', 0.00001)";
    return condition;
}

/// Whether a row answers a condition, by the text of the compared column.
class Answer
{
public:
    explicit Answer(const std::optional<DatabaseStatement::Condition>& condition)
    {
        if (!condition)
            return;
        if (condition->comparison == DatabaseStatement::Comparison::Like)
            m_pattern.emplace(condition->value.toUtf8());
        else
            m_text.emplace(condition->value.toUtf8());
    }

    [[nodiscard]] bool operator()(QByteArrayView text, bool null) const
    {
        if (m_pattern)
            return null ? m_pattern->matchesNull() : m_pattern->matches(text);
        return !null && m_text->matches(text);
    }
    /// The engine can be asked for the rows: its index knows the case of ASCII letters.
    [[nodiscard]] bool isInIndex() const { return m_text && m_text->hasAsciiCaseOnly(); }
    /// Only a comparison answers with few rows.
    [[nodiscard]] bool expectsFew() const { return m_text.has_value(); }

private:
    std::optional<FoldedText> m_text;
    std::optional<TextPattern> m_pattern;
};

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
    const Answer answers(statement.condition);
    const RowKeys& rows = m_table->rows;

    // The compared column comes first, so that a row that does not answer costs no other.
    std::vector<int> asked;
    if (compared >= 0)
        asked.push_back(compared);
    const std::vector<qint64> first =
        answers.expectsFew() ? std::vector<qint64>() : firstRows(m_file, *m_table);
    for (int column = 0; column < static_cast<int>(m_table->columns.size()); ++column) {
        const bool wanted = column == sorted || (!answers.expectsFew() && isListed(column, first));
        if (wanted && column != compared)
            asked.push_back(column);
    }
    QByteArray sql = "SELECT " + rows.list();
    std::vector<TextColumn*> kept;
    for (const int column : asked) {
        sql += ", " + quoted(*m_table, column);
        kept.push_back(&m_columns[static_cast<std::size_t>(column)].emplace());
    }
    sql += " FROM " + m_table->quoted;
    const QByteArray value = statement.condition ? statement.condition->value.toUtf8() : QByteArray();
    if (answers.isInIndex())
        sql += " WHERE " + equalInAnyType(quoted(*m_table, compared), statement.condition->value);
    if (sorted < 0)
        sql += " ORDER BY 1";

    EngineStatement row = m_file.statement(sql);
    if (answers.isInIndex())
        row.bindText(1, value);
    TextOrder order;
    const int firstColumn = rows.width();
    while (row.step()) {
        QByteArrayView text;
        bool null = false;
        const auto read = [&](std::size_t i) {
            text = row.text(firstColumn + static_cast<int>(i));
            null = text.isEmpty() && row.isNull(firstColumn + static_cast<int>(i));
        };
        if (compared >= 0) {
            read(0);
            if (!answers(text, null))
                continue;
        }
        const qint64 number = rows.number(row);
        if (!left.empty() && std::binary_search(left.begin(), left.end(), number))
            continue;
        m_numbers.push_back(number);
        for (std::size_t i = 0; i < kept.size(); ++i) {
            read(i);
            kept[i]->append(null, text);
            if (asked[i] != sorted)
                continue;
            appendFolded(order.keys(), text);
            if (null)
                order.finishNullRow();
            else
                order.finishRow();
        }
    }
    if (sorted >= 0)
        arrange(order.sorted(statement.order->descending));
}

/// Whether a walk over many rows will ask for the column, by the look of the first ones.
bool RowSnapshot::isListed(int column, const std::vector<qint64>& first) const
{
    return m_table->columns[static_cast<std::size_t>(column)].unique ||
           looksShort(m_file, *m_table, column, first);
}

void RowSnapshot::arrange(const std::vector<quint32>& order)
{
    if (std::is_sorted(order.begin(), order.end()))
        return; // as they came
    std::vector<qint64> numbers(m_numbers.size());
    std::transform(order.begin(), order.end(), numbers.begin(), [&](quint32 row) { return m_numbers[row]; });
    m_numbers.swap(numbers);
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
    std::optional<QString> text = lookUpText(m_file, *m_table, number(position), column);
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
    const auto [first, last] = std::minmax_element(m_numbers.begin(), m_numbers.end());
    const quint64 range = static_cast<quint64>(*last) - static_cast<quint64>(*first);
    if (m_numbers.size() > patience && range / sparsest < m_numbers.size())
        load(column, *first, *last);
}

void RowSnapshot::load(int column, qint64 first, qint64 last)
{
    constexpr quint32 none = std::numeric_limits<quint32>::max();
    std::vector<quint32> positions(static_cast<std::size_t>(last - first) + 1, none);
    for (std::size_t i = 0; i < m_numbers.size(); ++i)
        positions[static_cast<std::size_t>(m_numbers[i] - first)] = static_cast<quint32>(i);

    TextColumn texts;
    texts.appendLookUp(); // for rows that were deleted meanwhile
    std::vector<quint32> order(m_numbers.size(), 0);
    const RowKeys& rows = m_table->rows;
    QByteArray sql = "SELECT " + rows.list() + ", " + quoted(*m_table, column) + " FROM " + m_table->quoted;
    if (rows.areRowIds())
        sql += " WHERE " + rows.list() + " BETWEEN ?1 AND ?2 ORDER BY 1";
    EngineStatement row = m_file.statement(sql);
    if (rows.areRowIds()) {
        row.bindInteger(1, first);
        row.bindInteger(2, last);
    }
    const int textColumn = rows.width();
    while (row.step()) {
        const qint64 number = rows.number(row);
        if (number < first || number > last)
            continue;
        const quint32 position = positions[static_cast<std::size_t>(number - first)];
        if (position == none)
            continue;
        order[position] = static_cast<quint32>(texts.count());
        const QByteArrayView text = row.text(textColumn);
        texts.append(text.isEmpty() && row.isNull(textColumn), text);
    }
    texts.arrange(order);
    m_columns[static_cast<std::size_t>(column)] = std::move(texts);
}

std::optional<QString> lookUpText(DatabaseFile& file, const TableSchema& table, qint64 number, int column)
{
    EngineStatement row = file.statement("SELECT " + quoted(table, column) + " FROM " + table.quoted +
                                         " WHERE " + table.rows.condition(1));
    table.rows.bind(row, 1, number);
    if (!row.step())
        return {};
    const QByteArrayView text = row.text(0);
    return toText(text.isEmpty() && row.isNull(0), text);
}

} // namespace varnhold
