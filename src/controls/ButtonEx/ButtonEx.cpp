#include "controls/ButtonEx/ButtonEx.h"

#include "controls/ButtonEx/AccessibleButtonEx.h"
#include "controls/ButtonEx/ButtonExPainter.h"
#include "controls/ButtonEx/TransparentCopy.h"
#include "controls/DesignValues.h"
#include "platform/Twips.h"

#include <QAccessible>
#include <QBitmap>
#include <QCursor>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QShortcutEvent>

namespace varnhold {

using namespace Qt::StringLiterals;
using namespace buttonstate;

namespace {

constexpr int timer1Interval = design::ButtonEx_Timer1_Interval;

int buttonNumbers(Qt::MouseButtons buttons)
{
    return (buttons.testFlag(Qt::LeftButton) ? 1 : 0) | (buttons.testFlag(Qt::RightButton) ? 2 : 0) |
           (buttons.testFlag(Qt::MiddleButton) ? 4 : 0);
}

int shiftNumbers(Qt::KeyboardModifiers modifiers)
{
    return (modifiers.testFlag(Qt::ShiftModifier) ? 1 : 0) |
           (modifiers.testFlag(Qt::ControlModifier) ? 2 : 0) | (modifiers.testFlag(Qt::AltModifier) ? 4 : 0);
}

ButtonExArguments argumentsOf(const QMouseEvent& event, Qt::MouseButtons buttons)
{
    ButtonExArguments at;
    at.button = buttonNumbers(buttons);
    at.shift = shiftNumbers(event.modifiers());
    at.x = event.position().x();
    at.y = event.position().y();
    return at;
}

bool isByKey(Qt::FocusReason reason)
{
    return reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason ||
           reason == Qt::ShortcutFocusReason;
}

} // namespace

ButtonEx::ButtonEx(QWidget* parent) : QWidget(parent), m_state(*this), m_caption(u"ButtonEx1"_s)
{
    AccessibleButtonEx::install();
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    m_state.SetState(up);
}

ButtonEx::~ButtonEx() = default;

void ButtonEx::applyFace()
{
    if (!m_state.isSkinned() || m_state.face() < 0) {
        if (!m_face.isNull()) {
            m_face = {};
            m_faceKey = 0;
            clearMask();
        }
        return;
    }
    const QPixmap face = skin(m_state.face());
    // A face that was unset while shown stays, as any face that a missing one would replace.
    if (!face.isNull() && face.cacheKey() != m_faceKey) {
        m_faceKey = face.cacheKey();
        m_face = cutColor(face.toImage(), m_transparentColor);
        setMask(QBitmap::fromImage(m_face.createAlphaMask()));
        updateGeometry();
    }
    if (!m_face.isNull())
        resize(skinSize(m_face.size()));
}

void ButtonEx::drawOn(QPainter& painter) const
{
    const int shown = m_state.shownState();
    ButtonExLook look;
    look.bevel.size = size();
    look.bevel.state = m_state.bevelState();
    look.bevel.appearance = Appearance();
    look.bevel.borderStyle = m_borderStyle;
    look.bevel.focused = m_state.hasFocus();
    look.bevel.allowFocus = m_allowFocus;
    look.bevel.allowDefault = m_allowDefault;
    look.bevel.displayAsDefault = m_default;
    look.skinned = m_state.isSkinned();
    look.face = m_face;
    const QImage& own = m_cutGlyphs.at(static_cast<std::size_t>(shown));
    look.glyph = own.isNull() ? m_cutGlyphs[up] : own;
    look.glyphOffset = m_pictureOffset;
    look.caption = m_caption;
    look.captionOffset = m_captionOffset;
    look.font = font();
    look.backColor = m_backColor;
    look.textColor = m_borderStyle == 4 ? systemcolors::grayText : m_foreColor;
    if (m_state.isCaptionHighlighted())
        look.textColor = m_highlightColor;
    look.rightToLeft = m_rightToLeft;
    look.highlightColor = m_highlightColor;
    // A focus that came by the mouse needs no ring.
    look.ring = m_allowFocus && m_state.hasFocus() && m_keyboardFocus;
    look.focusDots = m_highlightDrawn;
    paintButtonEx(painter, look);
}

void ButtonEx::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    drawOn(painter);
}

void ButtonEx::redraw()
{
    m_highlightDrawn = false;
    applyFace();
    update();
    if (m_toldValue != Value()) {
        m_toldValue = Value();
        if (Style() == 1)
            tellAssistiveTools(QAccessible::StateChanged);
    }
}

void ButtonEx::startTimer1()
{
    if (!m_timer1.isActive())
        m_timer1.start(timer1Interval, this);
}

void ButtonEx::stopTimer1()
{
    m_timer1.stop();
}

bool ButtonEx::raiseEvent(ButtonExEvent event, const ButtonExArguments& at)
{
    const QPointer<ButtonEx> alive(this);
    switch (event) {
    case ButtonExEvent::Click:
        Q_EMIT Click();
        break;
    case ButtonExEvent::KeyDown:
        Q_EMIT KeyDown(at.key, at.shift);
        break;
    case ButtonExEvent::KeyPress:
        Q_EMIT KeyPress(at.key);
        break;
    case ButtonExEvent::KeyUp:
        Q_EMIT KeyUp(at.key, at.shift);
        break;
    case ButtonExEvent::MouseDown:
        Q_EMIT MouseDown(at.button, at.shift, twipsFromPixels(at.x), twipsFromPixels(at.y));
        break;
    case ButtonExEvent::MouseMove:
        Q_EMIT MouseMove(at.button, at.shift, at.x, at.y);
        break;
    case ButtonExEvent::MouseUp:
        Q_EMIT MouseUp(at.button, at.shift, at.x, at.y);
        break;
    case ButtonExEvent::MouseEnter:
        Q_EMIT MouseEnter();
        break;
    case ButtonExEvent::MouseExit:
        Q_EMIT MouseExit();
        break;
    default: // the drag family is raised where its data is
        break;
    }
    return !alive.isNull();
}

void ButtonEx::mousePressEvent(QMouseEvent* event)
{
    m_buttonDown = event->button() == Qt::LeftButton || m_buttonDown;
    m_state.mouseDown(argumentsOf(*event, event->button()));
}

void ButtonEx::mouseMoveEvent(QMouseEvent* event)
{
    const bool inside = rect().contains(event->position().toPoint());
    if (inside)
        m_pointerLeft = false;
    m_state.mouseMove(argumentsOf(*event, event->buttons()), inside);
}

void ButtonEx::mouseReleaseEvent(QMouseEvent* event)
{
    const bool clicks =
        event->button() == Qt::LeftButton && m_buttonDown && rect().contains(event->position().toPoint());
    if (event->button() == Qt::LeftButton)
        m_buttonDown = false;
    if (m_state.mouseUp(argumentsOf(*event, event->button())) && clicks)
        finishClick();
}

void ButtonEx::finishClick()
{
    if (isEnabled())
        m_state.dispatch(ButtonExEvent::Click, {});
}

void ButtonEx::click()
{
    if (!isEnabled())
        return;
    m_state.keyPressed();
    m_state.keyReleased();
    finishClick();
}

void ButtonEx::enterEvent(QEnterEvent*)
{
    m_pointerLeft = false;
}

void ButtonEx::leaveEvent(QEvent*)
{
    // The next tick tells it: a leave may come while the window is being torn down.
    m_pointerLeft = true;
}

void ButtonEx::timerEvent(QTimerEvent* event)
{
    if (event->timerId() != m_timer1.timerId()) {
        QWidget::timerEvent(event);
        return;
    }
    const bool inside = isVisible() && !m_pointerLeft && rect().contains(mapFromGlobal(QCursor::pos()));
    m_state.pollCursor(inside);
}

void ButtonEx::keyPressEvent(QKeyEvent* event)
{
    m_keys.pressed(*event);
    ButtonExArguments at;
    at.key = event->key();
    at.shift = shiftNumbers(event->modifiers());
    const bool isSpace = event->key() == Qt::Key_Space;
    const bool isEnter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    event->setAccepted(isSpace || isEnter);
    if (!m_state.dispatch(ButtonExEvent::KeyDown, at))
        return;
    if (!event->text().isEmpty()) {
        ButtonExArguments character;
        character.key = static_cast<int>(event->text().toUcs4().first());
        if (!m_state.dispatch(ButtonExEvent::KeyPress, character))
            return;
    }
    if (!isEnabled() || event->isAutoRepeat())
        return;
    if (isSpace && !m_keyDown) {
        m_keyDown = true;
        m_state.keyPressed();
    } else if (isEnter) {
        click();
    }
}

void ButtonEx::keyReleaseEvent(QKeyEvent* event)
{
    const bool isSpace = event->key() == Qt::Key_Space;
    event->setAccepted(isSpace);
    if (event->isAutoRepeat() || !m_keys.released(*event))
        return;
    const bool clicks = isSpace && m_keyDown;
    if (clicks) {
        m_keyDown = false;
        m_state.keyReleased();
    }
    ButtonExArguments at;
    at.key = event->key();
    at.shift = shiftNumbers(event->modifiers());
    if (m_state.dispatch(ButtonExEvent::KeyUp, at) && clicks)
        finishClick();
}

void ButtonEx::focusInEvent(QFocusEvent* event)
{
    // A window that comes back to the front finds its highlight as it was.
    if (event->reason() != Qt::ActiveWindowFocusReason && event->reason() != Qt::PopupFocusReason)
        m_keyboardFocus = isByKey(event->reason());
    m_state.setFocused(true);
}

void ButtonEx::focusOutEvent(QFocusEvent* event)
{
    QWidget::focusOutEvent(event);
    m_keys.forget();
    m_state.setFocused(false);
    if (m_keyDown) {
        m_keyDown = false;
        m_state.keyReleased();
    }
}

void ButtonEx::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    switch (event->type()) {
    case QEvent::EnabledChange:
        m_buttonDown = false;
        m_keyDown = false;
        m_state.setEnabled(isEnabled());
        break;
    case QEvent::FontChange:
        updateGeometry();
        update();
        break;
    default:
        break;
    }
}

bool ButtonEx::event(QEvent* event)
{
    if (event->type() == QEvent::Shortcut &&
        static_cast<QShortcutEvent*>(event)->shortcutId() == m_mnemonic) {
        const QPointer<ButtonEx> alive(this);
        if (m_allowFocus)
            setFocus(Qt::ShortcutFocusReason);
        if (alive && !static_cast<QShortcutEvent*>(event)->isAmbiguous())
            click();
        return true;
    }
    if (event->type() == QEvent::ParentChange || event->type() == QEvent::Show)
        watchWindow();
    return QWidget::event(event);
}

void ButtonEx::watchWindow()
{
    QWidget* const wanted = m_default || m_cancel ? window() : nullptr;
    if (wanted == m_watchedWindow)
        return;
    if (m_watchedWindow)
        m_watchedWindow->removeEventFilter(this);
    m_watchedWindow = wanted;
    if (wanted)
        wanted->installEventFilter(this);
}

bool ButtonEx::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != m_watchedWindow || event->type() != QEvent::KeyPress || !isEnabled() || !isVisible())
        return QWidget::eventFilter(watched, event);
    const auto* press = static_cast<QKeyEvent*>(event);
    const bool isEnter = press->key() == Qt::Key_Return || press->key() == Qt::Key_Enter;
    const bool isEscape = press->key() == Qt::Key_Escape;
    const bool plain = (press->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    if (!plain || !((isEnter && m_default) || (isEscape && m_cancel)))
        return QWidget::eventFilter(watched, event);
    if (!press->isAutoRepeat())
        click();
    return true;
}

void ButtonEx::ClearHighlight()
{
    m_state.redrawState();
}

void ButtonEx::DrawHighlight()
{
    m_highlightDrawn = true;
    update();
}

void ButtonEx::Refresh()
{
    repaint();
}

void ButtonEx::tellAssistiveTools(QAccessible::Event change)
{
    if (!QAccessible::isActive())
        return;
    if (change == QAccessible::StateChanged) {
        QAccessible::State changed;
        changed.checked = true;
        QAccessibleStateChangeEvent event(this, changed);
        QAccessible::updateAccessibility(&event);
    } else {
        QAccessibleEvent event(this, change);
        QAccessible::updateAccessibility(&event);
    }
}

QString ButtonEx::accessibleText() const
{
    const QString text = captionText(m_caption).trimmed();
    return text.size() > 1 || toolTip().isEmpty() ? text : toolTip();
}

QSize ButtonEx::sizeHint() const
{
    if (!m_face.isNull())
        return skinSize(m_face.size());
    const QSize text = fontMetrics().size(0, captionText(m_caption));
    return QSize(qMax(text.width() + 20, 48), qMax(text.height() + 10, 22));
}

QSize ButtonEx::minimumSizeHint() const
{
    return m_face.isNull() ? QSize(0, 0) : sizeHint();
}

} // namespace varnhold
