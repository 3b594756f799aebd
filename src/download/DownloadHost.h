#pragma once

#include <QString>
#include <QStringList>

namespace varnhold {

class DownloadClient;

/// A download window as the planner sees it. Lives until its unload; a window that was never shown is
/// dropped without an unload.
class DownloadWindow
{
public:
    virtual ~DownloadWindow() = default;
    virtual DownloadClient& client() = 0;
    virtual void place(double leftTwips, double topTwips) = 0;
    virtual void loadSkin() = 0; ///< Load_DL
    virtual void show() = 0;     ///< non-modally, owned by the main window
};

/// What planning asks of the program's windows.
class DownloadHost
{
public:
    virtual ~DownloadHost() = default;
    /// A new window, not shown. Owned by the host; drop() gives back one that was never shown.
    virtual DownloadWindow& makeWindow() = 0;
    virtual void drop(DownloadWindow& window) = 0;
    virtual void showCount(int count) = 0;             ///< frmMain.lblCnt
    [[nodiscard]] virtual double mainLeft() const = 0; ///< frmMain.Left in twips
    [[nodiscard]] virtual double mainTop() const = 0;
    [[nodiscard]] virtual QString gameIdText() const = 0; ///< frmMain.txtGameID
    [[nodiscard]] virtual QString info() const = 0;       ///< frmMain.lblInfo
    [[nodiscard]] virtual int selectedRow() const = 0;    ///< of ListView1, from 1; 0 when none
    /// Paths of the temporary files that download windows hold open now.
    [[nodiscard]] virtual QStringList filesInUse() const = 0;
};

} // namespace varnhold
