#pragma once

#include "app/BatchOnWindows.h"
#include "app/Common.h"
#include "app/DownloadWindows.h"
#include "download/BatchDownload.h"
#include "download/DiskFiles.h"
#include "download/DownloadPlanner.h"
#include "download/PackageActions.h"
#include "platform/Clock.h"

#include <QObject>

#include <optional>

namespace varnhold {

class AppearanceOwner;
class Lookup;

/// Downloads: their windows, the planner, the ways in which a user starts one or many, and what is done with
/// packages on disk.
class DownloadOwner : public QObject
{
    Q_OBJECT

public:
    DownloadOwner(const Common& common, Lookup& lookup, AppearanceOwner& appearance);

    [[nodiscard]] DownloadPlanner& planner() { return m_planner; }
    /// frmSearch leaves the screen when a batch starts.
    void onSearchInTheWay(std::function<void()> action) { m_batchHost.onSearchInTheWay(std::move(action)); }
    /// Empty while no batch runs.
    [[nodiscard]] QString batchFolder() const;
    [[nodiscard]] QStringList filesInUse() const { return m_windows.filesInUse(); }
    /// At the program's end.
    void unloadAll();

private:
    void bindBatch(MenuCommands& commands);
    void bindActions(MenuCommands& commands);

    const ApplicationState& m_state;
    MonotonicClock m_clock;
    DiskFiles m_files;
    DownloadWindows m_windows;
    DownloadPlanner m_planner;
    BatchOnWindows m_batchHost;
    BatchDownload m_batch;
    std::optional<PackageActions> m_actions; ///< none without a trash
};

} // namespace varnhold
