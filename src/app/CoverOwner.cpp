#include "app/CoverOwner.h"

#include "app/AppearanceOwner.h"
#include "app/main/frmMain.h"
#include "app/menu/MenuCommands.h"
#include "app/menu/frmMenu.h"
#include "app/settings/CoversPage.h"
#include "app/settings/frmSettings.h"
#include "app/start/frmSplash.h"

#include <QCoreApplication>
#include <QKeyEvent>

namespace varnhold {

using namespace Qt::StringLiterals;

CoverOwner::CoverOwner(const Common& common, AppearanceOwner& appearance)
    : m_common(common),
      m_servers(common.file),
      m_commands({common.settings, common.main.covers(), common.hosts, common.paths, common.world.shell,
                  common.world.dialogs, common.world.boxes, QCoreApplication::applicationName()}),
      m_fetch({common.settings, common.main.covers(), m_servers, common.fetch, common.world.boxes,
               common.sounds, common.pump, *this, QCoreApplication::applicationName()})
{
    appearance.setCoverMenu([this] {
        m_servers.buildCoverServerMenu();
        fillMenu();
    });
    bindCommands();
    const auto& page = common.settingsWindow.add<CoversPage>(common.settings, m_servers, common.world.boxes,
                                                             [this] { fillMenu(); });
    connect(&page, &CoversPage::coverPathWanted, this, [this] { m_commands.mnuCoverPath_Click(); });
    connect(&page, &CoversPage::coverPathCleared, this, [this] { m_commands.clearCoverPath(); });
}

void CoverOwner::bindCommands()
{
    MenuCommands& commands = m_common.commands;
    const frmMain& main = m_common.main;
    commands.bind("mnuImageView", [this, &main] { m_commands.mnuImageView_Click(main.gameIdText()); });
    commands.bind("mnuImageExplore", [this] { m_commands.mnuImageExplore_Click(); });
    commands.bind("mnuImageOpen", [this] { m_commands.mnuImageOpen_Click(); });
    commands.bind("mnuGoogle", [this, &main] { m_commands.mnuGoogle_Click(main.selectedGameText()); });
    commands.bind("mnuCoverPath", [this] { m_commands.mnuCoverPath_Click(); });
    commands.bindEach("mnuCServs", [this](int index) { m_fetch.mnuCServs_Click(index); });
}

void CoverOwner::loadServers()
{
    if (m_common.splash)
        m_common.splash->setStatus(u"Loading: Cover Urls"_s);
    m_servers.readCoverServers();
    if (m_common.splash)
        m_common.splash->setStatus(u"Loading: Menu Cover Urls"_s);
    m_servers.buildCoverServerMenu();
    fillMenu();
}

void CoverOwner::fillMenu()
{
    QMap<int, QString> captions;
    for (auto entry = m_servers.menu().cbegin(); entry != m_servers.menu().cend(); ++entry)
        captions.insert(entry.key(), entry.value().name);
    m_common.menu.fill("mnuCServs", captions);
}

QString CoverOwner::selectedGameText() const
{
    return m_common.main.selectedGameText();
}

void CoverOwner::setStatus(const QString& text)
{
    m_common.main.setStatus(text);
}

void CoverOwner::showBusy(bool isBusy)
{
    m_common.main.showBusy(isBusy);
    if (isBusy)
        qApp->installEventFilter(this);
    else
        qApp->removeEventFilter(this);
}

void CoverOwner::showCover(const QString& path)
{
    m_common.main.showIfPicture(path);
}

bool CoverOwner::eventFilter(QObject*, QEvent* event)
{
    const bool isEscape =
        event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->key() == Qt::Key_Escape;
    if (isEscape)
        m_fetch.cancel();
    return isEscape;
}

} // namespace varnhold
