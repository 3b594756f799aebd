#pragma once

namespace varnhold {

class FileDialogs;
class GameList;
class MessageBoxes;
class Settings;
class Sounds;

/// The Database page's command for another file: chosen in a dialog and kept in the settings, then loaded if
/// the user wants. A cancelled dialog changes nothing.
void btnOpen_Click(Settings& settings, FileDialogs& dialogs, Sounds& sounds, MessageBoxes& boxes,
                   GameList& games);

} // namespace varnhold
