// What the window system tells the list, and what the list raises.
#include "controls/MorphListBox/MorphListBox.h"
#include "controls/MorphListBox/MorphListKeys.h"

#include <QApplication>
#include <QDrag>
#include <QElapsedTimer>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPointer>

namespace varnhold {

namespace {

constexpr int releasePatience = 10; // ms

int shiftOf(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::ShiftModifier) ? shiftstate::shift : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? shiftstate::ctrl : 0) |
           (modifiers.testFlag(Qt::AltModifier) ? shiftstate::alt : 0);
}

int buttonOf(Qt::MouseButtons buttons)
{
    return (buttons.testFlag(Qt::LeftButton) ? mousebutton::left : 0) |
           (buttons.testFlag(Qt::RightButton) ? mousebutton::right : 0) |
           (buttons.testFlag(Qt::MiddleButton) ? mousebutton::middle : 0);
}

qint64 now()
{
    QElapsedTimer clock;
    clock.start();
    return clock.msecsSinceReference();
}

} // namespace

void MorphListBox::resizeEvent(QResizeEvent*)
{
    lookChanged();
    Q_EMIT Resize();
}

void MorphListBox::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::EnabledChange:
        m_model->setEnabled(!testAttribute(Qt::WA_ForceDisabled));
        lookChanged();
        break;
    case QEvent::FontChange:
    case QEvent::StyleChange:
        lookChanged();
        break;
    default:
        break;
    }
}

void MorphListBox::mousePressEvent(QMouseEvent* event)
{
    m_pressed = event->position().toPoint();
    deliver(m_model->press(buttonOf(event->button()), shiftOf(event->modifiers()), m_pressed, now()));
}

void MorphListBox::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint position = event->position().toPoint();
    const QPointer<MorphListBox> alive(this);
    deliver(m_model->move(buttonOf(event->buttons()), shiftOf(event->modifiers()), position));
    if (alive && m_model->dragEnabled && m_model->capture() == CaptureMode::SelectingRows &&
        (position - m_pressed).manhattanLength() >= QApplication::startDragDistance())
        dragRows();
}

void MorphListBox::mouseReleaseEvent(QMouseEvent* event)
{
    const QPoint position = event->position().toPoint();
    deliver(m_model->release(buttonOf(event->button()), shiftOf(event->modifiers()), position,
                             rect().contains(position)));
}

void MorphListBox::mouseDoubleClickEvent(QMouseEvent* event)
{
    deliver(m_model->doubleClick(buttonOf(event->button()), shiftOf(event->modifiers()),
                                 event->position().toPoint(), now()));
}

void MorphListBox::wheelEvent(QWheelEvent* event)
{
    const QPoint delta = event->angleDelta();
    if (delta.y() == 0 && delta.x() != 0) {
        event->ignore();
        return;
    }
    if (isWholeNotch(delta.y()))
        m_model->wheel(delta.y());
    deliver({});
}

void MorphListBox::keyPressEvent(QKeyEvent* event)
{
    m_keys.pressed(*event);
    const int key = keyCodeOf(event->key());
    if (m_release && m_release->key == key && m_release->time == event->timestamp())
        m_release.reset(); // the key is still held
    // What the list makes nothing of is left to its window.
    event->setAccepted(key == keycode::enter || (key >= keycode::space && key <= keycode::down));
    const QString text = event->text();
    const QPointer<MorphListBox> alive(this);
    tellRelease();
    if (alive)
        deliver(m_model->keyDown(key, shiftOf(event->modifiers())));
    if (alive && !text.isEmpty() && Enabled())
        Q_EMIT KeyPress(text.at(0).unicode());
}

void MorphListBox::keyReleaseEvent(QKeyEvent* event)
{
    if (event->isAutoRepeat())
        return; // the key is still held
    tellRelease();
    if (!m_keys.released(*event))
        return;
    m_release = {keyCodeOf(event->key()), shiftOf(event->modifiers()), event->timestamp()};
    // The toolkit knows a repetition only when the press of the same moment has come in already.
    if (event->timestamp() != 0)
        m_releaseTimer.start(releasePatience, this);
    else
        tellRelease();
}

void MorphListBox::tellRelease()
{
    m_releaseTimer.stop();
    if (const std::optional<KeyRelease> release = std::exchange(m_release, std::nullopt))
        deliver(m_model->keyUp(release->key, release->shift));
}

void MorphListBox::focusInEvent(QFocusEvent*)
{
    m_model->focusIn();
    deliver({});
}

void MorphListBox::focusOutEvent(QFocusEvent*)
{
    m_keys.forget();
    const QPointer<MorphListBox> alive(this);
    tellRelease();
    if (alive)
        deliver(m_model->focusOut());
}

void MorphListBox::leaveEvent(QEvent*)
{
    deliver(m_model->leave());
}

void MorphListBox::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_beat.timerId())
        deliver(m_model->beat(now()));
    else if (event->timerId() == m_releaseTimer.timerId())
        tellRelease();
    else
        QWidget::timerEvent(event);
}

void MorphListBox::dragRows()
{
    auto* const drag = new QDrag(this);
    auto* const text = new QMimeData;
    text->setText(m_model->dragText());
    drag->setMimeData(text);
    const QPointer<MorphListBox> alive(this);
    drag->exec(Qt::CopyAction);
    if (alive)
        m_model->cancelCapture(); // the drag has swallowed the release
}

bool MorphListBox::isWholeNotch(int delta)
{
    constexpr int notch = QWheelEvent::DefaultDeltasPerStep;
    if (delta == 0 || qAbs(delta) >= notch) {
        m_partOfNotch = 0;
        return true;
    }
    // A fine wheel or a touch pad: its first piece counts, the rest of that notch does not.
    if (m_partOfNotch == 0 || (m_partOfNotch < 0) != (delta < 0)) {
        m_partOfNotch = delta;
        return true;
    }
    m_partOfNotch += delta;
    if (qAbs(m_partOfNotch) <= notch)
        return false;
    m_partOfNotch -= delta < 0 ? -notch : notch;
    return true;
}

void MorphListBox::deliver(const MorphListEvents& events)
{
    repaintDirty();
    if (m_model->repeating() && !m_beat.isActive())
        m_beat.start(MorphListConstants::repeatPoll, this);
    else if (!m_model->repeating())
        m_beat.stop();

    // A listener may end this list; nothing of it is touched after that.
    const QPointer<MorphListBox> alive(this);
    for (const MorphListEvent& event : events) {
        if (!alive)
            return;
        const int x = event.position.x();
        const int y = event.position.y();
        switch (event.kind) {
        case MorphListEvent::Kind::Click:
            Q_EMIT Click();
            break;
        case MorphListEvent::Kind::DblClick:
            Q_EMIT DblClick();
            break;
        case MorphListEvent::Kind::KeyDown:
            Q_EMIT KeyDown(event.code, event.shift);
            break;
        case MorphListEvent::Kind::KeyUp:
            Q_EMIT KeyUp(event.code, event.shift);
            break;
        case MorphListEvent::Kind::MouseDown:
            Q_EMIT MouseDown(event.code, event.shift, x, y);
            break;
        case MorphListEvent::Kind::MouseMove:
            Q_EMIT MouseMove(event.code, event.shift, x, y);
            break;
        case MorphListEvent::Kind::MouseUp:
            Q_EMIT MouseUp(event.code, event.shift, x, y);
            break;
        case MorphListEvent::Kind::MouseEnter:
            Q_EMIT MouseEnter();
            break;
        case MorphListEvent::Kind::MouseExit:
            Q_EMIT MouseExit();
            break;
        }
    }
}

} // namespace varnhold
