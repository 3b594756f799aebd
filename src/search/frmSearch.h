#pragma once

#include "platform/ShapedWindow.h"
#include "search/SearchView.h"

#include <QElapsedTimer>

#include <array>
#include <memory>

class QFrame;
class QLabel;
class QLineEdit;
class QListView;
class QScrollBar;

namespace varnhold {

class ButtonEx;
class ElidedLabel;
class ListProgress;
class PictureBox;
class ResultList;
class Screen;
class Settings;
class XP_ProgressBar;
struct ApplicationState;

/// The window of search and list import. It shows one of the two at a time, with the same two lists. Closing
/// it hides it; what it shows stays.
class frmSearch : public ShapedWindow, public SearchView
{
    Q_OBJECT

public:
    struct Services
    {
        ApplicationState& state;
        const Settings& settings;
        const Screen& screen;
        ResultList& results;
    };

    explicit frmSearch(const Services& services);
    ~frmSearch() override;

    /// Both enable what an earlier failure left disabled.
    void showSearch();
    void showImport();
    /// To the screen and to the front; at `place` where it was hidden.
    void open(const QPoint& place);

    [[nodiscard]] QString table() const; ///< lblDB(0)
    [[nodiscard]] int currentRow() const;

    [[nodiscard]] SearchQuery query() const override;
    [[nodiscard]] ListFormat format() const override;
    void showBusy(bool busy) override;
    void enableSearch(bool enabled) override;
    void enableImport(bool enabled) override;
    void showProgress(int maximum) override;
    void setProgress(int value) override;
    void hideProgress() override;
    void selectRow(int row) override;
    void walkTo(int row) override;
    [[nodiscard]] QString caption() const override;
    void setCaption(const QString& text) override;
    void setImportCaption(const QString& text) override;
    void showFile(const QString& title, const QString& path) override;
    void focusImport() override;

Q_SIGNALS:
    void searchRequested();
    void exportRequested();
    void grabRequested();
    void importRequested();
    void resultChosen(int row);                                ///< by double click or Enter
    void mnuSrchWanted(int row, const QPoint& globalPosition); ///< -1: over no row

protected:
    void closeEvent(QCloseEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A bar that picks one of a few texts.
    struct Choice
    {
        QScrollBar* bar = nullptr;
        QLabel* label = nullptr;
        QStringList texts;

        [[nodiscard]] QString text() const;
    };

    void buildCaption();
    void buildSearch();
    void buildOptions();
    void buildLists();
    void buildImport();
    void orderTabs();
    QFrame* addPanel(const char* name, const QRect& place);
    ButtonEx* addButton(QWidget* parent, const char* name, const QString& caption, const QRect& place);
    QLineEdit* addLine(QWidget* parent, const char* name, const QString& accessibleName, const QRect& place);
    QLabel* addHeading(QWidget* parent, const QString& text, const QRect& place);
    Choice addChoice(const QString& name, const QString& labelName, const QString& heading, int left,
                     const QStringList& texts, int value);
    QScrollBar* addBar(QWidget* parent, const QString& name, const QString& heading, const QPoint& place,
                       int most, int value);
    QListView* addList(const char* name, const QString& accessibleName, int column);

    void showOptions(bool shown);
    void showChoices();
    void placeFrame(int top, int height);
    void sVertical_Bar(double leftTwips);
    void hover(QListView& list, const QPoint& position);
    void openMenu(QListView& list, const class QContextMenuEvent& wanted);
    bool filterList(QListView& list, bool onViewport, QEvent* event);
    bool filterBar(QEvent* event);

    Services m_services;
    ElidedLabel* m_caption = nullptr;
    ButtonEx* m_close = nullptr;
    PictureBox* m_strip = nullptr;
    ElidedLabel* m_choicesShown = nullptr;
    ButtonEx* m_optionsButton = nullptr;
    XP_ProgressBar* m_bar = nullptr;
    std::unique_ptr<ListProgress> m_progress;
    QElapsedTimer m_walkShown;
    QFrame* m_searchPanel = nullptr;
    QLineEdit* m_text = nullptr;
    ButtonEx* m_search = nullptr;
    ButtonEx* m_export = nullptr;
    QFrame* m_optionsPanel = nullptr;
    Choice m_match;
    std::array<Choice, 3> m_db;
    QFrame* m_frame = nullptr;
    std::array<QListView*, 2> m_lists{};
    PictureBox* m_splitter = nullptr;
    double m_splitterLeft = 0; ///< in twips
    QFrame* m_importPanel = nullptr;
    ElidedLabel* m_importCaption = nullptr;
    QLineEdit* m_file = nullptr;
    ButtonEx* m_grab = nullptr;
    std::array<QScrollBar*, 2> m_margins{};
    std::array<QLabel*, 2> m_marginNumbers{};
    QLineEdit* m_split = nullptr;
    ButtonEx* m_import = nullptr;
};

} // namespace varnhold
