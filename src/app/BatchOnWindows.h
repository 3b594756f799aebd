#pragma once

#include "download/BatchDownload.h"

#include <QObject>
#include <QPointer>
#include <QTimer>

#include <array>

class QWidget;

namespace varnhold {

class frmMain;
class frmMenu;

/// A batch on the program's windows: the two lists of the main window, the entries of mnuLView, and tmr_Auto,
/// which belongs to frmMenu.
class BatchOnWindows : public QObject, public BatchHost
{
    Q_OBJECT

public:
    BatchOnWindows(frmMain& main, frmMenu& menu);

    void onTick(std::function<void()> action);
    void onSearchInTheWay(std::function<void()> action) { m_hideSearch = std::move(action); }
    /// The timer dies before the exit's last wait, which would open new downloads behind the windows that
    /// were just closed.
    void end();

    void lockLists(bool locked) override;
    void showCheckBoxEntries(bool shown) override;
    void fitColumns() override;
    void showStatus(const QString& text) override;
    void bringIntoView(int row) override;
    void hideSearch() override;
    void runTimer(bool on) override;
    [[nodiscard]] bool isEnding() const override { return m_ending; }

protected:
    /// The toolkit hands what a locked list does not take to the window below it; here it goes nowhere.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    frmMain& m_main;
    frmMenu& m_menu;
    QTimer* m_timer;
    QPointer<QWidget> m_focusBefore;
    std::function<void()> m_hideSearch;
    bool m_ending = false;
};

} // namespace varnhold
