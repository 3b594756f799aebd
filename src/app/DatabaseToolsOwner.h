#pragma once

#include "app/Common.h"
#include "gamedb/DatabaseMaintenance.h"
#include "gamedb/DatabasePageView.h"

#include <QObject>

#include <functional>

namespace varnhold {

class DatabasePage;

/// The lower half of the settings' Database page, with the menu's entries that do the same: tables,
/// compaction and backup, and news of the id list.
class DatabaseToolsOwner : public QObject, private DatabasePageView
{
    Q_OBJECT

public:
    DatabaseToolsOwner(const Common& common, SharedDatabase& database, DatabasePage& page);

    /// What follows the download of an id list: the import. Without it the list is fetched and no more.
    void onImport(std::function<void()> import) { m_import = std::move(import); }

private:
    void connectPage();
    void cmd_Check_Click();
    void cmd_IDUpdate_Click();
    void mnuUpdateDB_Click();
    void importIdListFile();
    /// One check or update at a time; what it asks the network pumps events.
    void once(const std::function<void()>& step);

    void showBusy(bool busy) override;
    void clearTables() override;
    void addTable(const QString& name) override;
    void refreshTables() override;
    [[nodiscard]] QString newTableName() const override;
    void clearNewTableName() override;
    void focusNewTableName() override;
    void showOutcome(Outcome outcome) override;
    void refreshFileSize(bool highlighted) override;
    void setStatus(const QString& text) override;

    Common m_common;
    DatabasePage& m_page;
    DatabaseMaintenance m_maintenance;
    std::function<void()> m_import;
    bool m_busy = false;
};

} // namespace varnhold
