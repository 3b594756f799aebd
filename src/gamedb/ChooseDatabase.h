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

/// The menu's command: the same choice, loaded at once. Tables of older names stay as they are, and so does
/// lblFSize.
void mnuOpen_Click(Settings& settings, FileDialogs& dialogs, Sounds& sounds, GameList& games);

} // namespace varnhold
