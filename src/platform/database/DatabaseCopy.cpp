#include "platform/database/DatabaseCopy.h"

#include "platform/FileErrors.h"
#include "platform/ReadFile.h"
#include "platform/ReplaceFile.h"
#include "platform/RunTimeError.h"
#include "platform/database/DatabaseCompaction.h"
#include "platform/database/DatabaseWatch.h"
#include "platform/database/Engine.h"
#include "platform/database/EngineStatement.h"

#include <QFileInfo>
#include <QScopeGuard>

#include <cerrno>
#include <unistd.h>

#include <sqlite3.h>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype blockSize = 1024 * 1024;

bool isDatabase(int file)
{
    constexpr QByteArrayView magic("SQLite format 3\0", 16);
    char start[16] = {};
    return ::pread(file, start, sizeof start, 0) == sizeof start &&
           QByteArrayView(start, sizeof start) == magic;
}

/// Whether a file that the engine could not read lacks what stands in another file beside it.
bool needsItsLog(int result, const QString& path)
{
    switch (result & 0xff) {
    case SQLITE_READONLY:
    case SQLITE_CANTOPEN:
    case SQLITE_IOERR:
        return QFileInfo(path + u"-wal"_s).size() > 0 || QFileInfo(path + u"-journal"_s).size() > 0;
    default:
        return false;
    }
}

void copyBytes(int file, FileReplacement& target, DatabaseWatch* watch)
{
    QByteArray block(blockSize, Qt::Uninitialized);
    for (off_t offset = 0;;) {
        const ssize_t count = ::pread(file, block.data(), static_cast<std::size_t>(block.size()), offset);
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            throw errorFromErrno(errno);
        if (count == 0)
            return;
        target.write(QByteArrayView(block).first(count));
        offset += count;
        constexpr off_t paintEvery = 64 * blockSize;
        if (watch != nullptr && offset % paintEvery == 0)
            watch->keepPainted();
    }
}

/// Page by page through the engine, which reads the log too.
void copyPages(sqlite3* source, const QString& target, DatabaseWatch* watch)
{
    constexpr int pages = 4'096;
    const Engine copy = openEngine(target);
    runOn(copy.get(), "PRAGMA journal_mode = OFF"); // nothing is there that could be taken back
    sqlite3_backup* const backup = sqlite3_backup_init(copy.get(), "main", source, "main");
    if (backup == nullptr)
        throwEngineError(sqlite3_extended_errcode(copy.get()), sqlite3_errmsg(copy.get()));
    int result = SQLITE_OK;
    while ((result = sqlite3_backup_step(backup, pages)) == SQLITE_OK) {
        if (watch != nullptr)
            watch->keepPainted();
    }
    sqlite3_backup_finish(backup);
    if (result != SQLITE_DONE)
        throwEngineError(result, sqlite3_errstr(result));
}

} // namespace

void copyDatabaseFile(const QString& source, const QString& target, DatabaseWatch* watch)
{
    // Its close would take away the engine's locks of the same file, so it comes after the engine's.
    const int file = openRegularFile(source);
    const auto closed = qScopeGuard([file] { ::close(file); });
    FileReplacement copy(target);
    if (!isDatabase(file)) {
        copyBytes(file, copy, watch);
        copy.commit();
        return;
    }
    const QString path = QFileInfo(source).canonicalFilePath();
    const Engine engine = openEngine(path);
    const int result =
        sqlite3_exec(engine.get(), "BEGIN; SELECT count(*) FROM sqlite_schema", nullptr, nullptr, nullptr);
    if ((result & 0xff) == SQLITE_BUSY || (result & 0xff) == SQLITE_NOMEM || needsItsLog(result, path))
        throwEngineError(result, sqlite3_errmsg(engine.get()));
    if (result == SQLITE_OK && askOf(engine.get(), "PRAGMA journal_mode") == "wal")
        copyPages(engine.get(), copy.temporaryPath(), watch);
    else
        copyBytes(file, copy, watch); // nobody writes while we read; a damaged file is copied as it is
    copy.commit();
}

} // namespace varnhold
