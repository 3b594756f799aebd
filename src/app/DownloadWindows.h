#pragma once

#include "download/DownloadHost.h"
#include "download/frm_Winsock.h"

#include <QPointer>
#include <QTimer>

#include <vector>

namespace varnhold {

class frmMain;

/// Makes the download windows and tells the planner about the main window.
class DownloadWindows : public DownloadHost
{
public:
    DownloadWindows(const frm_Winsock::Services& services, frmMain& owner);

    /// What runs when a window was unloaded.
    void onUnload(std::function<void(const DownloadClient&)> action) { m_onUnload = std::move(action); }
    /// Closes all windows as their own button does.
    void unloadAll();
    /// Gives the open windows the opacity that is set, one each time the program is idle, so that the slider
    /// which sets it never waits for them.
    void followOpacity();

    DownloadWindow& makeWindow() override;
    void drop(DownloadWindow& window) override;
    void showCount(int count) override;
    [[nodiscard]] double mainLeft() const override;
    [[nodiscard]] double mainTop() const override;
    [[nodiscard]] QString gameIdText() const override;
    [[nodiscard]] QString info() const override;
    [[nodiscard]] int selectedRow() const override;
    [[nodiscard]] QStringList filesInUse() const override;

private:
    frm_Winsock::Services m_services;
    frmMain& m_main;
    std::function<void(const DownloadClient&)> m_onUnload;
    std::vector<QPointer<frm_Winsock>> m_windows;
    std::size_t m_nextFollower = 0;
    QTimer m_followLater;
};

} // namespace varnhold
