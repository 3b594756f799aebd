#pragma once

#include "app/World.h"

#include <memory>

namespace varnhold {

class FileFetch;
class MenuCommands;
class MessagePump;
class Settings;
class SettingsFile;
class Sounds;
class UpdateList;
class frmMain;
class frmMenu;
class frmSettings;
class frmSplash;
struct ApplicationState;
struct Paths;

/// What the owners share: the world, the state, and the windows that stay for the program's life. Each hands
/// on to its parts what they need, and no more.
struct Common
{
    const World& world;
    const Paths& paths;
    const Hosts& hosts;
    ApplicationState& state;
    SettingsFile& file;
    Settings& settings;
    Sounds& sounds;
    MessagePump& pump;
    FileFetch& fetch;
    UpdateList& list;
    std::unique_ptr<frmSplash>& splash; ///< null once the program has started
    MenuCommands& commands;
    frmMenu& menu;
    frmMain& main;
    frmSettings& settingsWindow;
};

} // namespace varnhold
