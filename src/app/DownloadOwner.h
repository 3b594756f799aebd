#pragma once

#include "app/Common.h"
#include "app/DownloadWindows.h"
#include "download/DiskFiles.h"
#include "download/DownloadPlanner.h"
#include "platform/Clock.h"

#include <QObject>

namespace varnhold {

class AppearanceOwner;
class Lookup;

/// Downloads: their windows, the planner, and the ways in which a user starts one.
class DownloadOwner : public QObject
{
    Q_OBJECT

public:
    DownloadOwner(const Common& common, Lookup& lookup, AppearanceOwner& appearance);

    [[nodiscard]] DownloadPlanner& planner() { return m_planner; }
    void unloadAll() { m_windows.unloadAll(); }

private:
    MonotonicClock m_clock;
    DiskFiles m_files;
    DownloadWindows m_windows;
    DownloadPlanner m_planner;
};

} // namespace varnhold
