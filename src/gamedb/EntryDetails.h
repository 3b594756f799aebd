#pragma once

#include <QString>

#include <optional>

namespace varnhold {

class CoverFolder;
class EntryView;
class Settings;
class SharedDatabase;

/// Loads the notes and the picture of the game in txtGameID. The stored picture wins over the cover file,
/// that over imgBlank. Failures are reported.
void loadGameDetails(SharedDatabase& database, const Settings& settings, const CoverFolder& covers,
                     EntryView& view);

/// The notes of a game in the current table, rich text; empty where it has none. No value: a failure, which
/// is reported.
std::optional<QString> readGameNotes(SharedDatabase& database, const Settings& settings,
                                     const QString& gameId);

} // namespace varnhold
