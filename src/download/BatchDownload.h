#pragma once

#include <QString>

#include <functional>

namespace varnhold {

class DownloadFiles;
class DownloadHost;
class DownloadPlanner;
class FileDialogs;
class MessageBoxes;
class Settings;
class Sounds;
class UpdateList;
struct ApplicationState;
struct Paths;

/// What a batch asks of the program's windows.
class BatchHost
{
public:
    virtual ~BatchHost() = default;
    /// The update list and the game list; locked, they take neither mouse nor key.
    virtual void lockLists(bool locked) = 0;
    virtual void showCheckBoxEntries(bool shown) = 0; ///< of mnuLView, the tick of mnuLVCheckBxs included
    virtual void fitColumns() = 0;                    ///< each column to its header's or its texts' width
    virtual void showStatus(const QString& text) = 0; ///< frmMain.lblStatus
    virtual void bringIntoView(int row) = 0;          ///< of the update list, from 1
    virtual void hideSearch() = 0;                    ///< frmSearch, where it is open
    virtual void runTimer(bool on) = 0;               ///< tmr_Auto, 1000 ms
    [[nodiscard]] virtual bool isEnding() const = 0;  ///< the program is on its way out
};

/// The check boxes of the update list and the batch that works them off: a checked row is one that is still
/// to start, and there is no other queue. The only download route that waits for the limit.
class BatchDownload
{
public:
    struct Services
    {
        ApplicationState& state;
        const Settings& settings;
        UpdateList& list;
        DownloadHost& windows;
        BatchHost& host;
        DownloadPlanner& planner;
        DownloadFiles& files;
        FileDialogs& dialogs;
        MessageBoxes& boxes;
        Sounds& sounds;
        const Paths& paths;
    };

    explicit BatchDownload(const Services& services);

    void mnuLVCheckBxs_Click();
    void mnuLVSelectAll_Click();
    void mnuLVSelectNone_Click();
    void mnuChkDLoad_Click();
    /// One tick feeds as many rows as the limit allows. A tick that comes while another pumps does nothing.
    void tmr_Auto_Timer();

    [[nodiscard]] bool isRunning() const { return m_running; }

private:
    [[nodiscard]] QString chooseFolder();
    void checkAll(bool checked);
    void start();
    void tick();
    [[nodiscard]] bool limitReached() const;
    [[nodiscard]] bool startRow(int row);
    void end();

    Services m_services;
    bool m_checkBoxes = false;
    bool m_running = false;
    bool m_ticking = false;
};

} // namespace varnhold
