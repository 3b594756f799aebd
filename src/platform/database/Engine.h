#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

struct sqlite3;

namespace varnhold {

struct EngineCloser
{
    void operator()(sqlite3* engine) const;
};
/// One file open in the engine; null never.
using Engine = std::unique_ptr<sqlite3, EngineCloser>;

/// Opens a file that is there, with the limits that files from anywhere want. What went wrong, if anything,
/// is in the engine's own error code: nothing has been read of the file yet. RunTimeError 7 without memory.
Engine openEngine(const QString& path);
/// The same for reading, by who knows that nobody writes: without locks and with no file beside it.
Engine openUnchanging(const QString& path);

/// Runs a statement to its end. RunTimeError by the engine's result.
void runOn(sqlite3* engine, const QByteArray& sql);
/// The same; the first column of the first row, or nothing.
QByteArray askOf(sqlite3* engine, const QByteArray& sql);

/// How long another program's lock is waited for: the windows stand still meanwhile.
inline constexpr int lockPatience = 250; // ms

} // namespace varnhold
