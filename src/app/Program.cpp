#include "app/Program.h"

#include "state/HostAccess.h"
#include "tools/VersionCheck.h"

#include <QApplication>

#include <utility>

namespace varnhold {

namespace {

/// The splash, painted already; none for a start that is to say "Already Open." first.
std::unique_ptr<frmSplash> splashOf(const World& world, SettingsFile& file, const Paths& paths,
                                    ApplicationState& state)
{
    if (!world.isFirst())
        return nullptr;
    auto splash = std::make_unique<frmSplash>();
    dressSplash(*splash, file, paths, state);
    splash->show();
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    return splash;
}

} // namespace

Program::Program(const Paths& paths, World world)
    : m_paths(paths),
      m_world(std::move(world)),
      m_file(m_paths, m_state),
      m_settings(m_file),
      m_sounds(m_settings, m_world.player, m_state),
      m_splash(splashOf(m_world, m_file, m_paths, m_state)),
      m_fetch(
          m_pump, [this](const QString& authority) { return tlsOf(m_hosts, authority); },
          [this](const QString& url) { return reachableUrl(m_hosts, url); }),
      m_menu(m_commands, m_sounds),
      m_main({m_state, m_settings, m_list, m_world.boxes, m_sounds, m_world.screen, m_paths}),
      m_settingsWindow({m_state, m_settings, m_sounds, m_world.screen}),
      m_common{.world = m_world,
               .paths = m_paths,
               .hosts = m_hosts,
               .state = m_state,
               .file = m_file,
               .settings = m_settings,
               .sounds = m_sounds,
               .pump = m_pump,
               .fetch = m_fetch,
               .list = m_list,
               .splash = m_splash,
               .commands = m_commands,
               .menu = m_menu,
               .main = m_main,
               .settingsWindow = m_settingsWindow},
      m_appearance(m_common),
      m_lookups(m_common),
      m_downloads(m_common, m_lookups.lookup(), m_appearance),
      m_renamer(m_common, {.filesInUse = [this] { return m_downloads.filesInUse(); },
                           .batchFolder = [this] { return m_downloads.batchFolder(); },
                           .dress = [this](QWidget& window) { m_appearance.dressRenamer(window); }}),
      m_database(m_common, m_lookups.lookup(), m_appearance),
      m_report(m_common, m_lookups.lookup(), m_appearance, m_downloads.planner(), m_database.database()),
      m_editor(m_common, m_database, m_appearance, m_report),
      m_search(m_common, m_lookups.lookup(), m_database, m_downloads, m_report, m_appearance),
      m_covers(m_common, m_appearance),
      m_thumbs(m_common, m_lookups.lookup(), [this](QWidget& window) { m_appearance.dressThumbs(window); }),
      m_settingsPages(m_common, m_lookups.certificates()),
      m_startUp({.state = m_state,
                 .settings = m_settings,
                 .file = m_file,
                 .paths = m_paths,
                 .hosts = m_hosts,
                 .boxes = m_world.boxes,
                 .sounds = m_sounds,
                 .pump = m_pump,
                 .screen = m_world.screen,
                 .browser = m_lookups.browser(),
                 .certificates = m_lookups.certificates(),
                 .main = m_main,
                 .settingsWindow = m_settingsWindow,
                 .splash = m_splash,
                 .dressSplash = [this](QWidget& splash) { dressSplash(splash, m_file, m_paths, m_state); },
                 .applySkin = [this] { m_appearance.applySkin(); },
                 .loadGameList = [this] { m_database.gameList().loadGameListAtStartup(); },
                 .shape = [this](QWidget& window) { m_appearance.shape(window); },
                 .setOpacity = [this](OpacityOf which, int value) { m_appearance.setOpacity(which, value); },
                 .loadCoverServers = [this] { m_covers.loadServers(); },
                 .isFirst = m_world.isFirst,
                 .activatePrevious = m_world.activatePrevious,
                 .findHosts = m_world.findHosts,
                 .checkVersion =
                     [this] {
                         return Version_Check(m_fetch, m_hosts, m_paths, m_world.boxes,
                                              QCoreApplication::applicationName())
                             .caption;
                     }}),
      m_exitPath({m_settings, m_world.boxes, m_sounds, m_pump}, *this)
{
    connectMainWindow();
    connect(&m_appearance, &AppearanceOwner::opacityMoved, this, [this](OpacityOf which, int value) {
        if (which == OpacityOf::Main)
            m_renamer.followOpacity(value);
    });
    m_startUp.onAbandoned([this] { endProgram(); });
}

Program::~Program() = default;

bool Program::start()
{
    return m_startUp.run() == StartUp::Outcome::Running;
}

void Program::comeToFront()
{
    m_main.setWindowState(m_main.windowState() & ~Qt::WindowMinimized);
    m_main.show();
    m_main.raise();
    m_main.activateWindow();
}

void Program::connectMainWindow()
{
    const auto popUp = [this](void (frmMain::*wanted)(const QPoint&), const char* menu,
                              frmMenu::WithSound sound) {
        connect(&m_main, wanted, &m_menu,
                [this, menu, sound](const QPoint& place) { m_menu.popUp(menu, place, sound); });
    };
    popUp(&frmMain::mnuMenuWanted, "mnuMenu", frmMenu::WithSound::Menu);
    popUp(&frmMain::mnuLBoxWanted, "mnuLBox", frmMenu::WithSound::Menu);
    popUp(&frmMain::mnuImageWanted, "mnuImage", frmMenu::WithSound::Menu);
    popUp(&frmMain::mnuLViewWanted, "mnuLView", frmMenu::WithSound::No); // the list sounds at the release
    connect(&m_main, &frmMain::exitRequested, this, [this] { m_exitPath.run(); });
    connect(&m_main, &frmMain::closedByDesktop, this, [this] { m_world.endProcess(); });
    m_commands.bind("mnuExit", [this] { m_exitPath.run(); });
}

void Program::enableExitButton()
{
    m_main.enableExitButton();
}

void Program::setFadeOpacity(int value)
{
    SetFadeOpacity(value, m_main);
}

void Program::unloadOtherWindows()
{
    m_downloads.unloadAll();
    m_report.unload();
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window != &m_main)
            window->hide();
    }
}

void Program::unloadMainWindow()
{
    m_main.hide();
}

void Program::endProgram()
{
    m_pump.end();
    QCoreApplication::quit();
}

} // namespace varnhold
