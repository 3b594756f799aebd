#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

namespace varnhold {

class DatabaseConnection;
struct DatabaseStatement;

/// A static cursor over one table with optimistic locks: the rows that answered the statement, however the
/// table changes afterwards, with those stored through it behind them. Lazy: the table is read when something
/// is first asked of the rows, so opening it for one insert does not read it. Column names without regard to
/// case.
///
/// Statements are the program's own shapes and nothing else; values stand between apostrophes and are bound,
/// and an apostrophe inside a value is bad syntax, never a further condition:
///   SELECT * FROM table [where column='value' | where column LIKE 'pattern'] [ORDER BY column Asc|Desc] [;]
/// Texts compare and sort without regard to case, beyond ASCII too.
class Recordset
{
public:
    Recordset();
    ~Recordset();
    Recordset(const Recordset&) = delete;
    Recordset& operator=(const Recordset&) = delete;

    /// RunTimeError 3705 when open, 3704 when the connection is closed, 0x80040E14 bad syntax, 0x80040E37 no
    /// such table, 0x80040E10 no such column in a condition or order.
    void Open(const QString& statement, const DatabaseConnection& connection);
    /// The same with a statement that was never a text: its value may hold anything.
    void Open(const DatabaseStatement& statement, const DatabaseConnection& connection);
    void Close(); ///< RunTimeError 3704 when not open; a record under way is dropped
    [[nodiscard]] bool isOpen() const;

    [[nodiscard]] int RecordCount() const;
    [[nodiscard]] bool atEnd() const;           ///< EOF
    [[nodiscard]] int AbsolutePosition() const; ///< from 1; RunTimeError 3021 past the end
    void MoveNext();                            ///< RunTimeError 3021 past the end

    /// Of the current record: a NULL and a value that is no text both come as text, NULL as the null string.
    /// RunTimeError 3021 without a record, 0x80040E10 for an unknown column.
    [[nodiscard]] QString value(const QString& column) const;
    /// Size in bytes of a binary column; 0 when NULL.
    [[nodiscard]] qint64 ActualSize(const QString& column) const;
    /// Up to `length` bytes from where the last GetChunk of this column on this record ended.
    [[nodiscard]] QByteArray GetChunk(const QString& column, qint64 length);

    /// A new record is under way until Update; another AddNew or MoveNext stores it first. Stored, it is the
    /// current record.
    void AddNew();
    void setValue(const QString& column, const QString& value);
    /// Sets the column at its first call on a record under way and appends at the next ones.
    void AppendChunk(const QString& column, const QByteArray& bytes);
    /// Stores the record under way, or what was set on the current one. RunTimeError 0x80040E21 when a
    /// unique value is taken, 0x80004005 locked or read-only; the record is then still under way.
    void Update();
    /// Nothing is ever left for it to do: each Update stores. RunTimeError 3704 when not open.
    void UpdateBatch();

private:
    class State;
    [[nodiscard]] State& state() const; ///< RunTimeError 3704 when not open

    std::unique_ptr<State> m_state;
};

} // namespace varnhold
