#pragma once

#include "app/HiddenList.h"
#include "lookup/LookupView.h"
#include "platform/ShapedWindow.h"

#include <functional>
#include <optional>

class QLabel;
class QPlainTextEdit;
class QTextEdit;

namespace varnhold {

class ButtonEx;
class CTooltip;
class CaptionDrag;
class ElidedLabel;
class GameIdBox;
class MessageBoxes;
class MorphListBox;
class Screen;
class Settings;
class Sounds;
class UpdateList;
class UpdateListView;
class XP_ProgressBar;
struct ApplicationState;
struct MainLayout;
struct SplitPlaces;

/// The main window. It shows what a lookup tells it, and hands on what the user asks for.
class frmMain : public ShapedWindow, public LookupView
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
    };

    explicit frmMain(const Services& services);
    ~frmMain() override;

    /// Give the window its other size and write "Miximize".
    void EnlargeMainWindow();
    void RestoreMainWindow();
    /// Asked for the pictures of a size (1 normal, 2 enlarged) before the window takes it; false leaves the
    /// window as it is.
    void setLayoutPictures(std::function<bool(int)> load) { m_layoutPictures = std::move(load); }
    /// Asked for the picture of a title without a cover.
    void setBlankPicture(std::function<QPixmap()> picture) { m_blankPicture = std::move(picture); }
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
    /// Shows or hides the page of the hidden browser over the update list.
    void mnuRaw();
    void setPage(const std::optional<QString>& text); ///< what mnuRaw shows
    [[nodiscard]] bool showsPage() const;
    /// Asked for the heading of that balloon.
    void setTipTitle(std::function<QString()> title) { m_tipTitle = std::move(title); }

    [[nodiscard]] MorphListBox& games() { return *m_games; } ///< MorphListBox1
    [[nodiscard]] HiddenList& titles() { return m_titles; }  ///< List1
    [[nodiscard]] int selectedUpdateRow() const;             ///< from 1; 0 when none

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

Q_SIGNALS:
    void fetchRequested();       ///< btnFetch, or Enter
    void gameRowDoubleClicked(); ///< of MorphListBox1
    void textDropped(const QString& text);
    void updateRowActivated(); ///< double click in ListView1
    void mnuMenuWanted(const QPoint& globalPosition);
    void mnuLViewWanted(const QPoint& globalPosition);
    void settingsRequested();
    void exitRequested();
    void closedByDesktop(); ///< the window manager's own close
    void layoutChanged();   ///< the window has its other size and wants its picture for it

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void closeEvent(QCloseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;

private:
    void buildCaption();
    void buildLeftColumn();
    void buildMainColumn();
    void buildFoot();
    void connectGames();
    void connectUpdates();
    ButtonEx* addButton(const char* name, const QString& toolTip);
    ElidedLabel* addLabel(const char* name, const QString& accessibleName);
    void orderTabs();
    void applyLayout(const MainLayout& layout, int number);
    [[nodiscard]] bool takesPictures(int number) const;
    void layLeftColumn();
    void layMainColumn();
    void placeColumn(const SplitPlaces& places, QWidget& upper, QWidget& bar, QWidget& lower, int width);

    void onGameClick();
    void onGameKeyUp();
    void onGameMouseDown(int y);
    void onGameMouseMove(int y);
    void showTitle(const QString& title);
    void onUpdateHover(int row);
    void showCover(const QString& gameId);

    Services m_services;
    HiddenList m_titles;
    std::function<QString()> m_tipTitle;
    std::function<bool(int)> m_layoutPictures;
    std::function<QPixmap()> m_blankPicture;
    double m_barLeftTop = 0; ///< twips
    double m_barMainTop = 0;
    int m_columnTwips = 0;

    ElidedLabel* m_caption = nullptr;
    ElidedLabel* m_info = nullptr;
    ElidedLabel* m_status = nullptr;
    ElidedLabel* m_blank = nullptr;
    QLabel* m_count = nullptr;
    ButtonEx* m_winState[3] = {};
    ButtonEx* m_btnFile = nullptr;
    ButtonEx* m_settingsButton = nullptr;
    ButtonEx* m_fetch = nullptr;
    GameIdBox* m_gameId = nullptr;
    XP_ProgressBar* m_progress = nullptr;
    QWidget* m_picLeft = nullptr;
    MorphListBox* m_games = nullptr;
    QWidget* m_barLeft = nullptr;
    QLabel* m_picPreview = nullptr;
    QWidget* m_picMain = nullptr;
    UpdateListView* m_updates = nullptr;
    QWidget* m_barMain = nullptr;
    QTextEdit* m_notes = nullptr;
    QLabel* m_imgPreview = nullptr;
    QPlainTextEdit* m_browser = nullptr;
    CTooltip* m_toolTip = nullptr;
    CaptionDrag* m_drag = nullptr;
};

} // namespace varnhold
