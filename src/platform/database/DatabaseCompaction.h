#pragma once

#include <QString>

namespace varnhold {

class DatabaseWatch;

/// Writes a database anew without its holes, in the place of the old file, links followed. The new file is
/// made beside it under a name of our own and takes the old one's name in one step: after a failure or a kill
/// at any moment the old file or the new one is there, whole. Other programs are locked out until then, and
/// one that still has the old file open cannot write to it. Mode, owner and kind of journal stay.
///
/// RunTimeError: 0x80040E4D no database, 0x80004005 locked, read-only, damaged or no room; 75, 76, 61 as
/// FileReplacement. `watch` may be null; it paints, and sets no limit.
void compactDatabaseFile(const QString& path, DatabaseWatch* watch = nullptr);

/// Removes what a kill has left of a compaction or a copy in this folder. Never throws.
void clearDatabaseLeftovers(const QString& folder);

} // namespace varnhold
