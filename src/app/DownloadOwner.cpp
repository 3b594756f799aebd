#include "app/DownloadOwner.h"

#include "app/AppearanceOwner.h"
#include "app/main/frmMain.h"
#include "app/menu/MenuCommands.h"
#include "lookup/Lookup.h"

#include <QCoreApplication>

namespace varnhold {

DownloadOwner::DownloadOwner(const Common& common, Lookup& lookup, AppearanceOwner& appearance)
    : m_windows({.client = {common.world.sockets, m_files, m_clock, common.pump, common.world.boxes,
                            QCoreApplication::applicationName()},
                 .state = common.state,
                 .settings = common.settings,
                 .sounds = common.sounds,
                 .screen = common.world.screen,
                 .skin = [&appearance](QWidget& window) { appearance.dressDownload(window); }},
                common.main),
      m_planner({common.state, common.settings, common.list, m_windows, m_files, common.world.dialogs,
                 common.world.boxes, common.sounds, QCoreApplication::applicationName()})
{
    m_windows.onUnload([this](const DownloadClient& client) { m_planner.windowUnloaded(client); });
    // Later than the drop itself, since the program that drags waits for its end, and a dialog may follow.
    connect(
        &common.main, &frmMain::textDropped, this,
        [this, &lookup](const QString& text) {
            lookup.dropText(text, [this](const QString& url) { m_planner.DownloadUrl(url); });
        },
        Qt::QueuedConnection);
    connect(&common.main, &frmMain::updateRowActivated, this, [this] { m_planner.ListView1_DblClick(); });
    connect(&appearance, &AppearanceOwner::opacityMoved, this, [this](OpacityOf which) {
        if (which == OpacityOf::Download)
            m_windows.followOpacity();
    });
    common.commands.bind("mnuDLoad", [this] { m_planner.mnuDLoad_Click(); });
}

} // namespace varnhold
