#include "app/DatabaseOwner.h"

#include "app/AppearanceOwner.h"
#include "app/main/frmMain.h"
#include "app/menu/MenuCommands.h"
#include "app/settings/DatabasePage.h"
#include "app/settings/frmSettings.h"
#include "gamedb/ChooseDatabase.h"
#include "gamedb/EntryDetails.h"
#include "gamedb/UpdateLinks.h"
#include "lookup/Lookup.h"
#include "platform/Shell.h"

namespace varnhold {

DatabaseOwner::DatabaseOwner(const Common& common, Lookup& lookup, AppearanceOwner& appearance)
    : m_common(common),
      m_database(common.settings, common.world.boxes, &m_painter),
      m_page(common.settingsWindow.add<DatabasePage>(common.settings, appearance.page())),
      m_view({common.main, common.menu, common.settingsWindow, m_page, common.list, common.splash},
             m_painter),
      m_gameList({m_database, common.state, common.settings, m_view, common.sounds, common.world.boxes}),
      m_tools(common, m_database, m_page)
{
    frmMain& main = common.main;
    main.setEntryLoader([this] { loadEntry(); });
    lookup.setEntryLoader([this] { loadEntry(); });
    lookup.setLinkSaver([this, common] { saveUpdateLinks(m_database, common.list, common.main); });
    connect(&main, &frmMain::linkActivated, this, [common](const QString& link) {
        common.world.shell.openLink(
            link, [&main = common.main] { main.setStatus(frmMain::tr("No program here opens links")); });
    });
    connect(&main, &frmMain::refreshRequested, this, [this] { m_gameList.CmdRefresh_Click(); });
    connect(&main, &frmMain::clearRequested, this, [this] { m_gameList.cmdClear_Click(); });
    connect(&m_page, &DatabasePage::btnOpen_Click, this, [this, common] {
        btnOpen_Click(common.settings, common.world.dialogs, common.sounds, common.world.boxes, m_gameList);
    });
    appearance.setIconRedraw([this] { m_gameList.redrawIcons(); });
    common.commands.bind("mnuOpen", [this, common] {
        mnuOpen_Click(common.settings, common.world.dialogs, common.sounds, m_gameList);
    });
    common.commands.bind("mnuLBIcons", [this] { m_gameList.mnuLBIcons_Click(); });
}

void DatabaseOwner::loadEntry()
{
    loadGameDetails(m_database, m_common.settings, m_common.main.covers(), m_common.main);
}

} // namespace varnhold
