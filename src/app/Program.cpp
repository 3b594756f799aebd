#include "app/Program.h"

#include "appearance/ButtonSigns.h"
#include "download/SkinDownloads.h"
#include "gamedb/ChooseDatabase.h"
#include "gamedb/EntryDetails.h"
#include "gamedb/UpdateLinks.h"
#include "lookup/UpdateServers.h"
#include "platform/Shell.h"
#include "state/HostAccess.h"

#include <QApplication>
#include <QLabel>

#include <utility>

namespace varnhold {

namespace {

/// The splash, painted already; none for a start that is to say "Already Open." first.
std::unique_ptr<frmSplash> splashOf(const Program::World& world, SettingsFile& file, const Paths& paths,
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
      m_menu(m_sounds),
      m_main({m_state, m_settings, m_list, m_world.boxes, m_sounds, m_world.screen, m_paths}),
      m_covers(m_settings, m_world.shell, m_world.boxes),
      m_settingsWindow(
          {m_state, m_settings, m_sounds, m_world.dialogs, m_pump, m_world.screen, m_paths, m_skinPage}),
      m_skinnedWindows(m_main, m_settingsWindow, m_menu, m_splash),
      m_transForm(m_world.boxes),
      m_skin({m_state, m_settings, m_file, m_paths, m_skinPage, m_world.boxes, m_world.dialogs, m_sounds,
              m_pump, m_transForm, m_skinnedWindows}),
      m_autoAlert(m_alert, m_settings,
                  {.pressYes = [this] { return m_alert.pressYes(); },
                   .caption = [this] { return m_main.caption(); },
                   .setCaption = [this](const QString& text) { m_main.setCaption(text); }}),
      m_browser(m_autoAlert, [this](const QString& authority) { return tlsOf(m_hosts, authority); }),
      m_fetch(
          m_pump, [this](const QString& authority) { return tlsOf(m_hosts, authority); },
          [this](const QString& url) { return reachableUrl(m_hosts, url); }),
      m_lookup({m_state, m_settings, m_hosts, m_list, m_main, m_browser, m_sounds, m_world.boxes, m_pump}),
      m_downloads({.client = {m_world.sockets, m_files, m_clock, m_pump, m_world.boxes,
                              QCoreApplication::applicationName()},
                   .state = m_state,
                   .settings = m_settings,
                   .sounds = m_sounds,
                   .screen = m_world.screen,
                   .skin =
                       [this](QWidget& window) {
                           m_skin.Load_DL(window);
                           drawButtonSigns(window);
                       }},
                  m_main),
      m_planner({m_state, m_settings, m_list, m_downloads, m_files, m_world.dialogs, m_world.boxes, m_sounds,
                 QCoreApplication::applicationName()}),
      m_database(m_settings, m_world.boxes),
      m_gameListView({m_main, m_menu, m_settingsWindow, m_list, m_splash}),
      m_gameList({m_database, m_state, m_settings, m_gameListView, m_sounds, m_world.boxes}),
      m_startUp(
          {.state = m_state,
           .settings = m_settings,
           .file = m_file,
           .paths = m_paths,
           .hosts = m_hosts,
           .boxes = m_world.boxes,
           .sounds = m_sounds,
           .pump = m_pump,
           .screen = m_world.screen,
           .browser = m_browser,
           .certificates = m_autoAlert.watch(),
           .main = m_main,
           .settingsWindow = m_settingsWindow,
           .splash = m_splash,
           .dressSplash = [this](QWidget& splash) { dressSplash(splash, m_file, m_paths, m_state); },
           .applySkin = [this] { m_skin.ApplySkin(); },
           .loadGameList = [this] { m_gameList.loadGameListAtStartup(); },
           .shape = [this](QWidget& window) { m_skin.shape(window); },
           .setOpacity = [this](OpacityOf which, int value) { m_skinnedWindows.setOpacity(which, value); },
           .isFirst = m_world.isFirst,
           .activatePrevious = m_world.activatePrevious,
           .findHosts = m_world.findHosts}),
      m_exitPath({m_settings, m_world.boxes, m_sounds, m_pump}, *this)
{
    connectMainWindow();
    connectMenus();
    connectDatabase();
    connectSkin();
    m_downloads.onUnload([this](const DownloadClient& client) { m_planner.windowUnloaded(client); });
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
    connect(&m_main, &frmMain::fetchRequested, &m_lookup, &Lookup::btnFetch_Click);
    connect(&m_main, &frmMain::gameRowDoubleClicked, &m_lookup, &Lookup::MorphListBox1_DblClick);
    // Later than the drop itself, since the program that drags waits for its end, and a dialog may follow.
    connect(
        &m_main, &frmMain::textDropped, this,
        [this](const QString& text) {
            m_lookup.dropText(text, [this](const QString& url) { m_planner.DownloadUrl(url); });
        },
        Qt::QueuedConnection);
    connect(&m_main, &frmMain::updateRowActivated, this, [this] { m_planner.ListView1_DblClick(); });
    connect(&m_main, &frmMain::mnuMenuWanted, &m_menu, &frmMenu::popUp_mnuMenu);
    connect(&m_main, &frmMain::mnuLBoxWanted, &m_menu, &frmMenu::popUp_mnuLBox);
    connect(&m_main, &frmMain::mnuImageWanted, &m_menu, &frmMenu::popUp_mnuImage);
    connect(&m_main, &frmMain::mnuLViewWanted, &m_menu, &frmMenu::popUp_mnuLView);
    connect(&m_main, &frmMain::settingsRequested, this, [this] {
        m_sounds.play(Sound::Menu);
        openSettings();
    });
    connect(&m_main, &frmMain::exitRequested, this, [this] { m_exitPath.run(); });
    connect(&m_main, &frmMain::closedByDesktop, this, [this] { m_world.endProcess(); });
    m_main.setTipTitle([this] { return m_lookup.title(); });
    connect(&m_settingsWindow, &frmSettings::autoSslReleased, this, [this] { m_autoAlert.watch().start(); });
    connect(&m_browser, &BrowserControl::statusTextChanged, this, [this] {
        if (m_main.showsPage())
            m_main.setPage(m_browser.bodyText());
    });
}

void Program::connectMenus()
{
    connect(&m_menu, &frmMenu::mnuSettings_Click, this, &Program::openSettings);
    connect(&m_menu, &frmMenu::mnuWebOpen_Click, this, &Program::openWeb);
    connect(&m_menu, &frmMenu::mnuRaw_Click, this, &Program::showRaw);
    connect(&m_menu, &frmMenu::mnuExit_Click, this, [this] { m_exitPath.run(); });
    connect(&m_menu, &frmMenu::mnuDLoad_Click, this, [this] { m_planner.mnuDLoad_Click(); });
    connect(&m_menu, &frmMenu::mnuImageView_Click, this,
            [this] { m_covers.mnuImageView_Click(m_main.gameIdText()); });
    connect(&m_menu, &frmMenu::mnuImageExplore_Click, this, [this] { m_covers.mnuImageExplore_Click(); });
    connect(&m_menu, &frmMenu::mnuImageOpen_Click, this, [this] { m_covers.mnuImageOpen_Click(); });
}

void Program::connectDatabase()
{
    const auto loadEntry = [this] { loadGameDetails(m_database, m_settings, m_main); };
    m_main.setEntryLoader(loadEntry);
    m_lookup.setEntryLoader(loadEntry);
    m_lookup.setLinkSaver([this] { saveUpdateLinks(m_database, m_list, m_main); });
    connect(&m_main, &frmMain::linkActivated, this,
            [this](const QString& link) { m_world.shell.open(link); });
    connect(&m_main, &frmMain::refreshRequested, this, [this] { m_gameList.CmdRefresh_Click(); });
    connect(&m_main, &frmMain::clearRequested, this, [this] { m_gameList.cmdClear_Click(); });
    connect(&m_menu, &frmMenu::mnuLBIcons_Click, this, [this] { m_gameList.mnuLBIcons_Click(); });
    connect(&m_settingsWindow, &frmSettings::btnOpen_Click, this,
            [this] { btnOpen_Click(m_settings, m_world.dialogs, m_sounds, m_world.boxes, m_gameList); });
}

void Program::connectSkin()
{
    drawButtonSigns(m_main); // buttons without faces bear them too
    drawButtonSigns(m_settingsWindow);
    m_main.setLayoutPictures([this](int layout) { return m_skin.loadLayout(layout); });
    m_main.setBlankPicture([this] { return m_menu.imgBlank().pixmap(); });
    connect(&m_main, &frmMain::layoutChanged, this, [this] {
        m_skin.shape(m_main);
        drawButtonSigns(m_main);
    });
    connect(&m_settingsWindow, &frmSettings::skinMenuWanted, &m_menu, &frmMenu::popUp_mnuSkins);
    connect(&m_settingsWindow, &frmSettings::opacityMoved, this, [this](OpacityOf which, int value) {
        if (which == OpacityOf::Download)
            m_downloads.followOpacity();
        else
            m_skinnedWindows.setOpacity(which, value);
    });
    connect(&m_menu, &frmMenu::mnuSkinDL_Click, this,
            [this] { mnuSkinDL_Click(m_sounds, m_world.shell, m_hosts); });
    connect(&m_menu, &frmMenu::mnuSkin_Refresh_Click, this, [this] { m_skin.mnuSkin_Refresh_Click(); });
    connect(&m_menu, &frmMenu::mnuSkin_Path_Click, this, [this] { m_skin.mnuSkin_Path_Click(); });
    connect(&m_menu, &frmMenu::mnuSkin_Click, this, [this](int index) { m_skin.mnuSkin_Click(index); });
}

void Program::openSettings()
{
    constexpr QPoint offset(23, 8); // 340 and 120 twips
    m_settingsWindow.open(m_main.pos() + offset);
}

void Program::openWeb()
{
    const QString url = Document_Url(m_hosts, m_settings.server(), m_main.gameIdText().toUpper());
    if (!url.isEmpty())
        m_world.shell.open(url);
}

void Program::showRaw()
{
    m_main.mnuRaw();
    m_main.setPage(m_main.showsPage() ? m_browser.bodyText() : std::nullopt);
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
