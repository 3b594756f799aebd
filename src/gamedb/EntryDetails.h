#pragma once

namespace varnhold {

class CoverFolder;
class EntryView;
class Settings;
class SharedDatabase;

/// Loads the notes and the picture of the game in txtGameID. The stored picture wins over the cover file,
/// that over imgBlank. Failures are reported.
void loadGameDetails(SharedDatabase& database, const Settings& settings, const CoverFolder& covers,
                     EntryView& view);

} // namespace varnhold
