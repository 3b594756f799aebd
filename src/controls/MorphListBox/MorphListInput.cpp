// Mouse, keys, wheel and focus of the list model.
#include "controls/MorphListBox/MorphListKeys.h"
#include "controls/MorphListBox/MorphListModel.h"

#include <algorithm>
#include <utility>

namespace varnhold {

using Kind = MorphListEvent::Kind;

MorphListEvents MorphListModel::press(int button, int shift, QPoint position, qint64 now)
{
    if (!m_enabled)
        return {};
    const MorphListEvent down{Kind::MouseDown, button, shift, position};
    m_position = position;
    m_zone = metrics().zoneAt(position);
    m_pressedButton = button;
    if (button == mousebutton::right)
        return {down}; // the selection stays

    MorphListEvents events;
    endCapture(events); // of another button
    m_pressedRow = -1;
    switch (m_zone) {
    case HitZone::Rows:
        m_pressedRow = MouseOverIndex(position.y());
        if (m_pressedRow >= 0) {
            m_capture = CaptureMode::SelectingRows;
            const MorphListShown before = shown();
            m_selection.press(m_pressedRow, shift);
            selectionChanged(before);
        }
        break;
    case HitZone::UpperArrow:
        hold(CaptureMode::UpperArrow, now, down);
        return events;
    case HitZone::LowerArrow:
        hold(CaptureMode::LowerArrow, now, down);
        return events;
    case HitZone::Track:
        hold(metrics().aboveThumb(position) ? CaptureMode::PageUp : CaptureMode::PageDown, now, down);
        return events;
    case HitZone::Thumb:
        m_capture = CaptureMode::Thumb;
        m_grip = position.y() - metrics().thumb().top();
        break;
    }
    events.append(down);
    return events;
}

MorphListEvents MorphListModel::move(int button, int shift, QPoint position)
{
    if (!m_enabled)
        return {};
    MorphListEvents events;
    if (!m_tracking) {
        m_tracking = true;
        events.append({Kind::MouseEnter, 0, 0, {}});
    }
    m_position = position;
    m_zone = metrics().zoneAt(position);
    m_hoverRow = m_zone == HitZone::Rows ? MouseOverIndex(position.y()) : -1;
    if (m_capture == CaptureMode::Thumb) {
        scrolled(m_scroll.setFirst(metrics().firstRowFor(position.y() - m_grip)));
    } else if (m_capture == CaptureMode::SelectingRows && m_hoverRow >= 0 && !dragEnabled) {
        dragTo(m_hoverRow);
    } else if (m_repeat.held() && onHeldPart()) {
        m_repeat.resume();
    }
    events.append({Kind::MouseMove, button, shift, position});
    return events;
}

MorphListEvents MorphListModel::release(int button, int shift, QPoint position, bool inside)
{
    if (!m_enabled)
        return {};
    m_position = position;
    MorphListEvents events;
    events.append({Kind::MouseUp, button, shift, position});
    if (button == mousebutton::right)
        return events;
    endCapture(events);
    if (button == mousebutton::left && inside && m_pressedButton == button && contains(m_pressedRow))
        events.append({Kind::Click, 0, 0, {}});
    m_pressedButton = 0;
    return events;
}

MorphListEvents MorphListModel::doubleClick(int button, int shift, QPoint position, qint64 now)
{
    if (!m_enabled)
        return {};
    const bool onRows = metrics().zoneAt(position) == HitZone::Rows;
    if (button != mousebutton::left || !onRows || checkList() || dblClickBehavior == 0)
        return press(button, shift, position, now);
    m_pressedButton = 0; // the release that follows is no second click
    return {{Kind::DblClick, 0, 0, {}}};
}

MorphListEvents MorphListModel::leave()
{
    m_hoverRow = -1;
    if (!std::exchange(m_tracking, false) || !m_enabled)
        return {};
    return {{Kind::MouseExit, 0, 0, {}}};
}

MorphListEvents MorphListModel::beat(qint64 now)
{
    if (m_repeat.beat(now, onHeldPart()))
        stepHeld();
    const int drag = dragScroll();
    if (drag != 0 && count() > 0 && now - m_dragStep >= MorphListConstants::repeatInterval) {
        m_dragStep = now;
        dragTo(std::clamp(drag < 0 ? topIndex() - 1 : lastVisible() + 1, 0, count() - 1));
    }
    MorphListEvents events;
    if (m_repeat.state() == MorphListRepeat::State::Resting && m_heldDown)
        events.append(*std::exchange(m_heldDown, std::nullopt));
    return events;
}

MorphListEvents MorphListModel::keyDown(int keyCode, int shift)
{
    if (!m_enabled)
        return {};
    settle();
    static_cast<void>(metrics());
    m_shift = (shift & shiftstate::shift) != 0;
    m_ctrl = (shift & shiftstate::ctrl) != 0;
    const int focus = m_selection.focusRow();
    const int page = std::max(1, m_scroll.rows());
    switch (keyCode) {
    case keycode::shift:
        m_selection.storeAnchor();
        break;
    case keycode::pageDown:
        moveFocus(focus + page, shift);
        break;
    case keycode::pageUp:
        moveFocus(focus - page, shift);
        break;
    case keycode::end:
        moveFocus(count() - 1, shift);
        break;
    case keycode::home:
        moveFocus(0, shift);
        break;
    case keycode::left:
    case keycode::up:
        moveFocus(focus - 1, shift);
        break;
    case keycode::right:
    case keycode::down:
        moveFocus(focus + 1, shift);
        break;
    case keycode::space: {
        const MorphListShown before = shown();
        m_selection.toggleFocusRow();
        selectionChanged(before);
        break;
    }
    default:
        break;
    }
    return {{Kind::KeyDown, keyCode, shift, {}}};
}

MorphListEvents MorphListModel::keyUp(int keyCode, int shift)
{
    if (!m_enabled)
        return {};
    m_shift = (shift & shiftstate::shift) != 0;
    m_ctrl = (shift & shiftstate::ctrl) != 0;
    return {{Kind::KeyUp, keyCode, shift, {}}};
}

void MorphListModel::wheel(int delta)
{
    if (!m_enabled || !m_focused)
        return;
    static_cast<void>(metrics());
    scrolled(m_scroll.step(delta < 1 ? 1 : -1));
}

void MorphListModel::focusIn()
{
    m_focused = true;
    m_dirty.all = true; // the border changes its colours
}

MorphListEvents MorphListModel::focusOut()
{
    MorphListEvents events;
    m_focused = false;
    m_shift = m_ctrl = false;
    m_dirty.all = true;
    endCapture(events);
    return events;
}

void MorphListModel::cancelCapture()
{
    MorphListEvents unheard;
    endCapture(unheard);
}

MorphListEvents MorphListModel::activate(int index)
{
    if (!m_enabled || !contains(index))
        return {};
    const MorphListShown before = shown();
    m_selection.press(index, 0);
    selectionChanged(before);
    scrolled(m_scroll.showRow(index));
    return {{Kind::Click, 0, 0, {}}};
}

QString MorphListModel::dragText()
{
    settle();
    QStringList texts;
    for (int i = 0; i < count(); ++i) {
        if (m_selection.showsSelected(i))
            texts.append(m_items.text(i));
    }
    return texts.join(u'\n');
}

void MorphListModel::hold(CaptureMode mode, qint64 now, const MorphListEvent& down)
{
    m_capture = mode;
    m_heldDown = down;
    m_repeat.start(now);
    m_dirty.scrollBar = true;
    stepHeld();
}

void MorphListModel::stepHeld()
{
    static_cast<void>(metrics());
    switch (m_capture) {
    case CaptureMode::UpperArrow:
        scrolled(m_scroll.step(-1));
        break;
    case CaptureMode::LowerArrow:
        scrolled(m_scroll.step(1));
        break;
    case CaptureMode::PageUp:
        scrolled(m_scroll.page(-1));
        break;
    case CaptureMode::PageDown:
        scrolled(m_scroll.page(1));
        break;
    case CaptureMode::None:
    case CaptureMode::SelectingRows:
    case CaptureMode::Thumb:
        break;
    }
}

bool MorphListModel::onHeldPart()
{
    const HitZone zone = metrics().zoneAt(m_position);
    switch (m_capture) {
    case CaptureMode::UpperArrow:
        return zone == HitZone::UpperArrow;
    case CaptureMode::LowerArrow:
        return zone == HitZone::LowerArrow;
    case CaptureMode::PageUp:
        return zone == HitZone::Track && metrics().aboveThumb(m_position);
    case CaptureMode::PageDown:
        return zone == HitZone::Track && !metrics().aboveThumb(m_position);
    case CaptureMode::None:
    case CaptureMode::SelectingRows:
    case CaptureMode::Thumb:
        break;
    }
    return false;
}

int MorphListModel::dragScroll() const
{
    if (m_capture != CaptureMode::SelectingRows || dragEnabled || !m_selection.extendsByDrag())
        return 0;
    return m_position.y() < 0 ? -1 : int(m_position.y() >= m_measure.ScaleHeight);
}

void MorphListModel::dragTo(int row)
{
    const MorphListShown before = shown();
    m_selection.drag(row);
    selectionChanged(before);
    scrolled(m_scroll.showRow(row));
}

void MorphListModel::moveFocus(int row, int shift)
{
    if (count() == 0)
        return;
    const MorphListShown before = shown();
    m_selection.moveTo(std::clamp(row, 0, count() - 1), shift);
    selectionChanged(before);
    scrolled(m_scroll.showRow(m_selection.focusRow()));
}

void MorphListModel::endCapture(MorphListEvents& events)
{
    if (std::exchange(m_capture, CaptureMode::None) > CaptureMode::SelectingRows)
        m_dirty.scrollBar = true;
    m_repeat.stop();
    if (m_heldDown)
        events.append(*std::exchange(m_heldDown, std::nullopt));
}

} // namespace varnhold
