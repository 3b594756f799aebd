#include "app/LookupOwner.h"

#include "app/main/frmMain.h"
#include "app/menu/MenuCommands.h"
#include "lookup/UpdateServers.h"
#include "platform/Shell.h"
#include "state/HostAccess.h"
#include "state/Settings.h"

namespace varnhold {

LookupOwner::LookupOwner(const Common& common)
    : m_common(common),
      m_autoAlert(m_alert, common.settings,
                  {.pressYes = [this] { return m_alert.pressYes(); },
                   .caption = [&main = common.main] { return main.caption(); },
                   .setCaption = [&main = common.main](const QString& text) { main.setCaption(text); }}),
      m_browser(m_autoAlert, [this](const QString& authority) { return tlsOf(m_common.hosts, authority); }),
      m_lookup({common.state, common.settings, common.hosts, common.list, common.main, m_browser,
                common.sounds, common.world.boxes, common.pump})
{
    frmMain& main = common.main;
    connect(&main, &frmMain::fetchRequested, &m_lookup, &Lookup::btnFetch_Click);
    connect(&main, &frmMain::gameRowDoubleClicked, &m_lookup, &Lookup::MorphListBox1_DblClick);
    main.setTipTitle([this] { return m_lookup.title(); });
    connect(&m_browser, &BrowserControl::statusTextChanged, this, [this, &main] {
        if (main.showsPage())
            main.setPage(m_browser.bodyText());
    });
    common.commands.bind("mnuWebOpen", [this] { openWeb(); });
    common.commands.bind("mnuRaw", [this] { showRaw(); });
}

void LookupOwner::openWeb()
{
    const QString url =
        Document_Url(m_common.hosts, m_common.settings.server(), m_common.main.gameIdText().toUpper());
    if (!url.isEmpty())
        m_common.world.shell.open(url);
}

void LookupOwner::showRaw()
{
    frmMain& main = m_common.main;
    main.mnuRaw();
    main.setPage(main.showsPage() ? m_browser.bodyText() : std::nullopt);
}

} // namespace varnhold
