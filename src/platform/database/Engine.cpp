#include "platform/database/Engine.h"

#include "platform/RunTimeError.h"
#include "platform/database/EngineStatement.h"

#include <QFile>
#include <QUrl>

namespace varnhold {

namespace {

/// Bytes of the longest value that the engine makes or reads; a stored picture may well have 200 million.
constexpr int longestValue = 256 * 1024 * 1024;

Engine configured(sqlite3* engine)
{
    if (engine == nullptr)
        throw RunTimeError(errors::outOfMemory);
    sqlite3_extended_result_codes(engine, 1);
    sqlite3_busy_timeout(engine, lockPatience);
    // The file comes from anywhere.
    sqlite3_limit(engine, SQLITE_LIMIT_LENGTH, longestValue);
    sqlite3_db_config(engine, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    sqlite3_db_config(engine, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    return Engine(engine);
}

} // namespace

void EngineCloser::operator()(sqlite3* engine) const
{
    sqlite3_close(engine);
}

Engine openEngine(const QString& path)
{
    sqlite3* engine = nullptr;
    sqlite3_open_v2(QFile::encodeName(path).constData(), &engine, SQLITE_OPEN_READWRITE | SQLITE_OPEN_NOMUTEX,
                    nullptr);
    return configured(engine);
}

Engine openUnchanging(const QString& path)
{
    sqlite3* engine = nullptr;
    const QByteArray uri = "file:" + QUrl::toPercentEncoding(path, "/") + "?immutable=1";
    sqlite3_open_v2(uri.constData(), &engine, SQLITE_OPEN_READONLY | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX,
                    nullptr);
    return configured(engine);
}

void runOn(sqlite3* engine, const QByteArray& sql)
{
    (void)askOf(engine, sql);
}

QByteArray askOf(sqlite3* engine, const QByteArray& sql)
{
    sqlite3_stmt* prepared = nullptr;
    int result =
        sqlite3_prepare_v2(engine, sql.constData(), static_cast<int>(sql.size()), &prepared, nullptr);
    const PreparedStatement statement(prepared, &sqlite3_finalize);
    QByteArray answer;
    while (result == SQLITE_OK || result == SQLITE_ROW) {
        if (result == SQLITE_ROW && answer.isNull())
            answer = QByteArray(reinterpret_cast<const char*>(sqlite3_column_text(prepared, 0)),
                                sqlite3_column_bytes(prepared, 0));
        result = sqlite3_step(prepared);
    }
    if (result != SQLITE_DONE)
        throwEngineError(sqlite3_extended_errcode(engine), sqlite3_errmsg(engine));
    return answer;
}

} // namespace varnhold
