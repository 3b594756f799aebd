#include "app/start/StartUp.h"

#include "app/main/MainLayout.h"
#include "app/main/frmMain.h"
#include "app/settings/frmSettings.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "lookup/CertificateWatch.h"
#include "platform/BrowserControl.h"
#include "platform/MessageBoxes.h"
#include "platform/MessagePump.h"
#include "platform/RunTimeError.h"
#include "platform/Screen.h"
#include "platform/Twips.h"
#include "platform/Wayland.h"
#include "state/ApplicationState.h"
#include "state/ErrorReport.h"
#include "state/Hosts.h"
#include "state/Paths.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"
#include "state/Sounds.h"

#include <QCoreApplication>

#include <QTimer>

#include <algorithm>
#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// The program ends while it loads.
struct Ending
{
};

} // namespace

StartUp::StartUp(Services services) : m_services(std::move(services)) {}

StartUp::~StartUp() = default;

StartUp::Outcome StartUp::run()
{
    if (yieldsToPrevious())
        return Outcome::Ended;
    try {
        silently([this] { load(); });
    } catch (const Ending&) {
        return Outcome::Ended;
    }
    m_services.main.show();
    // Without a skin or a database the settings ask for one.
    if (!m_services.settingsWindow.followOwner())
        m_services.main.activateWindow();
    return Outcome::Running;
}

bool StartUp::yieldsToPrevious()
{
    if (m_services.isFirst())
        return false;
    m_services.boxes.show({.text = u"Already Open."_s,
                           .title = m_services.main.windowTitle(),
                           .icon = BoxIcon::Critical,
                           .buttons = BoxButtons::Ok});
    // Where the other one does not answer, this start goes on.
    return m_services.activatePrevious();
}

void StartUp::load()
{
    m_services.browser.navigate(u"about:blank"_s);
    showSplash();
    SetTopMost(m_services.main);
    m_services.state.workArea = m_services.screen.workArea();
    placeMainWindow();
    pumpOnce();
    findHosts();
    checkVersion();

    showStatus(u"Loading: Skins"_s);
    m_services.applySkin();
    m_services.file.clearLeftovers();
    pumpOnce();
    showStatus(u"Loading: Settings"_s);
    const QString listUrl = u"http://%1/Varnhold/ps3gameids.txt"_s.arg(m_services.hosts.update.authority);
    loadSettings(m_services.settings, m_services.file, m_services.state, m_services.paths, listUrl, *this);
    m_services.settingsWindow.refresh();
    m_services.main.createToolTip();
    m_services.main.games().setRedrawFlag(true);
    showStatus(u"Loading: List"_s);
    m_services.loadGameList();
    if (m_services.splash->isAbandoned())
        throw Ending();
    showStatus(u"Loading: Form Transparency"_s);
    m_services.shape(m_services.main);
    m_services.sounds.play(Sound::Open);
    ClearTopMost(m_services.main);
    m_services.main.show();
    leaveSplash();
}

void StartUp::checkVersion()
{
    if (!m_services.checkVersion)
        return;
    const QString news = m_services.checkVersion();
    if (!m_services.splash || m_services.splash->isAbandoned())
        throw Ending();
    m_services.splash->setNews(news);
    pumpOnce();
}

/// News are to be read: that splash stays until two seconds after it came up, while the main window is in use
/// already. Its double click then ends nothing but itself.
void StartUp::leaveSplash()
{
    if (!m_services.splash->hasNews()) {
        m_services.splash.reset();
        return;
    }
    constexpr qint64 longEnough = 2000;
    m_news = std::move(m_services.splash);
    m_news->disconnect();
    const auto close = [this] {
        if (m_news)
            m_news.release()->deleteLater();
    };
    QObject::connect(m_news.get(), &frmSplash::abandoned, m_news.get(), close);
    QTimer::singleShot(std::max<qint64>(0, longEnough - m_sinceSplash.elapsed()), m_news.get(), close);
}

void StartUp::showSplash()
{
    if (!m_services.splash) {
        m_services.splash = std::make_unique<frmSplash>();
        m_services.dressSplash(*m_services.splash);
        m_services.splash->show();
    }
    m_sinceSplash.start();
    frmSplash* splash = m_services.splash.get();
    QObject::connect(splash, &frmSplash::abandoned, splash, [this, splash] {
        splash->hide();
        if (m_onAbandoned)
            m_onAbandoned();
    });
}

void StartUp::findHosts()
{
    // Without hosts the program still starts: it says so, and lookups fail with a text of their own.
    try {
        m_services.hosts = m_services.findHosts();
    } catch (const RunTimeError& error) {
        m_services.boxes.show({.text = error.description(),
                               .title = m_services.main.windowTitle(),
                               .icon = BoxIcon::Exclamation,
                               .buttons = BoxButtons::Ok});
    }
}

void StartUp::placeMainWindow()
{
    // The normal size counts, since the enlarged layout is applied later; this is meant.
    const QSize size = MainLayout::normal().window;
    const WorkArea& area = m_services.state.workArea;
    const StoredPosition stored = readPosition(m_services.file, m_services.state);
    const double left = stored.left.value_or(twipsFromPixels(area.right - size.width()));
    const double top = stored.top.value_or(twipsFromPixels(area.bottom - size.height()));
    if (!onWayland())
        m_services.main.move(
            placeAtStart({pixelsFromTwips(left), pixelsFromTwips(top)}, false, m_services.screen.screens()));
}

void StartUp::pumpOnce()
{
    if (!m_services.pump.pump())
        throw Ending();
}

void StartUp::showStatus(const QString& text)
{
    m_services.splash->setStatus(text);
}

void StartUp::showMessage(const QString& text)
{
    m_services.splash->setMessage(text);
}

void StartUp::startCertificateWatch()
{
    m_services.certificates.start();
}

void StartUp::setBarMainTop(double twips)
{
    m_services.main.setBarMainTop(twips);
    m_services.main.Splitbar_Main();
}

void StartUp::setBarLeftTop(double twips)
{
    m_services.main.setBarLeftTop(twips);
    m_services.main.Splitbar_Left();
}

void StartUp::applyOpacity(OpacityOf window, int value)
{
    m_services.setOpacity(window, value);
}

void StartUp::loadCoverServers()
{
    m_services.loadCoverServers();
}

} // namespace varnhold
