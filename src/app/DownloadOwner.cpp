#include "app/DownloadOwner.h"

#include "app/AppearanceOwner.h"
#include "app/main/frmMain.h"
#include "app/menu/MenuCommands.h"
#include "lookup/Lookup.h"
#include "state/ApplicationState.h"

#include <QCoreApplication>

namespace varnhold {

DownloadOwner::DownloadOwner(const Common& common, Lookup& lookup, AppearanceOwner& appearance)
    : m_state(common.state),
      m_windows({.client = {common.world.sockets, m_files, m_clock, common.pump, common.world.boxes,
                            QCoreApplication::applicationName()},
                 .state = common.state,
                 .settings = common.settings,
                 .sounds = common.sounds,
                 .screen = common.world.screen,
                 .skin = [&appearance](QWidget& window) { appearance.dressDownload(window); }},
                common.main),
      m_planner({common.state, common.settings, common.list, m_windows, m_files, common.world.dialogs,
                 common.world.boxes, common.sounds, QCoreApplication::applicationName()}),
      m_batchHost(common.main, common.menu),
      m_batch({common.state, common.settings, common.list, m_windows, m_batchHost, m_planner, m_files,
               common.world.dialogs, common.world.boxes, common.sounds, common.paths})
{
    if (common.world.trash != nullptr)
        m_actions.emplace(PackageActions::Services{
            common.settings, common.list, m_windows, m_files, *common.world.trash, common.world.boxes,
            common.world.shell, common.sounds, QCoreApplication::applicationName()});
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
    bindBatch(common.commands);
    bindActions(common.commands);
}

void DownloadOwner::bindBatch(MenuCommands& commands)
{
    m_batchHost.onTick([this] { m_batch.tmr_Auto_Timer(); });
    commands.bind("mnuLVCheckBxs", [this] { m_batch.mnuLVCheckBxs_Click(); });
    commands.bind("mnuLVSelectAll", [this] { m_batch.mnuLVSelectAll_Click(); });
    commands.bind("mnuLVSelectNone", [this] { m_batch.mnuLVSelectNone_Click(); });
    commands.bind("mnuChkDLoad", [this] { m_batch.mnuChkDLoad_Click(); });
}

void DownloadOwner::bindActions(MenuCommands& commands)
{
    if (!m_actions)
        return;
    commands.bind("mnuMarkDL", [this] { m_actions->mnuMarkDL_Click(); });
    commands.bind("mnuKill", [this] { m_actions->mnuKill_Click(); });
    commands.bind("mnuExplore", [this] { m_actions->mnuExplore_Click(); });
    commands.bind("mnuOpenDir", [this] { m_actions->mnuOpenDir_Click(); });
}

QString DownloadOwner::batchFolder() const
{
    return m_batch.isRunning() ? m_state.DLFolder : QString();
}

void DownloadOwner::unloadAll()
{
    m_batchHost.end();
    m_windows.unloadAll();
}

} // namespace varnhold
