#pragma once

#include "gamedb/GameListView.h"

#include <QElapsedTimer>

#include <memory>

namespace varnhold {

class DatabasePage;
class DatabaseWatch;
class UpdateList;
class frmMain;
class frmMenu;
class frmSettings;
class frmSplash;

/// Shows the game list's routines on the program's windows.
class GameListOnWindows : public GameListView
{
public:
    struct Windows
    {
        frmMain& main;
        frmMenu& menu;
        frmSettings& settings;
        DatabasePage& databasePage; ///< of the settings
        UpdateList& updates;
        const std::unique_ptr<frmSplash>& splash; ///< null once the program has started
    };

    GameListOnWindows(const Windows& windows, DatabaseWatch& painter) : m_windows(windows), m_painter(painter)
    {
    }

    void showBusy(bool busy) override;
    bool goesOn() override;

    void clearGames() override;
    void clearTitles() override;
    void clearUpdates() override;
    void addGame(const QString& gameId) override;
    void addTitle(const QString& title) override;
    void refreshGames() override;
    [[nodiscard]] int gameCount() const override;
    [[nodiscard]] QString game(int row) const override;
    void selectGame(int row) override;

    void checkIconsEntry(bool checked) override;
    [[nodiscard]] bool iconsEntryChecked() const override;
    void setShowItemImages(bool show) override;
    void setItemImageSize(int size) override;
    void addImage(const QString& file) override;
    void setImageIndex(int row, int image) override;
    void setRedrawFlag(bool redraw) override;

    void setBlank(const QString& text) override;
    void setStatus(const QString& text) override;
    void showListProgress(int value) override;
    void setListProgressMaximum(int maximum) override;
    void setListProgress(int value) override;
    void hideListProgress() override;

    void showBlankPicture() override;
    void clearTitleTexts() override;
    void clearNotes() override;
    void showListViews() override;

    void thankOnDatabasePage(const QString& text) override;

    [[nodiscard]] bool startupInProgress() const override;
    void showStatusOnSplash(const QString& text) override;
    void showMessageOnSplash(const QString& text) override;
    void askForDatabase(const QString& label9) override;
    void askForTables(const QString& caption) override;

private:
    Windows m_windows;
    int m_images = 0; ///< in the game list's strip
    DatabaseWatch& m_painter;
    QElapsedTimer m_painted;
    unsigned m_rows = 0; ///< since the program's start
};

} // namespace varnhold
