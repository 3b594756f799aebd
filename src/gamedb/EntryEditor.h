#pragma once

#include "gamedb/SharedDatabase.h"

#include <QString>

namespace varnhold {

class EntryEditorView;
class EntryHost;
class FileDialogs;
class Sounds;
enum class EntrySave;
struct Paths;

/// Where an entry is written: its id, name, notes and picture. Failures are reported, and all that was typed
/// stays in the window.
class EntryEditor
{
public:
    struct Services
    {
        SharedDatabase& database;
        const Settings& settings;
        const Paths& paths;
        MessageBoxes& boxes;
        FileDialogs& dialogs;
        Sounds& sounds;
        EntryEditorView& view;
        EntryHost& host;
        QString title; ///< the program's
    };

    explicit EntryEditor(Services services);

    // The ways in, from the main window. The first three need an id there.
    void mnuLBAdd_Click();
    void openToAdd();  ///< CmdAdd
    void openToEdit(); ///< cmdEdit
    void CmdNewRecord_Click();

    // In the window.
    void CmdAdd_Click();
    void cmdUpdate_Click();
    void CmdBrowse_Click();
    void CmdBrowse_RightClick();
    void cmdOpen_Click();
    void cmdSave_Click();
    void resetEntryEditor();
    /// The window hides: a picture that was not saved enters no later row.
    void leave();

private:
    void copyFields();
    void fillAndOpen(const QString& caption, EntrySave which, const QString& toolTip);
    bool takeMainPicture();
    void takePicture(const QByteArray& file);
    void dropPicture();
    void connectAnew();
    void writeNew(const QString& table);
    void writeOver();
    template <typename Body> bool reporting(Body&& body);

    Services m_services;
    QString m_row; ///< id of the row that an update saves over
    // Its own connection: made anew for each save, left open by one that fails.
    QString m_path;
    QString m_connectionString;
    QString m_SQLText;
    std::unique_ptr<DatabaseConnection> m_connection;
    std::unique_ptr<Recordset> m_records;
};

/// CmdDelete and mnuLBxDelete: asks, then deletes the selected game from the current table and takes its row
/// out of both lists, also where the table held no such id. Failures are reported.
void deleteEntry(SharedDatabase& database, const Settings& settings, MessageBoxes& boxes, EntryHost& host);

} // namespace varnhold
