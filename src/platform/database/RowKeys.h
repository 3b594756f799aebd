#pragma once

#include <QByteArray>
#include <QtGlobal>

#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

struct sqlite3_value;

namespace varnhold {

class EngineStatement;

/// What a table's rows are told apart by: the engine's row ids, or, in a table WITHOUT ROWID, its primary
/// key. Outside of this class a row always has a number: its row id, or one that is given to a key when it is
/// first met and stays with that row while the file is open.
class RowKeys
{
public:
    RowKeys() = default; ///< no table
    explicit RowKeys(QByteArray rowId);
    explicit RowKeys(std::vector<QByteArray> keyColumns); ///< quoted

    [[nodiscard]] bool areRowIds() const { return !m_held; }
    /// Columns to select, and to return from a statement that writes.
    [[nodiscard]] const QByteArray& list() const { return m_list; }
    /// How many columns list() has.
    [[nodiscard]] int width() const { return static_cast<int>(m_columns.size()); }
    /// Compares with parameters from ?first on.
    [[nodiscard]] QByteArray condition(int first) const;

    /// The number of the row that a statement stands on, whose first columns are list().
    [[nodiscard]] qint64 number(const EngineStatement& row) const;
    /// Binds a number to the parameters of condition().
    void bind(EngineStatement& statement, int first, qint64 number) const;
    /// The row of that number has the key that the statement stands on from now on.
    void follow(const EngineStatement& row, qint64 number) const;

private:
    struct ValueDeleter
    {
        void operator()(sqlite3_value* value) const;
    };
    using Key = std::vector<std::unique_ptr<sqlite3_value, ValueDeleter>>;
    struct Held
    {
        std::unordered_map<std::string, qint64> numbers; ///< by the key's bytes
        std::vector<Key> keys;                           ///< by number
    };

    [[nodiscard]] std::string bytes(const EngineStatement& row) const;
    [[nodiscard]] Key key(const EngineStatement& row) const;

    std::vector<QByteArray> m_columns;
    QByteArray m_list;
    std::shared_ptr<Held> m_held;
};

} // namespace varnhold
