#include "gamedb/DatabaseMaintenance.h"

#include "gamedb/DatabasePageView.h"
#include "gamedb/DatabaseTables.h"
#include "gamedb/SharedDatabase.h"
#include "platform/Files.h"
#include "platform/MessageBoxes.h"
#include "platform/database/DatabaseCatalog.h"
#include "platform/database/DatabaseCompaction.h"
#include "platform/database/DatabaseCopy.h"
#include "state/Paths.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"
#include "state/SettingsKeys.h"
#include "state/SizeText.h"
#include "state/WaitLoop.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QScopeGuard>

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// What is on the disk under that name, be it a link that leads nowhere.
bool isTaken(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

} // namespace

void DatabaseMaintenance::cmd_Tables_Click(int index)
{
    bool& running = m_running.at(static_cast<std::size_t>(index));
    if (running)
        return;
    running = true;
    const auto ended = qScopeGuard([&running] { running = false; });
    m_services.database.reporting([&] {
        switch (index) {
        case 0:
            listTables();
            break;
        case 1:
            renameTable();
            break;
        default:
            compactDatabase();
        }
    });
}

QString DatabaseMaintenance::currentFile()
{
    return m_services.database.DBConnFile = m_services.settings.idList().tag;
}

void DatabaseMaintenance::listTables()
{
    DatabasePageView& view = m_services.view;
    view.clearTables();
    DatabaseConnection connection(m_services.database.watch());
    connection.Open(u"Driver={Microsoft Access Driver (*.mdb)};Dbq="_s + currentFile() +
                    u";;Persist Security Info=False"_s);
    for (const QString& name : tableNames(connection))
        view.addTable(name);
    connection.Close();
}

void DatabaseMaintenance::renameTable()
{
    DatabasePageView& view = m_services.view;
    if (m_selectedTable.isEmpty()) {
        complain(u"Error: Please Select Table"_s);
        return;
    }
    const QString name = view.newTableName();
    if (name.isEmpty()) {
        complain(u"Error: Table name is Blank!"_s);
        return;
    }
    dbRenameTable(currentFile(), m_selectedTable, name, m_services.database.watch());
    listTables();
    view.clearNewTableName();
    flash(true);
}

void DatabaseMaintenance::complain(const QString& text)
{
    DatabasePageView& view = m_services.view;
    m_services.boxes.show({text, u"Error"_s, BoxIcon::Exclamation, BoxButtons::Ok});
    if (!m_selectedTable.isEmpty())
        view.focusNewTableName();
    view.refreshTables();
    flash(false);
}

/// Anything may be clicked while it shows.
void DatabaseMaintenance::flash(bool good)
{
    DatabasePageView& view = m_services.view;
    view.showOutcome(good ? DatabasePageView::Outcome::Good : DatabasePageView::Outcome::Bad);
    Wait_Loop(1, m_services.pump);
    view.showOutcome(DatabasePageView::Outcome::None);
}

void DatabaseMaintenance::compactDatabase()
{
    Settings& settings = m_services.settings;
    const QString path = currentFile();
    const QString before = u"Before: "_s + File_Size_Text(path);
    const auto show = [&](const QString& text) {
        settings.setDatabaseSize(text);
        m_services.view.refreshFileSize(true);
    };
    show(before + u" - Compacting/Repairing"_s);
    QString after = before;
    const auto shown = qScopeGuard([&] { show(after); }); // before a report comes up
    m_services.view.showBusy(true);
    const auto idle = qScopeGuard([this] { m_services.view.showBusy(false); });
    // The name under which the new file was once made. Whatever stands there is not ours to overwrite.
    if (isTaken(m_services.paths.root + u"/BackUp.mdb"_s))
        throw RunTimeError(errors::fileExists);
    m_services.database.release(); // what a report left open would be left with the old file
    compactDatabaseFile(path, m_services.database.watch());
    after = before + u" - After: "_s + File_Size_Text(path);
}

void DatabaseMaintenance::mnuDB_Backup_Click()
{
    const BoxAnswer answer = m_services.boxes.show(
        {u"Backup Database?"_s, u"Database Backup"_s, BoxIcon::Question, BoxButtons::YesNo});
    if (answer != BoxAnswer::Yes)
        return;
    try {
        m_services.view.showBusy(true);
        const auto idle = qScopeGuard([this] { m_services.view.showBusy(false); });
        backupDatabase();
    } catch (const RunTimeError& error) {
        m_services.boxes.show({QString::number(error.number()) + u' ' + error.description(),
                               QCoreApplication::applicationName(), BoxIcon::Exclamation, BoxButtons::Ok});
    }
}

void DatabaseMaintenance::backupDatabase()
{
    const QString folder = m_services.paths.root + u"/Backup"_s;
    const QString target = folder + u"/GameDB.mdb"_s;
    if (!FolderExists(folder))
        MakeFolder(folder);
    clearDatabaseLeftovers(folder);
    const QString chosen = m_services.file.INI_Read(settingsKeys::section(), u"IDList Path"_s, {});
    const QString usual = m_services.paths.gameDatabase();
    QString source = chosen;
    if (!FileExists(chosen)) {
        // A file in the working folder whose name is the outcome of a comparison: this oddity is meant.
        if (!FileExists(usual == chosen ? u"True"_s : u"False"_s))
            return;
        source = usual;
    }
    copyDatabaseFile(source, target, m_services.database.watch());
    m_services.view.setStatus(u"Backup: "_s + File_Size_Text(target));
}

} // namespace varnhold
