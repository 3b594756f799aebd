#pragma once

#include "platform/database/Engine.h"
#include "platform/database/EnginePatience.h"
#include "platform/database/EngineStatement.h"
#include "platform/database/TableSchema.h"

#include <QByteArray>
#include <QHashFunctions>
#include <QString>

#include <memory>
#include <unordered_map>
#include <vector>

namespace varnhold {

class DatabaseWatch;

/// One file open in the engine: statements kept prepared, the schema as first read, the journal's state. All
/// classes of the layer work on it; nothing outside the layer does.
class DatabaseFile
{
public:
    /// RunTimeError as DatabaseConnection::Open.
    explicit DatabaseFile(const QString& path, DatabaseWatch* watch = nullptr);
    ~DatabaseFile();
    DatabaseFile(const DatabaseFile&) = delete;
    DatabaseFile& operator=(const DatabaseFile&) = delete;

    /// Leaves one complete file behind, as far as other programs let it.
    void close() noexcept;
    [[nodiscard]] bool isOpen() const { return m_engine != nullptr; }

    /// A statement ready to be bound and stepped. Each text is prepared once; a text must not be asked for
    /// again while a former run of it goes on.
    EngineStatement statement(const QByteArray& sql);
    void execute(const QByteArray& sql) { statement(sql).step(); }

    /// To be called before every write, each of which then is on its own and outlives a kill. RunTimeError
    /// 0x80004005 when the file is read-only.
    void prepareWrite();
    [[nodiscard]] qint64 lastInsertRowId() const;
    /// Rows that the last statement changed.
    [[nodiscard]] int changes() const;

    /// Names of the user's tables in the order of the file.
    std::vector<QString> tableNames();
    /// Whether a table, an index or anything else in the file bears the name, in any case.
    bool isTaken(const QString& name);
    /// The table of that name in any case. RunTimeError 0x80040E37 when there is none.
    std::shared_ptr<const TableSchema> table(const QString& name);
    void forgetSchema() { m_tables.clear(); }

    /// Bytes of one value of the row of that number, without reading it whole; kept open between calls for
    /// the same value, and closed when it was read to its end, by another value and by prepareWrite.
    [[nodiscard]] qint64 valueSize(const TableSchema& table, int column, qint64 row);
    QByteArray readValue(const TableSchema& table, int column, qint64 row, qint64 offset, qint64 length);

private:
    struct OpenValue
    {
        std::unique_ptr<sqlite3_blob, int (*)(sqlite3_blob*)> handle;
        QByteArray column;
        QByteArray table;
        qint64 row;
    };

    std::vector<QString> names(const QByteArray& condition);
    static int probe(sqlite3* engine);
    [[noreturn]] void fail(int result) const;
    sqlite3_blob* openValue(const TableSchema& table, int column, qint64 row);
    qint64 selectSize(const TableSchema& table, int column, qint64 row);
    QByteArray selectBytes(const TableSchema& table, int column, qint64 row, qint64 offset, qint64 length);
    void useWriteAheadLog();
    bool isWriteAhead(const QByteArray& pragma);

    EnginePatience m_patience;
    Engine m_engine;
    std::unordered_map<QByteArray, PreparedStatement> m_statements;
    std::unordered_map<std::string, std::shared_ptr<const TableSchema>> m_tables; ///< by folded name
    std::unique_ptr<OpenValue> m_value;
    bool m_readOnly = false;
    bool m_isUtf8 = false;
    quint64 m_writes = 0;
    bool m_writeAhead = false; ///< the file has a write-ahead log
    bool m_goesBehind = false; ///< which its owner did not want: it goes at the close
};

/// A group of writes that takes place as a whole or not at all.
class Transaction
{
public:
    explicit Transaction(DatabaseFile& file);
    ~Transaction(); ///< takes back what was not committed
    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;
    void commit();

private:
    DatabaseFile& m_file;
    bool m_done = false;
};

} // namespace varnhold
