#pragma once

#include <QString>

namespace varnhold {

/// What the game list's routines show and ask of the windows. Rows count from 0.
class GameListView
{
public:
    virtual ~GameListView() = default;

    virtual void showBusy(bool busy) = 0; ///< the mouse pointer: 11, 0
    /// Called in every walk over many rows: the windows stay painted, and at the start the splash hears its
    /// double click; nothing else happens. False when the program is to end.
    virtual bool goesOn() = 0;

    virtual void clearGames() = 0;                   ///< MorphListBox1.Clear
    virtual void clearTitles() = 0;                  ///< List1.Clear
    virtual void clearUpdates() = 0;                 ///< the rows of ListView1
    virtual void addGame(const QString& gameId) = 0; ///< MorphListBox1.AddItem
    virtual void addTitle(const QString& title) = 0; ///< List1.AddItem
    virtual void refreshGames() = 0;
    [[nodiscard]] virtual int gameCount() const = 0;
    [[nodiscard]] virtual QString game(int row) const = 0; ///< empty for a row that is not there
    virtual void selectGame(int row) = 0;

    virtual void checkIconsEntry(bool checked) = 0; ///< mnuLBIcons
    [[nodiscard]] virtual bool iconsEntryChecked() const = 0;
    virtual void setShowItemImages(bool show) = 0;
    virtual void setItemImageSize(int size) = 0;
    virtual void addImage(const QString& file) = 0;     ///< a file that is not there keeps its slot, empty
    virtual void setImageIndex(int row, int image) = 0; ///< ignored for a row that is not there
    virtual void setRedrawFlag(bool redraw) = 0;

    virtual void setBlank(const QString& text) = 0;  ///< lblBlank
    virtual void setStatus(const QString& text) = 0; ///< lblStatus
    virtual void showListProgress(int value) = 0;    ///< shows ProgressBar1 too
    virtual void setListProgressMaximum(int maximum) = 0;
    virtual void setListProgress(int value) = 0;
    virtual void hideListProgress() = 0;

    virtual void showBlankPicture() = 0; ///< PicPreview takes imgBlank
    virtual void clearTitleTexts() = 0;  ///< txtGameID and lblInfo
    virtual void clearNotes() = 0;       ///< emptied and locked
    virtual void showListViews() = 0;    ///< hides imgPreview; shows ListView1, barMain, txtGameNotes

    /// Label9(1) of the settings' Database page, in the highlight colour.
    virtual void thankOnDatabasePage(const QString& text) = 0;

    [[nodiscard]] virtual bool startupInProgress() const = 0;  ///< the splash is up
    virtual void showStatusOnSplash(const QString& text) = 0;  ///< lblLoading
    virtual void showMessageOnSplash(const QString& text) = 0; ///< lblMessage
    /// The settings window at the main window's corner, owned by it, on the Database page: with a text in
    /// Label9(1) and the focus on txt_IDList.
    virtual void askForDatabase(const QString& label9) = 0;
    /// The same with a text in lbl_Caption instead.
    virtual void askForTables(const QString& caption) = 0;
};

} // namespace varnhold
