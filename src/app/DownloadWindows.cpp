#include "app/DownloadWindows.h"

#include "app/main/frmMain.h"
#include "platform/Twips.h"
#include "state/Settings.h"

namespace varnhold {

DownloadWindows::DownloadWindows(const frm_Winsock::Services& services, frmMain& owner)
    : m_services(services), m_main(owner)
{
    QObject::connect(&m_followLater, &QTimer::timeout, &m_followLater, [this] {
        if (m_nextFollower >= m_windows.size())
            m_followLater.stop();
        else if (frm_Winsock* const window = m_windows[m_nextFollower++])
            SetOpacity(m_services.settings.opacity(OpacityOf::Download), *window);
    });
}

DownloadWindow& DownloadWindows::makeWindow()
{
    std::erase_if(m_windows, [](const QPointer<frm_Winsock>& window) { return window.isNull(); });
    auto* window = new frm_Winsock(m_services, &m_main);
    m_windows.emplace_back(window);
    QObject::connect(window, &frm_Winsock::unloaded, &m_main, [this, window] {
        if (m_onUnload)
            m_onUnload(window->client());
    });
    return *window;
}

void DownloadWindows::drop(DownloadWindow& window)
{
    // It was never shown, so it ends without a word: no count, no slot, no icon.
    auto& shaped = dynamic_cast<frm_Winsock&>(window);
    shaped.disconnect(&m_main);
    shaped.deleteLater();
}

void DownloadWindows::unloadAll()
{
    const std::vector<QPointer<frm_Winsock>> windows = m_windows;
    for (auto window = windows.rbegin(); window != windows.rend(); ++window) {
        if (*window && (*window)->isVisible())
            (*window)->unload();
    }
}

void DownloadWindows::followOpacity()
{
    m_nextFollower = 0;
    m_followLater.start(0);
}

void DownloadWindows::showCount(int count)
{
    m_main.showCount(count);
}

double DownloadWindows::mainLeft() const
{
    return twipsFromPixels(m_main.x());
}

double DownloadWindows::mainTop() const
{
    return twipsFromPixels(m_main.y());
}

QString DownloadWindows::gameIdText() const
{
    return m_main.gameIdText();
}

QString DownloadWindows::info() const
{
    return m_main.info();
}

int DownloadWindows::selectedRow() const
{
    return m_main.selectedUpdateRow();
}

QStringList DownloadWindows::filesInUse() const
{
    QStringList paths;
    for (const QPointer<frm_Winsock>& window : m_windows) {
        const QString path = window ? window->client().openPath() : QString();
        if (!path.isEmpty())
            paths.append(path);
    }
    return paths;
}

} // namespace varnhold
