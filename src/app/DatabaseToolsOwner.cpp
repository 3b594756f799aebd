#include "app/DatabaseToolsOwner.h"

#include "app/main/frmMain.h"
#include "app/menu/MenuCommands.h"
#include "app/settings/DatabasePage.h"
#include "app/settings/frmSettings.h"
#include "platform/BusyPointer.h"
#include "state/ErrorReport.h"
#include "tools/IdListCheck.h"

#include <QCoreApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QScopedValueRollback>

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

DatabaseToolsOwner::DatabaseToolsOwner(const Common& common, SharedDatabase& database, DatabasePage& page)
    : m_common(common),
      m_page(page),
      m_maintenance({.database = database,
                     .settings = common.settings,
                     .file = common.file,
                     .paths = common.paths,
                     .boxes = common.world.boxes,
                     .pump = common.pump,
                     .view = *this})
{
    connectPage();
    common.commands.bind("mnuDB_Backup", [this] { m_maintenance.mnuDB_Backup_Click(); });
    common.commands.bind("mnuUpdateDB", [this] { mnuUpdateDB_Click(); });
}

void DatabaseToolsOwner::connectPage()
{
    connect(&m_page, &DatabasePage::cmd_Tables_Click, this,
            [this](int index) { m_maintenance.cmd_Tables_Click(index); });
    connect(&m_page, &DatabasePage::lstTables_Click, this,
            [this](const QString& name) { m_maintenance.lstTables_Click(name); });
    connect(&m_page, &DatabasePage::cmd_Check_Click, this, [this] { once([this] { cmd_Check_Click(); }); });
    connect(&m_page, &DatabasePage::cmd_IDUpdate_Click, this,
            [this] { once([this] { cmd_IDUpdate_Click(); }); });
}

void DatabaseToolsOwner::once(const std::function<void()>& step)
{
    if (m_busy)
        return;
    const QScopedValueRollback guard(m_busy, true);
    m_page.setCheckBusy(true);
    step();
    m_page.setCheckBusy(false);
}

void DatabaseToolsOwner::cmd_Check_Click()
{
    IdListSizes sizes;
    {
        const auto busy = busyPointer<DatabasePageView>(*this);
        sizes = checkIdList(m_common.fetch, m_common.settings, m_common.paths);
    }
    m_page.showCheck(sizes.settingsText(), sizes.isAvailable());
}

void DatabaseToolsOwner::cmd_IDUpdate_Click()
{
    importIdListFile();
    m_page.disableUpdate();
}

void DatabaseToolsOwner::mnuUpdateDB_Click()
{
    once([this] {
        reporting(m_common.world.boxes, DescriptionLabel::WithoutBlank, [this] {
            IdListSizes sizes;
            {
                const auto busy = busyPointer<DatabasePageView>(*this);
                sizes = checkIdList(m_common.fetch, m_common.settings, m_common.paths);
            }
            const QString title = QCoreApplication::applicationName();
            if (!sizes.isAvailable()) {
                m_common.world.boxes.show({sizes.boxText(), title, BoxIcon::Information, BoxButtons::Ok});
                return;
            }
            const QString question = sizes.boxText() + u"\r\nDoanload Update?"_s; // spelt so
            if (m_common.world.boxes.show({question, title, BoxIcon::Question, BoxButtons::YesNo}) ==
                BoxAnswer::Yes)
                importIdListFile();
        });
    });
}

void DatabaseToolsOwner::importIdListFile()
{
    bool goesOn = false;
    {
        const auto busy = busyPointer<DatabasePageView>(*this);
        goesOn = downloadIdList(m_common.fetch, m_common.settings, m_common.paths, m_common.world.boxes,
                                QCoreApplication::applicationName());
    }
    if (goesOn && m_import)
        m_import();
}

void DatabaseToolsOwner::showBusy(bool busy)
{
    m_common.main.showBusy(busy);
    if (busy)
        m_common.settingsWindow.setCursor(Qt::WaitCursor);
    else
        m_common.settingsWindow.unsetCursor();
}

void DatabaseToolsOwner::clearTables()
{
    m_page.tables().clear();
}

void DatabaseToolsOwner::addTable(const QString& name)
{
    m_page.tables().addItem(name);
}

void DatabaseToolsOwner::refreshTables()
{
    m_page.tables().repaint();
}

QString DatabaseToolsOwner::newTableName() const
{
    return m_page.newTableName().text();
}

void DatabaseToolsOwner::clearNewTableName()
{
    m_page.newTableName().clear();
}

void DatabaseToolsOwner::focusNewTableName()
{
    m_page.newTableName().setFocus();
}

void DatabaseToolsOwner::showOutcome(Outcome outcome)
{
    m_page.showOutcome(outcome);
}

void DatabaseToolsOwner::refreshFileSize(bool highlighted)
{
    m_page.refreshFileSize(highlighted);
}

void DatabaseToolsOwner::setStatus(const QString& text)
{
    m_common.main.setStatus(text);
}

} // namespace varnhold
