#pragma once

#include "app/main/HiddenList.h"
#include "controls/SystemColors.h"
#include "covers/CoverFolder.h"
#include "gamedb/EntryView.h"
#include "gamedb/GameSelection.h"
#include "lookup/LookupView.h"
#include "platform/ShapedWindow.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QLabel;
class QPlainTextEdit;

namespace varnhold {

class ButtonEx;
class CaptionDrag;
class CoverBox;
class CoverPanel;
class ElidedLabel;
class GameIdBox;
class GameListInput;
class ListProgress;
class MessageBoxes;
class MorphListBox;
class NotesBox;
class Screen;
class Settings;
class Sounds;
class SplitColumn;
class UpdateList;
class UpdateListInput;
class UpdateListView;
class XP_ProgressBar;
struct ApplicationState;
struct MainLayout;
struct Paths;

/// The main window. It shows what the routines of lookup and game list tell it, and hands on what the user
/// asks for.
class frmMain : public ShapedWindow, public LookupView, public EntryView
{
    Q_OBJECT

public:
    struct Services
    {
        ApplicationState& state;
        Settings& settings;
        UpdateList& list;
        MessageBoxes& boxes;
        Sounds& sounds;
        const Screen& screen;
        const Paths& paths;
    };

    explicit frmMain(const Services& services);
    ~frmMain() override;

    /// Give the window its other size and write "Miximize".
    void EnlargeMainWindow();
    void RestoreMainWindow();
    /// Asked for the pictures of a size (1 normal, 2 enlarged) before the window takes it; false leaves the
    /// window as it is.
    void setLayoutPictures(std::function<bool(int)> load) { m_layoutPictures = std::move(load); }
    /// In PicPreview; a file that is no picture leaves what shows there.
    void showIfPicture(const QString& path);
    /// Asked for the picture of a title without a cover.
    void setBlankPicture(std::function<QPixmap()> picture) { m_blankPicture = std::move(picture); }
    /// Runs when a game was chosen by click, double click or Enter; tells its failures itself.
    void setEntryLoader(std::function<void()> loader) { m_selection.setEntryLoader(std::move(loader)); }
    /// The size that was stored, before the bars are: nothing is written.
    void startLayout(int number);
    /// 1 normal, 2 enlarged.
    [[nodiscard]] int layoutNumber() const;

    void setBarLeftTop(double twips); ///< without limits until Splitbar_Left
    void setBarMainTop(double twips);
    /// Lay a column out by its bar, within the bar's limits, and write the bar's key.
    void Splitbar_Left();
    void Splitbar_Main();

    [[nodiscard]] QString caption() const; ///< lblCaption
    void setCaption(const QString& text);
    void showCount(int count); ///< lblCnt
    void enableExitButton();   ///< btn_WinState(1)
    /// The balloon over the update list; made late in the start.
    void createToolTip();
    void setTipColors(ColorValue fore, ColorValue back); ///< of that balloon
    /// Shows or hides the page of the hidden browser over the update list.
    void mnuRaw();
    void setPage(const std::optional<QString>& text); ///< what mnuRaw shows
    [[nodiscard]] bool showsPage() const;
    /// Asked for the heading of that balloon.
    void setTipTitle(std::function<QString()> title);

    [[nodiscard]] MorphListBox& games() { return *m_games; }       ///< MorphListBox1
    [[nodiscard]] HiddenList& titles() { return m_titles; }        ///< List1
    [[nodiscard]] UpdateListView& updates() { return *m_updates; } ///< ListView1
    [[nodiscard]] int selectedUpdateRow() const;                   ///< from 1; 0 when none
    [[nodiscard]] const CoverFolder& covers() const { return m_covers; }

    [[nodiscard]] QString gameIdText() const override;
    void setGameIdText(const QString& text) override;
    [[nodiscard]] QString info() const override;
    void setInfo(const QString& text) override;
    void setBlank(const QString& text) override;
    void setStatus(const QString& text) override;
    void hideProgress() override;
    void showProgress() override;
    void setProgressValue(int percent) override;
    void showListViews() override;
    void autosizeColumns() override;
    [[nodiscard]] int selectedGameRow() const override;
    [[nodiscard]] QString selectedGameText() const override;
    QString selectTitleRow(int row) override;
    void setTitleRow(int row, const QString& title) override;
    void removeRow(int row); ///< of games and titles; passed over where one has no such row

    void showBusy(bool busy) override;
    [[nodiscard]] int gameCount() const override;
    void showNotes(const QString& rtf) override;
    void showStoredPicture(const QByteArray& bytes) override; ///< what is no picture shows the blank one
    void showCoverFile(const QString& path) override;
    void showBlankPicture() override;
    void Make_Links() override;

    [[nodiscard]] QString notesText() const;    ///< txtGameNotes, as rich text
    [[nodiscard]] QPixmap wholePicture() const; ///< PicPreview in the picture's own size
    /// Notes and picture are those of the entry loaded last: nothing has taken one of them since.
    [[nodiscard]] bool showsLoadedEntry() const;

    void clearTitleTexts(); ///< txtGameID and lblInfo
    void clearNotes();      ///< emptied and locked
    /// ProgressBar1 during the load of the game list, which runs no events.
    void showListProgress(int value);
    void setListProgressMaximum(int maximum);
    void setListProgress(int value); ///< out of the maximum
    void hideListProgress();

Q_SIGNALS:
    void fetchRequested();                   ///< btnFetch, or Enter
    void gameRowDoubleClicked();             ///< of MorphListBox1; its entry is loaded
    void refreshRequested();                 ///< CmdRefresh
    void clearRequested();                   ///< cmdClear
    void addRequested();                     ///< CmdAdd
    void newRecordRequested();               ///< CmdNewRecord
    void editRequested();                    ///< cmdEdit
    void deleteRequested();                  ///< CmdDelete
    void viewRequested();                    ///< cmdView
    void linkActivated(const QString& link); ///< in the notes
    void mnuLBoxWanted(const QPoint& globalPosition);
    void mnuImageWanted(const QPoint& globalPosition);
    void textDropped(const QString& text);
    void updateRowActivated(); ///< double click in ListView1
    void mnuMenuWanted(const QPoint& globalPosition);
    void mnuLViewWanted(const QPoint& globalPosition);
    void settingsRequested();
    void searchRequested(); ///< btn_Tools(0)
    void exitRequested();
    void closedByDesktop(); ///< the window manager's own close
    void layoutChanged();   ///< the window has its other size and wants its picture for it

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void buildCaption();
    void buildWindowButtons();
    void buildLeftColumn();
    void buildMainColumn();
    void buildFoot();
    void connectColumns();
    void orderTabs();
    ButtonEx* addButton(const char* name, const QString& toolTip);
    ElidedLabel* addLabel(const char* name, const QString& description);
    void applyLayout(const MainLayout& layout, int number);
    [[nodiscard]] bool takesPictures(int number) const;
    [[nodiscard]] qint64 pictureKey() const;

    Services m_services;
    HiddenList m_titles;
    CoverFolder m_covers;
    GameSelection m_selection;
    std::function<bool(int)> m_layoutPictures;
    std::optional<QPoint> m_placeBefore; ///< before the button enlarged it
    QPoint m_placeEnlarged;              ///< after it
    std::function<QPixmap()> m_blankPicture;
    std::optional<qint64> m_loadedPicture; ///< of the entry whose notes show; none: something took the notes

    ElidedLabel* m_caption = nullptr;
    ElidedLabel* m_info = nullptr;
    ElidedLabel* m_status = nullptr;
    ElidedLabel* m_blank = nullptr;
    QLabel* m_count = nullptr;
    ButtonEx* m_winState[3] = {};
    ButtonEx* m_btnFile = nullptr;
    ButtonEx* m_settingsButton = nullptr;
    ButtonEx* m_searchButton = nullptr;
    ButtonEx* m_fetch = nullptr;
    std::vector<ButtonEx*> m_footButtons; ///< from left to right
    GameIdBox* m_gameId = nullptr;
    XP_ProgressBar* m_progress = nullptr;
    QWidget* m_picLeft = nullptr;
    MorphListBox* m_games = nullptr;
    QWidget* m_barLeft = nullptr;
    CoverBox* m_picPreview = nullptr;
    QWidget* m_picMain = nullptr;
    UpdateListView* m_updates = nullptr;
    QWidget* m_barMain = nullptr;
    NotesBox* m_notes = nullptr;
    CoverBox* m_imgPreview = nullptr;
    QPlainTextEdit* m_browser = nullptr;

    std::unique_ptr<CaptionDrag> m_drag;
    std::unique_ptr<SplitColumn> m_leftColumn;
    std::unique_ptr<SplitColumn> m_mainColumn;
    std::unique_ptr<CoverPanel> m_cover;
    std::unique_ptr<GameListInput> m_gameInput;
    std::unique_ptr<UpdateListInput> m_updateInput;
    std::unique_ptr<ListProgress> m_listProgress;
};

} // namespace varnhold
