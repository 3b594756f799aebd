#pragma once

#include "app/settings/SettingsPage.h"
#include "gamedb/DatabasePageView.h"

class QListWidget;
class QPlainTextEdit;

namespace varnhold {

class SkinPage;

/// The database in use, how its list is ordered, and what is stored in it; in the lower half the id list and
/// the tables.
class DatabasePage : public SettingsPage
{
    Q_OBJECT

public:
    DatabasePage(Settings& settings, const SkinPage& skin);

    /// `text` in Label9(1).
    void askForDatabase(const QString& text);
    /// The same in the highlight colour.
    void thankForDatabase(const QString& text);

    /// txt_Check, and whether cmd_IDUpdate can be pressed.
    void showCheck(const QString& text, bool available);
    void disableUpdate();
    void setCheckBusy(bool busy); ///< neither a check nor an update can be started meanwhile

    [[nodiscard]] QListWidget& tables() { return *m_tables; }        ///< lstTables
    [[nodiscard]] QLineEdit& newTableName() { return *m_tableName; } ///< txt_Table
    void showOutcome(DatabasePageView::Outcome outcome);
    void refreshFileSize(bool highlighted);

Q_SIGNALS:
    void btnOpen_Click();
    void cmd_Check_Click();
    void cmd_IDUpdate_Click();
    void cmd_Tables_Click(int index);
    void lstTables_Click(const QString& name);

private:
    void addOrder(Order which, const QString& heading, int left);
    void buildIdList();
    void buildTables();
    void toggleListUrl();

    const SkinPage& m_skin;
    QLineEdit* m_file;
    QLabel* m_request;
    QLabel* m_size = nullptr;
    QLabel* m_listName = nullptr;
    QLineEdit* m_listUrl = nullptr;
    ButtonEx* m_editUrl = nullptr;
    ButtonEx* m_check = nullptr;
    ButtonEx* m_update = nullptr;
    QPlainTextEdit* m_checkText = nullptr;
    QListWidget* m_tables = nullptr;
    QLineEdit* m_tableName = nullptr;
    QLabel* m_outcome = nullptr;
    bool m_available = false;
};

} // namespace varnhold
