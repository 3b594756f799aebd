#pragma once

#include "controls/SystemColors.h"
#include "tools/LinkRows.h"
#include "tools/LinksView.h"
#include "tools/ReportPlace.h"

#include <QWidget>

class QFrame;
class QLineEdit;
class QPushButton;
class QStatusBar;
class QTimer;

namespace varnhold {

class CTooltip;
class Clipboard;
class ElidedLabel;
class MessageBoxes;
class ReportBox;
class ReportHost;
class Screen;
class SettingsFile;
class Shell;
class Sounds;
struct Paths;

/// A title as the window names it: in its panels, its tool tip and the name of its file.
struct ReportTitle
{
    QString gameId; ///< txtGameID of the main window
    QString name;   ///< lblInfo of the main window
};

/// A second window, in the desktop's frame, with two faces: a text (the report of a title, or its notes), and
/// a list of saved links. Closing it unloads it: its place is stored, its text is dropped.
class frmLstTxt : public QWidget
{
    Q_OBJECT

public:
    struct Services
    {
        const Paths& paths;
        SettingsFile& file;
        MessageBoxes& boxes;
        Sounds& sounds;
        Shell& shell;
        Clipboard& clipboard;
        const Screen& screen;
        QString applicationTitle;
        LinksView::PictureOf pictureOf;
    };

    /// `main`: the main window's place, which counts until one of its own is stored.
    frmLstTxt(const Services& services, ReportHost& host, const WindowPlace& main);

    /// Each shows its face and comes to the front. What the box held is dropped.
    void showReport(const ReportTitle& title, const QString& text);
    /// Notes as rich text on the ground of the lists; an empty text empties the box and leaves its ground.
    void showNotes(const ReportTitle& title, const QString& rtf, ColorValue fore, ColorValue ground);
    void showLinks(std::vector<LinkRow> rows, const QString& heading);

    /// Stores the place and leaves the screen; the host is told.
    void unload();

    enum class Edit { Undo, Cut, Copy, Paste, Delete, SelectAll };
    void mnuLTTools_Click();
    void edit(Edit command); ///< the entries of mnuLstTxt
    void mnuLstVwRS_Click();
    void mnuLstVwCpy_Click();
    void mnuLinkDel_Click();
    [[nodiscard]] const LinkRow* selectedLink() const; ///< null: none

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    enum class Face { Report, Notes, Links };

    void build();
    void buildTools();
    QPushButton* addButton(const char* name, const QString& caption);
    void showFace(Face face, const QString& title);
    void nameTitle(const ReportTitle& title);
    void comeToFront();
    [[nodiscard]] WindowPlace currentPlace() const;

    void Command1_Click();
    void Command2_Click();
    void Command4_Click();
    bool txtLine_KeyPress(const QKeyEvent& event);
    void Timer1_Timer();
    void lstVwLinks_MouseMove(int row);
    void lstVwLinks_DblClick(int row);
    void fadeOut();

    Services m_services;
    ReportHost& m_host;
    LinkRows m_links;
    Face m_face = Face::Report;
    int m_balloonRow = -1;
    bool m_isUnloaded = false;

    QFrame* m_tools = nullptr;
    QPushButton* m_goto = nullptr;
    QLineEdit* m_line = nullptr;
    ReportBox* m_box = nullptr;
    LinksView* m_list = nullptr;
    QStatusBar* m_status = nullptr;
    ElidedLabel* m_panels[4] = {};
    QTimer* m_follow = nullptr; ///< Timer1: one look at the caret after it moved
    CTooltip* m_balloon = nullptr;
};

} // namespace varnhold
