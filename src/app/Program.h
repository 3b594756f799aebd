#pragma once

#include "app/DownloadWindows.h"
#include "app/GameListOnWindows.h"
#include "app/SkinnedWindows.h"
#include "app/main/frmMain.h"
#include "app/menu/frmMenu.h"
#include "app/settings/frmSettings.h"
#include "app/start/AutoAlert.h"
#include "app/start/ExitPath.h"
#include "app/start/StartUp.h"
#include "appearance/Skin.h"
#include "appearance/SkinPage.h"
#include "appearance/TransForm.h"
#include "covers/CoverCommands.h"
#include "download/DiskFiles.h"
#include "download/DownloadPlanner.h"
#include "gamedb/GameList.h"
#include "gamedb/SharedDatabase.h"
#include "lookup/Lookup.h"
#include "lookup/UpdateList.h"
#include "platform/Clock.h"
#include "platform/MessagePump.h"
#include "platform/NetworkBrowser.h"
#include "platform/NetworkFetch.h"
#include "platform/SecurityAlertWindow.h"
#include "state/ApplicationState.h"
#include "state/Hosts.h"
#include "state/Paths.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"
#include "state/Sounds.h"

#include <QObject>

namespace varnhold {

class FileDialogs;
class MessageBoxes;
class Screen;
class Shell;
class SocketMaker;
class SoundPlayer;

/// The whole program, put together: the one place that knows all windows and hands each what it needs.
class Program : public QObject, private ExitHost
{
    Q_OBJECT

public:
    /// The world outside; a test gives it what it likes.
    struct World
    {
        MessageBoxes& boxes;
        FileDialogs& dialogs;
        Shell& shell;
        SoundPlayer& player;
        SocketMaker& sockets;
        const Screen& screen;
        std::function<bool()> isFirst;
        std::function<bool()> activatePrevious;
        std::function<Hosts()> findHosts;
        std::function<void()> endProcess; ///< at once, exit code 0
    };

    Program(const Paths& paths, World world);
    ~Program() override;

    /// Loads; false when the program ended meanwhile and its event loop is not to run.
    bool start();
    /// Brings the main window to the front, as a second start asks for.
    void comeToFront();

    [[nodiscard]] frmMain& mainWindow() { return m_main; }
    [[nodiscard]] frmSettings& settingsWindow() { return m_settingsWindow; }
    [[nodiscard]] frmMenu& menus() { return m_menu; }

private:
    void connectMainWindow();
    void connectMenus();
    void connectDatabase();
    void connectSkin();
    void openSettings();
    void openWeb();
    void showRaw();

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
    MonotonicClock m_clock;
    DiskFiles m_files;
    UpdateList m_list;
    std::unique_ptr<frmSplash> m_splash; ///< before the windows, so that it is up while they are built
    SkinPage m_skinPage;
    frmMenu m_menu;
    frmMain m_main;
    CoverCommands m_covers;
    frmSettings m_settingsWindow;
    SkinnedWindows m_skinnedWindows;
    clsTransForm m_transForm;
    Skin m_skin;
    SecurityAlertWindow m_alert;
    AutoAlert m_autoAlert;
    NetworkBrowser m_browser;
    NetworkFetch m_fetch; ///< files of any kind, for whoever waits for one
    Lookup m_lookup;
    DownloadWindows m_downloads;
    DownloadPlanner m_planner;
    SharedDatabase m_database;
    GameListOnWindows m_gameListView;
    GameList m_gameList;
    StartUp m_startUp;
    ExitPath m_exitPath;
};

} // namespace varnhold
