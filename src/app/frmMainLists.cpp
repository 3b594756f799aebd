// What the two lists of the main window do under mouse and keys.

#include "app/UpdateListView.h"
#include "app/frmMain.h"
#include "controls/CTooltip/CTooltip.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "lookup/TitleCleaner.h"
#include "lookup/UpdateList.h"
#include "lookup/UpdateListTip.h"
#include "platform/HandCursors.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/Sounds.h"

#include <QLabel>
#include <QTextEdit>
#include <QToolTip>

namespace varnhold {

using namespace Qt::StringLiterals;

void frmMain::connectGames()
{
    connect(m_games, &MorphListBox::Click, this, &frmMain::onGameClick);
    connect(m_games, &MorphListBox::DblClick, this, &frmMain::gameRowDoubleClicked);
    connect(m_games, &MorphListBox::KeyDown, this, [this](int key) {
        constexpr int enter = 13;
        if (key == enter)
            Q_EMIT fetchRequested();
    });
    connect(m_games, &MorphListBox::KeyUp, this, &frmMain::onGameKeyUp);
    connect(m_games, &MorphListBox::MouseDown, this, [this](int, int, int, int y) { onGameMouseDown(y); });
    connect(m_games, &MorphListBox::MouseMove, this, [this](int, int, int, int y) { onGameMouseMove(y); });
}

void frmMain::onGameClick()
{
    m_services.sounds.play(Sound::Click);
    if (selectedGameText().isEmpty())
        return;
    showListViews();
    m_services.list.clear();
    m_services.state.LookupID = selectedGameText().left(9);
    setGameIdText(m_services.state.LookupID);
    showTitle(selectTitleRow(selectedGameRow()));
}

void frmMain::showTitle(const QString& title)
{
    const QString cleaned = cleanTitle(title, m_services.settings, gameIdText());
    if (!cleaned.isEmpty())
        setInfo(cleaned);
}

void frmMain::onGameKeyUp()
{
    // Every key comes this way, the one that started a lookup too: its release clears the rows. This is
    // meant.
    m_picPreview->setPixmap(m_blankPicture ? m_blankPicture() : QPixmap());
    m_notes->clear();
    showListViews();
    m_services.list.clear();
    setGameIdText(selectedGameText());
    showTitle(selectTitleRow(selectedGameRow()));
    showCover(gameIdText());
}

void frmMain::showCover(const QString& gameId)
{
    const QString& folder = m_services.settings.covers().tag;
    if (folder.isEmpty())
        return;
    const QPixmap cover(folder + u'/' + gameId + u".jpg"_s);
    if (!cover.isNull())
        m_picPreview->setPixmap(
            cover.scaled(m_picPreview->size(), Qt::KeepAspectRatio, Qt::SmoothTransformation));
}

void frmMain::onGameMouseDown(int y)
{
    const int row = m_games->MouseOverIndex(y);
    if (row >= 0)
        m_games->setListIndex(row);
}

void frmMain::onGameMouseMove(int y)
{
    const int row = m_games->MouseOverIndex(y);
    const QString tip = m_games->List(row) + u"-["_s + selectTitleRow(row) + u"]"_s;
    if (tip == m_games->toolTip())
        return;
    m_games->setToolTip(tip);
    if (QToolTip::isVisible())
        QToolTip::showText(QCursor::pos(), tip, m_games);
}

void frmMain::connectUpdates()
{
    connect(m_updates, &UpdateListView::rowHovered, this, &frmMain::onUpdateHover);
    connect(m_updates, &UpdateListView::buttonPressed, this,
            [this] { m_updates->viewport()->setCursor(imgCurser(2)); });
    connect(m_updates, &UpdateListView::buttonReleased, this, [this] {
        m_services.sounds.play(Sound::Menu);
        m_updates->viewport()->setCursor(imgCurser(0));
    });
    connect(m_updates, &UpdateListView::menuWanted, this, &frmMain::mnuLViewWanted);
    connect(m_updates, &UpdateListView::rowActivated, this, [this] {
        m_services.sounds.play(Sound::Click);
        Q_EMIT updateRowActivated();
    });
}

void frmMain::createToolTip()
{
    m_toolTip = new CTooltip(this);
    m_toolTip->setStyle(1);
    m_toolTip->setIcon(1);
}

void frmMain::onUpdateHover(int row)
{
    QWidget* view = m_updates->viewport();
    if (m_toolTip == nullptr)
        return;
    m_toolTip->Destroy();
    view->setToolTip({});
    if (row == 0)
        return;
    const UpdateList& list = m_services.list;
    if (!list.hasSubItem(row, UpdateList::Url)) {
        view->setToolTip(list.text(row));
        return;
    }
    m_toolTip->setTitle(m_tipTitle ? m_tipTitle() : QString());
    m_toolTip->setTipText(updateListTip(list, row));
    m_toolTip->Create(view);
}

} // namespace varnhold
