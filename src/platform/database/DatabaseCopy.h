#pragma once

#include <QString>

namespace varnhold {

class DatabaseWatch;

/// Copies a file in one step, as FileReplacement replaces one: a database as it stands at one moment, with
/// what waits in its log, as a single file; anything else byte by byte. The source is only read.
///
/// RunTimeError 53 no regular file, 0x80004005 another program is writing to the database, 75, 76, 61 as
/// FileReplacement; the target is then what it was. `watch` may be null; it paints, and sets no limit.
void copyDatabaseFile(const QString& source, const QString& target, DatabaseWatch* watch = nullptr);

} // namespace varnhold
