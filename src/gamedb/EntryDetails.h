#pragma once

namespace varnhold {

class EntryView;
class Settings;
class SharedDatabase;

/// Loads the notes and the picture of the game in txtGameID. The stored picture wins over the cover file,
/// that over imgBlank. Failures are reported.
void loadGameDetails(SharedDatabase& database, const Settings& settings, EntryView& view);

} // namespace varnhold
