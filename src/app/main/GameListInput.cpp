#include "app/main/GameListInput.h"

#include "controls/MorphListBox/MorphListBox.h"
#include "controls/MorphListBox/MorphListKeys.h"
#include "gamedb/GameSelection.h"
#include "lookup/LookupView.h"
#include "platform/ToolTipText.h"

#include <QContextMenuEvent>
#include <QCursor>
#include <QToolTip>

namespace varnhold {

using namespace Qt::StringLiterals;

GameListInput::GameListInput(MorphListBox& games, GameSelection& selection, LookupView& view)
    : m_games(games), m_view(view)
{
    connect(&games, &MorphListBox::Click, this, [&selection] { selection.MorphListBox1_Click(); });
    connect(&games, &MorphListBox::DblClick, this, &GameListInput::rowDoubleClicked);
    connect(&games, &MorphListBox::KeyDown, this, [this](int key) {
        if (key == keycode::enter)
            Q_EMIT enterPressed();
    });
    connect(&games, &MorphListBox::KeyUp, this, [&selection] { selection.MorphListBox1_KeyUp(); });
    connect(&games, &MorphListBox::MouseDown, this, [this](int, int, int x, int y) { onMouseDown({x, y}); });
    connect(&games, &MorphListBox::MouseMove, this, [this](int, int, int, int y) { onMouseMove(y); });
    connect(&games, &MorphListBox::MouseUp, this, [this](int button, int, int x, int y) {
        if (button == mousebutton::right)
            Q_EMIT menuWanted(m_games.mapToGlobal(QPoint(x, y)));
    });
    games.installEventFilter(this);
}

void GameListInput::onMouseDown(const QPoint& position)
{
    // A press on the scroll bar scrolls, also on its arrows, beside which no row may lie.
    if (m_games.isRowsZone(position))
        m_games.setListIndex(m_games.MouseOverIndex(position.y()));
}

void GameListInput::onMouseMove(int y)
{
    // Below the last row, too: the tip is then that of no row, which is meant.
    const int row = m_games.MouseOverIndex(y);
    const QString tip = toolTipText(m_games.List(row) + u"-["_s + m_view.selectTitleRow(row) + u"]"_s);
    if (tip == m_games.toolTip())
        return;
    m_games.setToolTip(tip);
    if (QToolTip::isVisible())
        QToolTip::showText(QCursor::pos(), tip, &m_games);
}

bool GameListInput::eventFilter(QObject*, QEvent* event)
{
    if (event->type() != QEvent::ContextMenu)
        return false;
    // With the mouse the list's own event opens the menu, when the button comes up.
    if (static_cast<QContextMenuEvent*>(event)->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT menuWanted(m_games.mapToGlobal(m_games.rowRect(m_games.ListIndex()).bottomLeft()));
    return true;
}

} // namespace varnhold
