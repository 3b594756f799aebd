#pragma once

#include "download/DownloadHost.h"
#include "download/frm_Winsock.h"

#include <QPointer>

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

    DownloadWindow& makeWindow() override;
    void drop(DownloadWindow& window) override;
    void showCount(int count) override;
    [[nodiscard]] double mainLeft() const override;
    [[nodiscard]] double mainTop() const override;
    [[nodiscard]] QString gameIdText() const override;
    [[nodiscard]] QString info() const override;
    [[nodiscard]] int selectedRow() const override;

private:
    frm_Winsock::Services m_services;
    frmMain& m_main;
    std::function<void(const DownloadClient&)> m_onUnload;
    std::vector<QPointer<frm_Winsock>> m_windows;
};

} // namespace varnhold
