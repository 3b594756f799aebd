#include "controls/ucSlider/ucSlider.h"

#include "controls/SystemColorsUi.h"
#include "platform/RunTimeError.h"

#include <QMouseEvent>
#include <QPainter>

namespace varnhold {

ucSlider::ucSlider(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::StrongFocus);
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
}

void ucSlider::setMousePointer(int pointer)
{
    m_mousePointer = pointer;
}

void ucSlider::setMax(int max)
{
    m_state.setMax(max);
    update();
}

void ucSlider::setMin(int min)
{
    m_state.setMin(min);
    update();
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
    m_state.setValue(value);
    update();
}

void ucSlider::tryValue(int value)
{
    if (value >= min() && value <= max())
        setValue(value);
}

QSize ucSlider::sizeHint() const
{
    return m_state.vertical() ? QSize(20, 120) : QSize(120, 20);
}

void ucSlider::layOut()
{
    const QSize knob = m_sliderIcon.isNull() ? (m_state.vertical() ? QSize(20, 11) : QSize(11, 20))
                                             : m_sliderIcon.deviceIndependentSize().toSize();
    m_state.setSizes(size(), knob);
    update();
}

void ucSlider::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    painter.fillRect(rect(), toQColor(m_backColor));
    const QSize knob = m_state.knobSize();
    const QRect at(m_state.vertical() ? QPoint((width() - knob.width()) / 2, m_state.knobPosition())
                                      : QPoint(m_state.knobPosition(), (height() - knob.height()) / 2),
                   knob);
    if (m_sliderIcon.isNull())
        painter.fillRect(at, Qt::darkGray);
    else
        painter.drawPixmap(at.topLeft(), m_sliderIcon);
}

void ucSlider::resizeEvent(QResizeEvent* /*event*/)
{
    layOut();
}

void ucSlider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    if (m_state.press(event->pos()))
        Q_EMIT Change();
    Q_EMIT Change();
    update();
}

void ucSlider::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_state.drag(event->pos()))
        return;
    update();
    Q_EMIT Change();
}

void ucSlider::mouseReleaseEvent(QMouseEvent* event)
{
    m_state.release();
    if (event->button() == Qt::LeftButton && rect().contains(event->pos()))
        Q_EMIT Click();
    Q_EMIT MouseUp(event->button(), event->pos());
}

} // namespace varnhold
