#pragma once

#include "app/AppearanceOwner.h"
#include "app/CoverOwner.h"
#include "app/DatabaseOwner.h"
#include "app/DownloadOwner.h"
#include "app/EditorOwner.h"
#include "app/LookupOwner.h"
#include "app/RenamerOwner.h"
#include "app/ReportOwner.h"
#include "app/SearchOwner.h"
#include "app/SettingsOwner.h"
#include "app/ThumbsOwner.h"
#include "app/World.h"
#include "app/main/frmMain.h"
#include "app/menu/MenuCommands.h"
#include "app/menu/frmMenu.h"
#include "app/settings/frmSettings.h"
#include "app/start/ExitPath.h"
#include "app/start/StartUp.h"
#include "lookup/UpdateList.h"
#include "platform/MessagePump.h"
#include "platform/NetworkFetch.h"
#include "state/ApplicationState.h"
#include "state/Hosts.h"
#include "state/Paths.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"
#include "state/Sounds.h"

#include <QObject>

namespace varnhold {

/// The whole program, put together: ground, windows that stay, and one owner for each subsystem.
///
/// A new window comes with its subsystem's owner, or brings one: a class beside this one that is made from
/// `Common` and the owners that it leans on, holds the window, connects what it hears and binds its menu
/// entries under their names. Here that is one include, one member and one line in the constructor. A page of
/// the settings window is added by its owner, too.
class Program : public QObject, private ExitHost
{
    Q_OBJECT

public:
    Program(const Paths& paths, World world);
    ~Program() override;

    /// Loads; false when the program ended meanwhile and its event loop is not to run.
    bool start();
    /// Brings the main window to the front, as a second start asks for.
    void comeToFront();

    [[nodiscard]] frmMain& mainWindow() { return m_main; }
    [[nodiscard]] frmSettings& settingsWindow() { return m_settingsWindow; }
    [[nodiscard]] frmMenu& menus() { return m_menu; }
    [[nodiscard]] MenuCommands& commands() { return m_commands; }

private:
    void connectMainWindow();

    void enableExitButton() override;
    void setFadeOpacity(int value) override;
    void unloadOtherWindows() override;
    void unloadMainWindow() override;
    void endProgram() override;

    Paths m_paths;
    World m_world;
    Hosts m_hosts;
    ApplicationState m_state;
    SettingsFile m_file;
    Settings m_settings;
    Sounds m_sounds;
    EventLoopPump m_pump;
    UpdateList m_list;
    std::unique_ptr<frmSplash> m_splash; ///< before the windows, so that it is up while they are built
    NetworkFetch m_fetch;                ///< files of any kind, for whoever waits for one
    MenuCommands m_commands;
    frmMenu m_menu;
    frmMain m_main;
    frmSettings m_settingsWindow;
    Common m_common;
    AppearanceOwner m_appearance;
    LookupOwner m_lookups;
    DownloadOwner m_downloads;
    RenamerOwner m_renamer;
    DatabaseOwner m_database;
    ReportOwner m_report;
    EditorOwner m_editor;
    SearchOwner m_search;
    CoverOwner m_covers;
    ThumbsOwner m_thumbs;
    SettingsOwner m_settingsPages;
    StartUp m_startUp;
    ExitPath m_exitPath;
};

} // namespace varnhold
