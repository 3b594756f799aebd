#pragma once

#include "app/Common.h"
#include "gamedb/EntryEditor.h"
#include "gamedb/EntryEditorView.h"
#include "gamedb/Transfer.h"
#include "gamedb/frmDB.h"

#include <QObject>

namespace varnhold {

class AppearanceOwner;
class DatabaseOwner;
class ReportOwner;
class SkinPage;

/// The entry editor with its window and all that leads to it, and the main window's other commands that
/// change entries: delete, and the copy to the personal table.
class EditorOwner : public QObject, private EntryHost
{
    Q_OBJECT

public:
    EditorOwner(const Common& common, DatabaseOwner& database, AppearanceOwner& appearance,
                ReportOwner& report);

private:
    void connectMainWindow();
    void connectWindow();
    void bindNotesMenu();
    void place();
    void openCover();
    void viewNotes(ReportOwner& report, const SkinPage& skin);

    void showBusy(bool busy) override;
    [[nodiscard]] QString gameIdText() const override;
    [[nodiscard]] QString info() const override;
    [[nodiscard]] QString notes() const override;
    [[nodiscard]] QByteArray pictureAsBitmap() const override;
    [[nodiscard]] bool showsLoadedEntry() const override;
    void loadEntry() override;
    void clearPreview() override;
    [[nodiscard]] int gameCount() const override;
    [[nodiscard]] int selectedRow() const override;
    [[nodiscard]] QString selectedGameText() const override;
    void addGame(const QString& gameId) override;
    void addTitle(const QString& title) override;
    void removeRow(int row) override;
    void deselect() override;

    Common m_common;
    DatabaseOwner& m_database;
    frmDB m_window;
    EntryEditor m_editor;
    Transfer m_transfer;
};

} // namespace varnhold
