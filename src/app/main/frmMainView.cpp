// What the routines of lookup and game list show on the main window.

#include "app/main/CoverPanel.h"
#include "app/main/UpdateListView.h"
#include "app/main/frmMain.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "controls/XP_ProgressBar/ListProgress.h"
#include "controls/XP_ProgressBar/XP_ProgressBar.h"
#include "covers/CoverBox.h"
#include "gamedb/NotesBox.h"
#include "lookup/GameIdBox.h"
#include "platform/ElidedLabel.h"
#include "platform/pictures/PictureReader.h"

#include <QPixmap>

namespace varnhold {

QString frmMain::gameIdText() const
{
    return m_gameId->text();
}

void frmMain::setGameIdText(const QString& text)
{
    m_gameId->setText(text);
}

QString frmMain::info() const
{
    return m_info->text();
}

void frmMain::setInfo(const QString& text)
{
    m_info->setText(text);
}

void frmMain::setBlank(const QString& text)
{
    m_blank->setText(text);
}

void frmMain::setStatus(const QString& text)
{
    m_status->setText(text);
}

void frmMain::hideProgress()
{
    m_progress->hide();
}

void frmMain::showProgress()
{
    m_progress->show();
}

void frmMain::setProgressValue(int percent)
{
    m_progress->setValue(percent);
}

void frmMain::showListViews()
{
    m_cover->showListViews();
}

void frmMain::autosizeColumns()
{
    m_updates->autosizeColumns();
}

int frmMain::selectedGameRow() const
{
    return m_games->ListIndex();
}

QString frmMain::selectedGameText() const
{
    return m_games->Text();
}

QString frmMain::selectTitleRow(int row)
{
    m_titles.setListIndex(row);
    return m_titles.row(row);
}

void frmMain::setTitleRow(int row, const QString& title)
{
    m_titles.setRow(row, title);
}

void frmMain::showBusy(bool busy)
{
    if (busy)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
}

int frmMain::gameCount() const
{
    return m_games->ListCount();
}

void frmMain::removeRow(int row)
{
    m_games->RemoveItem(row);
    m_titles.removeRow(row);
}

QString frmMain::notesText() const
{
    return m_notes->TextRTF();
}

QPixmap frmMain::wholePicture() const
{
    return m_picPreview->wholePicture();
}

qint64 frmMain::pictureKey() const
{
    return m_picPreview->picture().cacheKey();
}

bool frmMain::showsLoadedEntry() const
{
    return m_loadedPicture == pictureKey();
}

void frmMain::showNotes(const QString& rtf)
{
    m_loadedPicture.reset();
    m_notes->setTextRTF(rtf);
}

void frmMain::Make_Links()
{
    m_notes->Make_Links();
    m_loadedPicture = pictureKey(); // the end of an entry's load
}

void frmMain::showStoredPicture(const QByteArray& bytes)
{
    if (!m_picPreview->setPictureFrom([bytes](const QSize& most) { return readPicture(bytes, most); }))
        showBlankPicture();
}

void frmMain::showIfPicture(const QString& path)
{
    const bool isLoaded = showsLoadedEntry();
    m_picPreview->setPictureFrom([path](const QSize& most) { return readPictureFile(path, most); });
    if (isLoaded)
        m_loadedPicture = pictureKey(); // a cover that was fetched for it takes nothing away
}

void frmMain::showCoverFile(const QString& path)
{
    if (!m_picPreview->setPictureFrom([path](const QSize& most) { return readPictureFile(path, most); }))
        showBlankPicture();
}

void frmMain::showBlankPicture()
{
    m_picPreview->setPicture(m_blankPicture ? m_blankPicture() : QPixmap());
}

void frmMain::clearTitleTexts()
{
    m_gameId->clear();
    m_info->clear();
}

void frmMain::clearNotes()
{
    m_loadedPicture.reset();
    m_notes->clear();
    m_notes->setLocked(true);
}

void frmMain::showListProgress(int value)
{
    m_listProgress->show(value);
}

void frmMain::setListProgressMaximum(int maximum)
{
    m_listProgress->setMaximum(maximum);
}

void frmMain::setListProgress(int value)
{
    m_listProgress->setValue(value);
}

void frmMain::hideListProgress()
{
    m_listProgress->hide();
}

} // namespace varnhold
