#include "controls/ucSlider/ucSlider.h"

#include "controls/MousePointer.h"
#include "controls/ucSlider/SliderAccessible.h"
#include "controls/ucSlider/SliderMetrics.h"
#include "controls/ucSlider/SliderPainter.h"

#include <QAccessible>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPointer>
#include <QToolTip>
#include <QWheelEvent>

namespace varnhold {

namespace {
constexpr int wheelNotch = 120; // eighths of a degree
}

ucSlider::ucSlider(QWidget* parent) : QWidget(parent)
{
    installSliderAccessible();
    setFocusPolicy(Qt::StrongFocus);
    setAttribute(Qt::WA_Hover);
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(sizeHint());
    layOut();
}

void ucSlider::setBackColor(ColorValue color)
{
    m_backColor = color;
    update();
}

void ucSlider::setMouseIcon(const QPixmap& icon)
{
    m_mouseIcon = icon;
    applyMousePointer(*this, m_mousePointer, m_mouseIcon);
}

void ucSlider::setMousePointer(int pointer)
{
    m_mousePointer = pointer;
    applyMousePointer(*this, m_mousePointer, m_mouseIcon);
}

void ucSlider::setMax(int max)
{
    m_state.setMax(max);
    tellValue();
}

void ucSlider::setMin(int min)
{
    m_state.setMin(min);
    tellValue();
}

void ucSlider::setOrientation(int orientation)
{
    if (orientation != 0 && orientation != 1)
        return;
    m_state.setVertical(orientation == 1);
    layOut();
}

void ucSlider::setRailStyle(int style)
{
    m_railStyle = style;
    layOut();
}

void ucSlider::setRailPicture(const QPixmap& picture)
{
    m_railPicture = picture;
    layOut();
}

void ucSlider::setShowValueTip(bool show)
{
    m_showValueTip = show;
}

void ucSlider::setSliderIcon(const QPixmap& icon)
{
    m_sliderIcon = icon;
    layOut();
}

void ucSlider::setValue(int value)
{
    const bool differs = value != m_state.value();
    m_state.setValue(value);
    if (differs)
        tellValue();
}

void ucSlider::tryValue(int value)
{
    if (value >= min() && value <= max())
        setValue(value);
}

void ucSlider::step(qint64 units)
{
    const int value = m_state.stepped(units);
    if (value == m_state.value())
        return;
    tryValue(value);
    Q_EMIT Change();
}

QSize ucSlider::sizeHint() const
{
    constexpr int length = 120;
    const QSize asked = m_state.vertical() ? QSize(0, length) : QSize(length, 0);
    return sliderControlSize(asked, m_state.vertical(), knobSize(), railSize());
}

QSize ucSlider::knobSize() const
{
    return m_sliderIcon.isNull() ? drawnKnobSize(m_state.vertical())
                                 : m_sliderIcon.deviceIndependentSize().toSize();
}

// Empty when the rail is no picture.
QSize ucSlider::railSize() const
{
    if (m_railStyle != SliderState::pictureRail || m_railPicture.isNull())
        return {};
    return m_railPicture.deviceIndependentSize().toSize();
}

// The size follows from what the window last asked for, so that the order in which a window sets geometry,
// orientation and pictures makes no difference. A hidden control gets no resize event, so a size that is not
// our own tells that the window has asked.
void ucSlider::layOut()
{
    if (size() != m_ownSize)
        m_askedSize = size();
    m_ownSize = sliderControlSize(m_askedSize, m_state.vertical(), knobSize(), railSize());
    resize(m_ownSize);
    m_ownSize = size();
    m_state.setSizes(m_ownSize, knobSize());
    updateGeometry();
    update();
}

void ucSlider::tellValue()
{
    update();
    QAccessibleValueChangeEvent event(this, value());
    QAccessible::updateAccessibility(&event);
}

void ucSlider::showTip()
{
    if (!m_showValueTip)
        return;
    const QRect knob = m_state.knobRect();
    const QPoint beside = m_state.vertical() ? QPoint(width() + 4, knob.center().y() - 24)
                                             : QPoint(knob.center().x() - 10, -44);
    QToolTip::showText(mapToGlobal(beside), QString::number(value()), this);
}

void ucSlider::paintEvent(QPaintEvent* /*event*/)
{
    SliderLook look;
    look.size = size();
    look.knob = m_state.knobRect();
    look.vertical = m_state.vertical();
    look.railStyle = m_railStyle;
    look.railPicture = m_railPicture;
    look.sliderIcon = m_sliderIcon;
    look.backColor = m_backColor;
    look.enabled = isEnabled();
    look.hovered = underMouse();
    look.pressed = m_state.dragging();
    look.focusShown = m_keyboardFocus;
    QPainter painter(this);
    paintSlider(painter, look, devicePixelRatioF());
}

void ucSlider::resizeEvent(QResizeEvent* /*event*/)
{
    if (size() != m_ownSize)
        layOut();
}

void ucSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    m_keyboardFocus = false;
    const int before = value();
    const QPointer<ucSlider> alive(this); // a handler may take the window away
    const bool jumped = m_state.press(event->pos());
    update();
    if (value() != before)
        tellValue();
    showTip();
    if (jumped)
        Q_EMIT Change(); // the move that brought the knob here
    if (alive)
        Q_EMIT Change(); // the press itself: meant, also when nothing moved
}

void ucSlider::mouseMoveEvent(QMouseEvent* event)
{
    if ((event->buttons() & Qt::LeftButton) == 0) {
        endDrag(); // the release went elsewhere, to a dialog that a handler opened
        return;
    }
    const int before = value();
    if (!m_state.drag(event->pos()))
        return;
    update();
    if (value() != before)
        tellValue();
    showTip();
    Q_EMIT Change();
}

void ucSlider::mouseReleaseEvent(QMouseEvent* event)
{
    const QPointer<ucSlider> alive(this);
    if (event->button() == Qt::LeftButton && isEnabled() && rect().contains(event->pos()))
        Q_EMIT Click();
    if (alive)
        Q_EMIT MouseUp(event->button(), event->pos());
    if (alive)
        endDrag();
}

void ucSlider::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const QPointer<ucSlider> alive(this);
    Q_EMIT KeyDown(key, event->modifiers());
    if (!alive)
        return;
    m_keyboardFocus = true;
    update();
    // Arrows move the knob the way that they point: values grow to the right and downwards.
    const bool vertical = m_state.vertical();
    switch (key) {
    case Qt::Key_Right:
        step(1);
        break;
    case Qt::Key_Left:
        step(-1);
        break;
    case Qt::Key_Up:
        step(vertical ? -1 : 1);
        break;
    case Qt::Key_Down:
        step(vertical ? 1 : -1);
        break;
    case Qt::Key_PageUp:
        step(vertical ? -m_state.pageStep() : m_state.pageStep());
        break;
    case Qt::Key_PageDown:
        step(vertical ? m_state.pageStep() : -m_state.pageStep());
        break;
    case Qt::Key_Home:
        step(qint64{min()} - value());
        break;
    case Qt::Key_End:
        step(qint64{max()} - value());
        break;
    default:
        event->ignore();
    }
}

void ucSlider::wheelEvent(QWheelEvent* event)
{
    const QPoint turn = event->angleDelta();
    const int delta = turn.y() != 0 ? turn.y() : -turn.x();
    m_wheel += m_state.vertical() ? -delta : delta;
    const int notches = m_wheel / wheelNotch;
    m_wheel -= notches * wheelNotch;
    event->accept();
    if (notches != 0 && !m_state.dragging())
        step(qint64{notches} * qMax(1, m_state.pageStep() / 3));
}

void ucSlider::focusInEvent(QFocusEvent* event)
{
    m_keyboardFocus = event->reason() == Qt::TabFocusReason || event->reason() == Qt::BacktabFocusReason ||
                      event->reason() == Qt::ShortcutFocusReason;
    QWidget::focusInEvent(event);
}

void ucSlider::focusOutEvent(QFocusEvent* event)
{
    m_keyboardFocus = false;
    QWidget::focusOutEvent(event);
}

void ucSlider::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::EnabledChange && !isEnabled())
        endDrag();
    QWidget::changeEvent(event);
}

void ucSlider::hideEvent(QHideEvent* event)
{
    endDrag();
    QWidget::hideEvent(event);
}

void ucSlider::endDrag()
{
    if (!m_state.dragging())
        return;
    m_state.release();
    QToolTip::hideText();
    update();
}

} // namespace varnhold
