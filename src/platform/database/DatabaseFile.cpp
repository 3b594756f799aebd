#include "platform/database/DatabaseFile.h"

#include "platform/ReadFile.h"
#include "platform/database/DatabaseErrors.h"
#include "platform/database/TextFolding.h"

#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <bit>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// Bytes 18 and 19 of a file that wants a write-ahead log both to be written and to be read.
bool wantsWriteAheadLog(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return false;
    const QByteArray header = file.read(20);
    return header.size() == 20 && header[18] == 2 && header[19] == 2;
}

int runOnce(sqlite3* engine, const char* sql)
{
    return sqlite3_exec(engine, sql, nullptr, nullptr, nullptr);
}

} // namespace

DatabaseFile::DatabaseFile(const QString& path, DatabaseWatch* watch) : m_patience(watch)
{
    // A folder, a pipe or an empty file are no databases, though the engine would take the last for one.
    const QFileInfo info(path);
    if (path.isEmpty() || path.contains(QChar(u'\0')) || !isRegularFile(path) || info.size() == 0)
        throw databaseError(errors::database::cannotOpen, path);
    const QString fullPath = info.absoluteFilePath();
    m_engine = openEngine(fullPath);
    int result = probe(m_engine.get());
    if (result != SQLITE_OK && (result & 0xff) != SQLITE_BUSY && wantsWriteAheadLog(fullPath) &&
        QFileInfo(fullPath + u"-wal"_s).size() == 0) {
        // A folder that takes no log: nothing waits in one, so the file can be read as it stands.
        m_engine = openUnchanging(fullPath);
        result = probe(m_engine.get());
    }
    switch (result & 0xff) {
    case SQLITE_OK:
        break;
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
    case SQLITE_READONLY:
    case SQLITE_NOMEM:
        throwEngineError(result, sqlite3_errmsg(m_engine.get()));
    default:
        throw databaseError(errors::database::cannotOpen, path);
    }
    m_patience.watchOver(m_engine.get());
    m_isUtf8 = askOf(m_engine.get(), "PRAGMA encoding") == "UTF-8";
    m_readOnly = sqlite3_db_readonly(m_engine.get(), "main") != 0;
}

DatabaseFile::~DatabaseFile()
{
    close();
}

int DatabaseFile::probe(sqlite3* engine)
{
    if (const int result = sqlite3_extended_errcode(engine); result != SQLITE_OK)
        return result;
    const int result = runOnce(engine, "SELECT count(*) FROM sqlite_schema");
    return result == SQLITE_OK ? runOnce(engine, "PRAGMA cell_size_check = ON") : result;
}

void DatabaseFile::close() noexcept
{
    if (!m_engine)
        return;
    m_value.reset();
    m_statements.clear();
    m_tables.clear();
    // Back to a single file that says so of itself: a copy on a medium that cannot be written can be read.
    // While another program reads, its own close folds the log in.
    if (m_goesBehind && runOnce(m_engine.get(), "PRAGMA journal_mode = DELETE") != SQLITE_OK)
        sqlite3_wal_checkpoint_v2(m_engine.get(), nullptr, SQLITE_CHECKPOINT_PASSIVE, nullptr, nullptr);
    m_engine.reset();
}

EngineStatement DatabaseFile::statement(const QByteArray& sql)
{
    const auto found = m_statements.find(sql);
    if (found != m_statements.end())
        return EngineStatement(found->second.get(), m_patience, m_isUtf8);
    sqlite3_stmt* prepared = nullptr;
    const int result = sqlite3_prepare_v3(m_engine.get(), sql.constData(), static_cast<int>(sql.size()),
                                          SQLITE_PREPARE_PERSISTENT, &prepared, nullptr);
    if (result != SQLITE_OK)
        fail(result);
    m_statements.emplace(sql, PreparedStatement(prepared, &sqlite3_finalize));
    return EngineStatement(prepared, m_patience, m_isUtf8);
}

void DatabaseFile::fail(int result) const
{
    throwEngineError(result, sqlite3_errmsg(m_engine.get()));
}

void DatabaseFile::prepareWrite()
{
    if (m_readOnly)
        fail(SQLITE_READONLY);
    m_value.reset();
    // To take up a log and to fold it in again costs as much as three writes without: it pays for many. A
    // refusal may be of the moment, so it is tried again, ever more seldom.
    ++m_writes;
    if (!m_writeAhead && m_writes > 1 && std::has_single_bit(m_writes))
        useWriteAheadLog();
}

void DatabaseFile::useWriteAheadLog()
{
    // No waiting: who reads the file at this moment, or a file system without shared memory, leaves us with
    // the file's own journal, which loses nothing either.
    sqlite3_busy_timeout(m_engine.get(), 0);
    try {
        // A file whose owner keeps it so stays so.
        m_writeAhead = isWriteAhead("PRAGMA journal_mode");
        if (!m_writeAhead)
            m_writeAhead = m_goesBehind = isWriteAhead("PRAGMA journal_mode = WAL");
    } catch (const RunTimeError&) {
        m_writeAhead = false;
    }
    sqlite3_busy_timeout(m_engine.get(), lockPatience);
    if (m_writeAhead)
        execute("PRAGMA synchronous = NORMAL");
}

bool DatabaseFile::isWriteAhead(const QByteArray& pragma)
{
    EngineStatement mode = statement(pragma);
    return mode.step() && mode.text(0) == QByteArrayView("wal");
}

qint64 DatabaseFile::lastInsertRowId() const
{
    return sqlite3_last_insert_rowid(m_engine.get());
}

int DatabaseFile::changes() const
{
    return sqlite3_changes(m_engine.get());
}

std::vector<QString> DatabaseFile::names(const QByteArray& condition)
{
    std::vector<QString> names;
    EngineStatement row = statement("SELECT name FROM sqlite_schema WHERE " + condition + " ORDER BY rowid");
    while (row.step())
        names.push_back(QString::fromUtf8(row.text(0)));
    return names;
}

std::vector<QString> DatabaseFile::tableNames()
{
    return names("type = 'table' AND name NOT LIKE 'sqlite!_%' ESCAPE '!'");
}

bool DatabaseFile::isTaken(const QString& name)
{
    const std::vector<QString> all = names("true");
    return std::any_of(all.begin(), all.end(), [&](const QString& other) { return sameName(other, name); });
}

std::shared_ptr<const TableSchema> DatabaseFile::table(const QString& name)
{
    const std::string key = folded(name.toUtf8());
    if (const auto found = m_tables.find(key); found != m_tables.end())
        return found->second;
    for (const QString& candidate : tableNames()) {
        if (sameName(candidate, name)) {
            auto schema = std::make_shared<const TableSchema>(readTableSchema(*this, candidate));
            m_tables.emplace(key, schema);
            return schema;
        }
    }
    throw databaseError(errors::database::missingTable, name);
}

sqlite3_blob* DatabaseFile::openValue(const TableSchema& table, int column, qint64 row)
{
    const QByteArray name = table.columns[static_cast<std::size_t>(column)].name.toUtf8();
    if (m_value && m_value->row == row && m_value->column == name && m_value->table == table.unquotedName)
        return m_value->handle.get();
    m_value.reset();
    sqlite3_blob* handle = nullptr;
    const int result = sqlite3_blob_open(m_engine.get(), "main", table.unquotedName.constData(),
                                         name.constData(), row, 0, &handle);
    if (result == SQLITE_ERROR)
        return nullptr; // NULL, a number, or no such row
    if (result != SQLITE_OK)
        fail(result);
    m_value.reset(new OpenValue{{handle, &sqlite3_blob_close}, name, table.unquotedName, row});
    return handle;
}

qint64 DatabaseFile::valueSize(const TableSchema& table, int column, qint64 row)
{
    if (!table.rows.areRowIds())
        return selectSize(table, column, row);
    sqlite3_blob* const handle = openValue(table, column, row);
    const qint64 size = handle ? sqlite3_blob_bytes(handle) : 0;
    m_value.reset();
    return size;
}

QByteArray DatabaseFile::readValue(const TableSchema& table, int column, qint64 row, qint64 offset,
                                   qint64 length)
{
    if (!table.rows.areRowIds())
        return selectBytes(table, column, row, offset, length);
    sqlite3_blob* const handle = openValue(table, column, row);
    if (!handle)
        return {};
    const qint64 size = sqlite3_blob_bytes(handle);
    QByteArray bytes(qBound<qint64>(0, length, qMax<qint64>(0, size - offset)), Qt::Uninitialized);
    const int result =
        sqlite3_blob_read(handle, bytes.data(), static_cast<int>(bytes.size()), static_cast<int>(offset));
    if (offset + bytes.size() >= size || result != SQLITE_OK)
        m_value.reset();
    if (result != SQLITE_OK)
        fail(result);
    return bytes;
}

qint64 DatabaseFile::selectSize(const TableSchema& table, int column, qint64 row)
{
    const ColumnSchema& schema = table.columns[static_cast<std::size_t>(column)];
    EngineStatement size = statement("SELECT length(CAST(" + schema.quoted + " AS BLOB)) FROM " +
                                     table.quoted + " WHERE " + table.rows.condition(1));
    table.rows.bind(size, 1, row);
    return size.step() ? size.integer(0) : 0;
}

QByteArray DatabaseFile::selectBytes(const TableSchema& table, int column, qint64 row, qint64 offset,
                                     qint64 length)
{
    const ColumnSchema& schema = table.columns[static_cast<std::size_t>(column)];
    EngineStatement part = statement("SELECT substr(CAST(" + schema.quoted + " AS BLOB), ?1, ?2) FROM " +
                                     table.quoted + " WHERE " + table.rows.condition(3));
    part.bindInteger(1, offset + 1);
    part.bindInteger(2, length);
    table.rows.bind(part, 3, row);
    return part.step() ? part.binary(0).toByteArray() : QByteArray();
}

Transaction::Transaction(DatabaseFile& file) : m_file(file)
{
    m_file.execute("BEGIN IMMEDIATE");
}

Transaction::~Transaction()
{
    if (m_done)
        return;
    try {
        m_file.execute("ROLLBACK");
    } catch (const RunTimeError&) {
        // The engine took it back by itself already.
    }
}

void Transaction::commit()
{
    m_file.execute("COMMIT");
    m_done = true;
}

} // namespace varnhold
