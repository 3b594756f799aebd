#pragma once

#include "platform/database/DatabaseStatement.h"
#include "platform/database/TableSchema.h"

#include <QByteArrayView>
#include <QString>

#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace varnhold {

class DatabaseFile;

/// The short texts of one column, row by row, in one piece of memory.
class TextColumn
{
public:
    /// A longer text is not kept: who asks for it looks it up in the file.
    static constexpr qsizetype longest = 255;

    void append(bool isNull, QByteArrayView text) { m_cells.push_back(cellOf(isNull, text)); }
    void forget(std::size_t row) { m_cells[row] = lookUp; }
    void appendLookUp() { m_cells.push_back(lookUp); }
    [[nodiscard]] std::size_t count() const { return m_cells.size(); }
    /// Row `order[i]` becomes row i, and its text stands where a walk comes along.
    void arrange(const std::vector<quint32>& order);
    /// Nothing when the value must be looked up.
    [[nodiscard]] std::optional<QString> text(std::size_t row) const;

private:
    // A cell is where the text starts, its length in eight bits, and two bits for what is no text.
    static constexpr quint64 null = 1;
    static constexpr quint64 lookUp = 2;
    static constexpr int lengthShift = 2;
    static constexpr int startShift = 10;

    quint64 cellOf(bool isNull, QByteArrayView text);

    std::vector<quint64> m_cells;
    std::string m_texts;
};

/// The rows that answer a statement, as they were when it was made: their numbers in order, and the columns
/// that such a list is read for, read in one pass. A comparison expects few rows: its own column and the
/// sorted one. A whole table or a pattern expects many: also those that are unique or look short. Other
/// columns come from the file row by row, and as a whole once many rows were asked.
class RowSnapshot
{
public:
    /// Rows whose number is in `left`, which is sorted, stay out. RunTimeError as the engine fails.
    RowSnapshot(DatabaseFile& file, std::shared_ptr<const TableSchema> table,
                const DatabaseStatement& statement, const std::vector<qint64>& left = {});

    [[nodiscard]] std::size_t count() const { return m_numbers.size(); }
    [[nodiscard]] qint64 number(std::size_t position) const { return m_numbers[position]; }
    /// NULL as the null string. RunTimeError 3021 when the row was deleted meanwhile.
    QString text(std::size_t position, int column);
    /// The value was changed.
    void forget(std::size_t position, int column);

private:
    using Columns = std::vector<std::optional<TextColumn>>;

    void scan(const DatabaseStatement& statement, const std::vector<qint64>& left);
    [[nodiscard]] bool isListed(int column, const std::vector<qint64>& first) const;
    void arrange(const std::vector<quint32>& order);
    void loadWhenWorthIt(int column);
    void load(int column, qint64 first, qint64 last);

    DatabaseFile& m_file;
    std::shared_ptr<const TableSchema> m_table;
    std::vector<qint64> m_numbers;
    Columns m_columns;
    std::vector<int> m_lookUps; ///< by column
};

/// One value from the file; nothing when the row is gone. NULL as the null string.
std::optional<QString> lookUpText(DatabaseFile& file, const TableSchema& table, qint64 number, int column);

} // namespace varnhold
