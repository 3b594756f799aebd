#pragma once

#include "tools/FolderRenamer.h"

#include <QWidget>

class QAction;
class QCheckBox;
class QLineEdit;
class QListView;
class QMenu;
class QPlainTextEdit;
class QSplitter;

namespace varnhold {

class ButtonEx;
class ElidedLabel;

/// The folder renamer's window, in the desktop's own frame. Closing it hides it; lists and mode stay.
class frmReNamer : public QWidget
{
    Q_OBJECT

public:
    explicit frmReNamer(FolderRenamer& renamer);

    void showBusy(bool busy);
    /// mnuMenu, as the right button over a list opens it.
    [[nodiscard]] QMenu& menu() { return *m_menu; }

Q_SIGNALS:
    void shown(); ///< before it comes to the screen

protected:
    void showEvent(QShowEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void build();
    ButtonEx* addButton(const char* name, const QString& caption, const QString& toolTip);
    QListView* addList(const char* name, const QString& accessibleName, QAbstractItemModel& model);
    QLineEdit* addLine(const char* name, const QString& accessibleName, const QString& placeholder);
    void addStore(const char* name, QAbstractItemModel& model);
    void buildMenu();
    void openMenu(QListView& list, const QPoint& place);
    void moveSplitter(int key);
    void refresh();
    void followHit(int row);

    FolderRenamer& m_renamer;
    QStringListModel m_hitRows;  ///< lstIndex
    QStringListModel m_scanRows; ///< List1
    ButtonEx* m_load = nullptr;
    ButtonEx* m_process = nullptr;
    ButtonEx* m_rename = nullptr;
    ButtonEx* m_search = nullptr;
    ButtonEx* m_cancel = nullptr;
    QCheckBox* m_agree = nullptr;
    QPlainTextEdit* m_disclaimer = nullptr;
    QLineEdit* m_manual = nullptr;
    QLineEdit* m_searchText = nullptr;
    QListView* m_from = nullptr;
    QListView* m_to = nullptr;
    QListView* m_hits = nullptr;
    QSplitter* m_splitter = nullptr;
    ElidedLabel* m_panel = nullptr;
    ElidedLabel* m_count = nullptr;
    QMenu* m_menu = nullptr;
    QAction* m_openDir = nullptr;
    QAction* m_recycle = nullptr;
};

} // namespace varnhold
