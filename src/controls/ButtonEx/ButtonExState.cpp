#include "controls/ButtonEx/ButtonExState.h"

#include <algorithm>

namespace varnhold {

using namespace buttonstate;

namespace {
constexpr int leftButton = 1;
constexpr int skinAppearance = 2;
} // namespace

ButtonExState::ButtonExState(Host& host) : m_host(host) {}

bool ButtonExState::isSkinned() const
{
    return m_appearance == skinAppearance && m_faceSet[up];
}

void ButtonExState::SetState(int state)
{
    // A press that was dragged out stays un-pressed until another event is raised.
    if (m_lastEvent == ButtonExEvent::MouseExit && state == pressed)
        return;
    show(state);
}

void ButtonExState::redrawState()
{
    show(m_state);
}

void ButtonExState::show(int state)
{
    state = std::clamp(state, pressed, focused);
    if (m_style == 1) {
        if (m_value == 0)
            state = pressed;
        else if (state != over)
            state = up;
    }
    m_state = state;
    m_bevel = m_enabled || m_style == 1 ? state : disabled;
    if (isSkinned()) {
        if (!m_enabled)
            state = disabled;
        if (m_focused && state == up)
            state = focused;
        // A face that is missing leaves the one before in place.
        if (m_faceSet.at(static_cast<std::size_t>(state)))
            m_face = state;
        else if (m_face < 0)
            m_face = up;
    }
    m_shown = m_enabled ? state : disabled;
    m_captionHighlighted = m_shown == over || (m_shown == pressed && m_lastEvent != ButtonExEvent::MouseExit);
    m_host.redraw();
}

void ButtonExState::setAppearance(int appearance)
{
    m_appearance = appearance;
    redrawState();
}

void ButtonExState::setStyle(int style)
{
    m_style = style == 1 ? 1 : 0;
    redrawState();
}

void ButtonExState::setValue(int value)
{
    m_value = value == 0 ? 0 : 1;
    // A push button keeps its look; a toggle button takes the one of its value.
    show(m_style == 1 && m_state != over ? up : m_state);
}

void ButtonExState::setEnabled(bool enabled)
{
    m_enabled = enabled;
    SetState(enabled ? up : disabled);
}

void ButtonExState::setFocused(bool isFocused)
{
    m_focused = isFocused;
    redrawState();
}

void ButtonExState::setFaceSet(int state, bool set)
{
    m_faceSet.at(static_cast<std::size_t>(state)) = set;
}

void ButtonExState::press()
{
    m_leftDuringPress = false;
    m_value = m_state != pressed ? 0 : 1; // push buttons too
    SetState(pressed);
}

bool ButtonExState::mouseDown(const ButtonExArguments& at)
{
    if (at.button == leftButton)
        press();
    return dispatch(ButtonExEvent::MouseDown, at);
}

bool ButtonExState::mouseMove(const ButtonExArguments& at, bool inside)
{
    const bool held = (at.button & leftButton) != 0;
    m_leftDuringPress = false;
    if (inside)
        m_host.startTimer1();
    if (at.button == 0 && m_state != over)
        SetState(over);
    if (held && m_state != pressed)
        SetState(pressed);
    if (!inside)
        return true;
    if (!m_entered) {
        m_entered = true;
        if (!dispatch(ButtonExEvent::MouseEnter, at))
            return false;
    }
    if (!dispatch(ButtonExEvent::MouseMove, at))
        return false;
    // Back inside with the button still down: MouseExit is no longer the last event, so the pressed face may
    // return with this very move.
    if (held && m_state != pressed)
        SetState(pressed);
    return true;
}

bool ButtonExState::mouseUp(const ButtonExArguments& at)
{
    if (at.button == leftButton) {
        m_leftDuringPress = false;
        SetState(up);
    }
    return dispatch(ButtonExEvent::MouseUp, at);
}

bool ButtonExState::pollCursor(bool inside)
{
    if (inside) {
        if (m_leftDuringPress)
            SetState(pressed);
        return true;
    }
    m_host.stopTimer1();
    if (m_entered) {
        m_entered = false;
        if (!dispatch(ButtonExEvent::MouseExit, {}))
            return false;
    }
    if (m_state != up)
        SetState(up);
    m_leftDuringPress = true;
    return true;
}

void ButtonExState::keyPressed()
{
    press();
}

void ButtonExState::keyReleased()
{
    SetState(up);
}

bool ButtonExState::dispatch(ButtonExEvent event, const ButtonExArguments& arguments)
{
    m_lastEvent = event;
    return m_host.raiseEvent(event, arguments);
}

} // namespace varnhold
