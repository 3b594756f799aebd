// What a lookup shows on the main window.

#include "app/GameIdBox.h"
#include "app/UpdateListView.h"
#include "app/frmMain.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "controls/XP_ProgressBar/XP_ProgressBar.h"
#include "platform/ElidedLabel.h"

#include <QTextEdit>

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
    m_imgPreview->hide();
    m_updates->show();
    m_barMain->show();
    m_notes->show();
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

} // namespace varnhold
