#include "platform/database/EngineStatement.h"

#include "platform/RunTimeError.h"
#include "platform/database/DatabaseErrors.h"

namespace varnhold {

using namespace Qt::StringLiterals;

EngineStatement::~EngineStatement()
{
    sqlite3_reset(m_statement);
    sqlite3_clear_bindings(m_statement);
}

void EngineStatement::bindInteger(int index, qint64 value)
{
    require(sqlite3_bind_int64(m_statement, index, value));
}

void EngineStatement::bindText(int index, QByteArrayView utf8)
{
    // An empty view may have no address, which would bind NULL.
    require(sqlite3_bind_text64(m_statement, index, utf8.isEmpty() ? "" : utf8.data(),
                                static_cast<sqlite3_uint64>(utf8.size()), SQLITE_STATIC, SQLITE_UTF8));
}

void EngineStatement::bindBinary(int index, QByteArrayView bytes)
{
    require(sqlite3_bind_blob64(m_statement, index, bytes.isEmpty() ? "" : bytes.data(),
                                static_cast<sqlite3_uint64>(bytes.size()), SQLITE_STATIC));
}

void EngineStatement::bindValue(int index, const sqlite3_value* value)
{
    require(sqlite3_bind_value(m_statement, index, value));
}

bool EngineStatement::step()
{
    const int result = sqlite3_step(m_statement);
    m_patience.progressed();
    if (result == SQLITE_ROW)
        return true;
    if (result == SQLITE_DONE)
        return false;
    sqlite3* const engine = sqlite3_db_handle(m_statement);
    throwEngineError(sqlite3_extended_errcode(engine), sqlite3_errmsg(engine));
}

bool EngineStatement::isNull(int column) const
{
    return sqlite3_column_type(m_statement, column) == SQLITE_NULL;
}

qint64 EngineStatement::integer(int column) const
{
    return sqlite3_column_int64(m_statement, column);
}

QByteArrayView EngineStatement::text(int column) const
{
    // As text it would be copied for the sake of a NUL behind it.
    if (m_isUtf8) {
        sqlite3_value* const held = value(column);
        if (sqlite3_value_type(held) == SQLITE_TEXT)
            return {static_cast<const char*>(sqlite3_value_blob(held)), sqlite3_value_bytes(held)};
    }
    const auto* const text = reinterpret_cast<const char*>(sqlite3_column_text(m_statement, column));
    if (text == nullptr && sqlite3_errcode(sqlite3_db_handle(m_statement)) == SQLITE_NOMEM)
        throw RunTimeError(errors::outOfMemory);
    return {text, sqlite3_column_bytes(m_statement, column)};
}

QByteArrayView EngineStatement::binary(int column) const
{
    const auto* const bytes = static_cast<const char*>(sqlite3_column_blob(m_statement, column));
    if (bytes == nullptr && sqlite3_errcode(sqlite3_db_handle(m_statement)) == SQLITE_NOMEM)
        throw RunTimeError(errors::outOfMemory);
    return {bytes, sqlite3_column_bytes(m_statement, column)};
}

sqlite3_value* EngineStatement::value(int column) const
{
    return sqlite3_column_value(m_statement, column);
}

void EngineStatement::require(int result) const
{
    if (result != SQLITE_OK)
        throwEngineError(result, sqlite3_errmsg(sqlite3_db_handle(m_statement)));
}

void throwEngineError(int result, const char* message)
{
    namespace db = errors::database;
    switch (result) {
    case SQLITE_CONSTRAINT_UNIQUE:
    case SQLITE_CONSTRAINT_PRIMARYKEY:
    case SQLITE_CONSTRAINT_ROWID:
        throw databaseError(db::duplicate);
    default:
        break;
    }
    switch (result & 0xff) {
    case SQLITE_NOMEM:
        throw RunTimeError(errors::outOfMemory);
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
        throw databaseError(db::locked);
    case SQLITE_READONLY:
        throw RunTimeError(db::locked, u"The database is read-only."_s);
    case SQLITE_CORRUPT:
    case SQLITE_NOTADB:
        throw RunTimeError(db::locked, u"The database is damaged."_s);
    case SQLITE_FULL:
        throw RunTimeError(db::locked, u"The disk is full."_s);
    case SQLITE_INTERRUPT:
        throw RunTimeError(db::locked, u"The database gave no answer for some seconds."_s);
    case SQLITE_TOOBIG:
        throw RunTimeError(db::locked, u"The database holds a value of more than 256 MB."_s);
    case SQLITE_CANTOPEN:
        throw RunTimeError(db::locked, u"The database's folder cannot be written."_s);
    default:
        throw RunTimeError(db::locked, u"The database engine failed: "_s + QString::fromUtf8(message) + u'.');
    }
}

} // namespace varnhold
