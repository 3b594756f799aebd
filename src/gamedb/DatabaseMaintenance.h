#pragma once

#include <QString>

#include <array>

namespace varnhold {

class DatabasePageView;
class MessageBoxes;
class MessagePump;
class Settings;
class SettingsFile;
class SharedDatabase;
struct Paths;

/// The lower half of the settings' Database page, and the backup: tables listed and renamed, the file
/// compacted, a copy put into the folder Backup. Failures are reported; nothing is left open.
class DatabaseMaintenance
{
public:
    struct Services
    {
        SharedDatabase& database;
        Settings& settings;
        const SettingsFile& file;
        const Paths& paths;
        MessageBoxes& boxes;
        MessagePump& pump;
        DatabasePageView& view;
    };

    explicit DatabaseMaintenance(const Services& services) : m_services(services) {}

    /// 0 lists the tables, 1 renames the selected one, 2 compacts. A press of the button whose outcome still
    /// shows does nothing.
    void cmd_Tables_Click(int index);
    void lstTables_Click(const QString& name) { m_selectedTable = name; }
    void mnuDB_Backup_Click();

private:
    void listTables();
    void renameTable();
    void compactDatabase();
    void backupDatabase();
    void complain(const QString& text);
    void flash(bool good);
    [[nodiscard]] QString currentFile();

    Services m_services;
    QString m_selectedTable; ///< survives a rename, which is meant: a second one then is reported
    std::array<bool, 3> m_running{};
};

} // namespace varnhold
