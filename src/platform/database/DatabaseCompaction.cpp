#include "platform/database/DatabaseCompaction.h"

#include "platform/FileErrors.h"
#include "platform/ReadFile.h"
#include "platform/ReplaceFile.h"
#include "platform/database/DatabaseErrors.h"
#include "platform/database/Engine.h"
#include "platform/database/EnginePatience.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QScopeGuard>

#include <cerrno>
#include <fcntl.h>
#include <unistd.h>

#include <sqlite3.h>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// A database that nobody else can use while this lives.
class LockedDatabase
{
public:
    LockedDatabase(const QString& path, DatabaseWatch* watch)
        : m_path(path), m_patience(watch, EnginePatience::Limit::None), m_engine(openEngine(path))
    {
        m_patience.watchOver(m_engine.get());
        m_isWriteAhead = askOf(engine(), "PRAGMA journal_mode") == "wal";
        try {
            // Whoever uses the log, or the file at all, refuses this, and that is the answer.
            if (m_isWriteAhead && askOf(engine(), "PRAGMA journal_mode = DELETE") != "delete")
                throw databaseError(errors::database::locked);
            runOn(engine(), "PRAGMA locking_mode = EXCLUSIVE");
            runOn(engine(), "BEGIN EXCLUSIVE");
            runOn(engine(), "COMMIT"); // the lock stays
            // A log or a journal of another time would be taken for the new file's own.
            if (QFile::exists(m_path + u"-wal"_s) || QFile::exists(m_path + u"-journal"_s))
                throw databaseError(errors::database::locked);
        } catch (const RunTimeError&) {
            giveBack();
            throw;
        }
    }
    ~LockedDatabase() { giveBack(); }
    LockedDatabase(const LockedDatabase&) = delete;
    LockedDatabase& operator=(const LockedDatabase&) = delete;

    [[nodiscard]] sqlite3* engine() const { return m_engine.get(); }
    [[nodiscard]] bool isWriteAhead() const { return m_isWriteAhead; }

private:
    /// With the kind of journal that its owner wants, unless another file stands in its place by now.
    void giveBack() noexcept
    {
        int moved = 0;
        sqlite3_file_control(engine(), "main", SQLITE_FCNTL_HAS_MOVED, &moved);
        const char* const back =
            "PRAGMA synchronous = FULL; PRAGMA locking_mode = NORMAL; SELECT count(*) FROM sqlite_schema; "
            "PRAGMA journal_mode = WAL";
        if (m_isWriteAhead && moved == 0)
            sqlite3_exec(engine(), back, nullptr, nullptr, nullptr);
    }

    QString m_path;
    EnginePatience m_patience;
    Engine m_engine;
    bool m_isWriteAhead = false;
};

/// Looks at every page of a file that is not yet in use.
void requireSound(const QString& path, DatabaseWatch* watch)
{
    EnginePatience patience(watch, EnginePatience::Limit::None);
    const Engine engine = openUnchanging(path);
    patience.watchOver(engine.get());
    if (askOf(engine.get(), "PRAGMA quick_check(1)") != "ok")
        throw RunTimeError(errors::database::locked, u"The compacted copy is damaged."_s);
}

/// Lets the disk begin while we still look at what we wrote.
void startFlush(const QString& path)
{
    const int file = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC);
    if (file < 0)
        return; // the flush that counts comes later
    ::sync_file_range(file, 0, 0, SYNC_FILE_RANGE_WRITE);
    ::close(file);
}

/// Says in the file's header that it is to be used with a write-ahead log. By hand, since the engine would
/// take one up for that, and a kill would leave its files.
void wantWriteAhead(const QString& path)
{
    constexpr off_t versions = 18;
    const int file = ::open(QFile::encodeName(path).constData(), O_WRONLY | O_CLOEXEC);
    const bool isWritten = file >= 0 && ::pwrite(file, "\2\2", 2, versions) == 2;
    const int code = errno;
    if (file >= 0)
        ::close(file);
    if (!isWritten)
        throw errorFromErrno(code);
}

} // namespace

void compactDatabaseFile(const QString& path, DatabaseWatch* watch)
{
    if (path.contains(QChar(u'\0')) || !isRegularFile(path) || QFileInfo(path).size() == 0)
        throw databaseError(errors::database::cannotOpen, path);
    const QString source = QFileInfo(path).canonicalFilePath();
    // Before for what a kill has left, and afterwards for the journal, should the engine not have got rid of
    // it.
    const auto clear = [folder = QFileInfo(source).path()] { clearDatabaseLeftovers(folder); };
    clear();
    const auto cleared = qScopeGuard(clear);
    LockedDatabase old(source, watch);
    FileReplacement fresh(source);
    runOn(old.engine(), "PRAGMA synchronous = OFF"); // flushed once, before it takes the old file's place
    runOn(old.engine(),
          "VACUUM INTO '" + QFile::encodeName(fresh.temporaryPath()).replace('\'', "''") + '\'');
    startFlush(fresh.temporaryPath());
    requireSound(fresh.temporaryPath(), watch);
    if (old.isWriteAhead())
        wantWriteAhead(fresh.temporaryPath());
    fresh.commit();
}

void clearDatabaseLeftovers(const QString& folder)
{
    clearLeftovers(folder);
    // The engine's journal goes when the file that it belonged to has gone.
    static const QRegularExpression journal(u"^(\\.varnhold-[0-9]{16})-journal$"_s);
    const QDir dir(folder);
    const QStringList names = dir.entryList({u".varnhold-*-journal"_s}, QDir::Files | QDir::Hidden);
    for (const QString& name : names) {
        const QRegularExpressionMatch match = journal.match(name);
        if (match.hasMatch() && !dir.exists(match.captured(1)))
            QFile::remove(dir.filePath(name));
    }
}

} // namespace varnhold
