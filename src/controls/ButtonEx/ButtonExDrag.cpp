#include "controls/ButtonEx/ButtonEx.h"

#include <QDrag>
#include <QDragEnterEvent>
#include <QMimeData>
#include <QPointer>

namespace varnhold {

namespace {

constexpr int copyEffect = 1;
constexpr int moveEffect = 2;
constexpr int entering = 0;
constexpr int leaving = 1;
constexpr int over = 2;

Qt::DropAction actionOf(int effect)
{
    if ((effect & moveEffect) != 0)
        return Qt::MoveAction;
    return (effect & copyEffect) != 0 ? Qt::CopyAction : Qt::IgnoreAction;
}

int effectOf(Qt::DropAction action)
{
    if (action == Qt::MoveAction)
        return moveEffect;
    return action == Qt::CopyAction ? copyEffect : 0;
}

int buttonOf(Qt::MouseButtons buttons)
{
    return (buttons.testFlag(Qt::LeftButton) ? 1 : 0) | (buttons.testFlag(Qt::RightButton) ? 2 : 0);
}

int shiftOf(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) | (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

} // namespace

void ButtonEx::OLEDrag()
{
    auto* dragged = new QMimeData;
    int allowed = copyEffect;
    const QPointer<ButtonEx> alive(this);
    m_state.dispatch(ButtonExEvent::OLEStartDrag, {});
    if (alive)
        Q_EMIT OLEStartDrag(dragged, &allowed);
    if (!alive || allowed == 0 || dragged->formats().isEmpty()) {
        delete dragged;
        return;
    }
    auto* drag = new QDrag(this);
    drag->setMimeData(dragged);
    connect(drag, &QDrag::actionChanged, this, [this](Qt::DropAction action) {
        if (m_state.dispatch(ButtonExEvent::OLEGiveFeedback, {}))
            Q_EMIT OLEGiveFeedback(effectOf(action));
    });
    const Qt::DropActions actions = ((allowed & copyEffect) != 0 ? Qt::CopyAction : Qt::IgnoreAction) |
                                    ((allowed & moveEffect) != 0 ? Qt::MoveAction : Qt::IgnoreAction);
    const Qt::DropAction done = drag->exec(actions);
    if (alive && m_state.dispatch(ButtonExEvent::OLECompleteDrag, {}))
        Q_EMIT OLECompleteDrag(effectOf(done));
}

void ButtonEx::showDrag(QDropEvent* event, int state)
{
    int effect = copyEffect;
    const QPointer<ButtonEx> alive(this);
    m_state.dispatch(ButtonExEvent::OLEDragOver, {});
    Q_EMIT OLEDragOver(event->mimeData(), &effect, buttonOf(event->buttons()), shiftOf(event->modifiers()),
                       event->position().x(), event->position().y(), state);
    if (!alive || effect == 0) {
        event->ignore();
        return;
    }
    event->setDropAction(actionOf(effect));
    event->accept();
}

void ButtonEx::dragEnterEvent(QDragEnterEvent* event)
{
    showDrag(event, entering);
}

void ButtonEx::dragMoveEvent(QDragMoveEvent* event)
{
    showDrag(event, over);
}

void ButtonEx::dragLeaveEvent(QDragLeaveEvent*)
{
    int effect = 0;
    m_state.dispatch(ButtonExEvent::OLEDragOver, {});
    Q_EMIT OLEDragOver(nullptr, &effect, 0, 0, 0, 0, leaving);
}

void ButtonEx::dropEvent(QDropEvent* event)
{
    int effect = copyEffect;
    m_state.dispatch(ButtonExEvent::OLEDragDrop, {});
    Q_EMIT OLEDragDrop(event->mimeData(), &effect, buttonOf(event->buttons()), shiftOf(event->modifiers()),
                       event->position().x(), event->position().y());
    event->setDropAction(actionOf(effect));
    event->setAccepted(effect != 0);
}

} // namespace varnhold
