#include "app/GameListOnWindows.h"

#include "app/main/frmMain.h"
#include "app/menu/frmMenu.h"
#include "app/settings/DatabasePage.h"
#include "app/settings/frmSettings.h"
#include "app/start/SplashEars.h"
#include "app/start/frmSplash.h"
#include "appearance/SkinPictures.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "lookup/UpdateList.h"
#include "platform/database/DatabaseWatch.h"
#include "state/ErrorReport.h"

#include <QAction>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int paintInterval = 100; // ms

} // namespace

bool GameListOnWindows::goesOn()
{
    // A look at the clock costs more than a row.
    constexpr int rowsBetween = 256;
    if (++m_rows % rowsBetween != 0)
        return true;
    if (!m_painted.isValid())
        m_painted.start();
    if (m_painted.elapsed() < paintInterval)
        return true;
    m_painter.keepPainted();
    if (m_windows.splash)
        SplashEars(*m_windows.splash).listen();
    m_painted.start();
    return !m_windows.splash || !m_windows.splash->isAbandoned();
}

void GameListOnWindows::showBusy(bool busy)
{
    m_painted.start();
    m_windows.main.showBusy(busy);
    // The choice of another database starts from there.
    if (busy)
        m_windows.settings.setCursor(Qt::WaitCursor);
    else
        m_windows.settings.unsetCursor();
}

void GameListOnWindows::clearGames()
{
    m_windows.main.games().Clear();
}

void GameListOnWindows::clearTitles()
{
    m_windows.main.titles().clear();
}

void GameListOnWindows::clearUpdates()
{
    m_windows.updates.clear();
}

void GameListOnWindows::addGame(const QString& gameId)
{
    m_windows.main.games().AddItem(gameId);
}

void GameListOnWindows::addTitle(const QString& title)
{
    m_windows.main.titles().addItem(title);
}

void GameListOnWindows::refreshGames()
{
    m_windows.main.games().Refresh();
}

int GameListOnWindows::gameCount() const
{
    return m_windows.main.games().ListCount();
}

QString GameListOnWindows::game(int row) const
{
    return m_windows.main.games().List(row);
}

void GameListOnWindows::selectGame(int row)
{
    m_windows.main.games().setListIndex(row);
}

void GameListOnWindows::checkIconsEntry(bool checked)
{
    m_windows.menu.entry(u"mnuLBIcons"_s).setChecked(checked);
}

bool GameListOnWindows::iconsEntryChecked() const
{
    return m_windows.menu.entry(u"mnuLBIcons"_s).isChecked();
}

void GameListOnWindows::setShowItemImages(bool show)
{
    m_windows.main.games().setShowItemImages(show);
}

void GameListOnWindows::setItemImageSize(int size)
{
    m_windows.main.games().setItemImageSize(size);
}

void GameListOnWindows::addImage(const QString& file)
{
    constexpr int usedImages = 7;
    if (m_images == usedImages)
        return;
    ++m_images;
    const qsizetype cut = file.lastIndexOf(u'/');
    QPixmap picture;
    silently([&] { picture = SkinPictures(file.left(cut)).load(file.mid(cut + 1)); });
    m_windows.main.games().AddImage(picture);
}

void GameListOnWindows::setImageIndex(int row, int image)
{
    m_windows.main.games().setImageIndex(row, image);
}

void GameListOnWindows::setRedrawFlag(bool redraw)
{
    m_windows.main.games().setRedrawFlag(redraw);
}

void GameListOnWindows::setBlank(const QString& text)
{
    m_windows.main.setBlank(text);
}

void GameListOnWindows::setStatus(const QString& text)
{
    m_windows.main.setStatus(text);
}

void GameListOnWindows::showListProgress(int value)
{
    m_windows.main.showListProgress(value);
}

void GameListOnWindows::setListProgressMaximum(int maximum)
{
    m_windows.main.setListProgressMaximum(maximum);
}

void GameListOnWindows::setListProgress(int value)
{
    m_windows.main.setListProgress(value);
}

void GameListOnWindows::hideListProgress()
{
    m_windows.main.hideListProgress();
}

void GameListOnWindows::showBlankPicture()
{
    m_windows.main.showBlankPicture();
}

void GameListOnWindows::clearTitleTexts()
{
    m_windows.main.clearTitleTexts();
}

void GameListOnWindows::clearNotes()
{
    m_windows.main.clearNotes();
}

void GameListOnWindows::showListViews()
{
    m_windows.main.showListViews();
}

void GameListOnWindows::thankOnDatabasePage(const QString& text)
{
    m_windows.databasePage.thankForDatabase(text);
}

bool GameListOnWindows::startupInProgress() const
{
    return m_windows.splash != nullptr;
}

void GameListOnWindows::showStatusOnSplash(const QString& text)
{
    if (m_windows.splash)
        m_windows.splash->setStatus(text);
}

void GameListOnWindows::showMessageOnSplash(const QString& text)
{
    if (m_windows.splash)
        m_windows.splash->setMessage(text);
}

void GameListOnWindows::askForDatabase(const QString& label9)
{
    m_windows.settings.showPageOver(m_windows.main, m_windows.databasePage);
    m_windows.databasePage.askForDatabase(label9);
}

void GameListOnWindows::askForTables(const QString& caption)
{
    m_windows.settings.showPageOver(m_windows.main, m_windows.databasePage);
    m_windows.settings.showCaption(caption);
}

} // namespace varnhold
