#include "controls/ucSlider/SliderState.h"

#include "platform/RunTimeError.h"

#include <QRect>

namespace varnhold {

namespace {

// round(a x b / c) for c above 0, wide enough for any three ints.
int scaled(qint64 a, qint64 b, qint64 c)
{
    return static_cast<int>((2 * a * b + c) / (2 * c));
}

} // namespace

void SliderState::setMin(int min)
{
    m_min = min;
    limitValue();
}

void SliderState::setMax(int max)
{
    m_max = max;
    limitValue();
}

void SliderState::setValue(int value)
{
    if (value < m_min || value > m_max)
        throw RunTimeError(errors::invalidPropertyValue);
    const bool differs = value != m_value;
    m_value = value;
    if (differs && !m_dragging)
        placeKnob();
}

void SliderState::setVertical(bool vertical)
{
    m_vertical = vertical;
    placeKnob();
}

void SliderState::setSizes(QSize control, QSize knob)
{
    m_control = control.expandedTo({0, 0});
    m_knob = knob.expandedTo({0, 0});
    placeKnob();
}

int SliderState::travel() const
{
    return qMax(0, along(m_control) - along(m_knob));
}

int SliderState::positionOf(int value) const
{
    if (m_max <= m_min)
        return 0;
    return scaled(travel(), qint64{qBound(m_min, value, m_max)} - m_min, qint64{m_max} - m_min);
}

int SliderState::valueAt(int position) const
{
    const int way = travel();
    if (way == 0 || m_max <= m_min)
        return m_value;
    return m_min + scaled(qBound(0, position, way), qint64{m_max} - m_min, way);
}

bool SliderState::press(QPoint at)
{
    m_dragging = true;
    if (onKnob(at)) {
        m_offset = along(at) - m_position;
        return false;
    }
    m_offset = along(m_knob) / 2;
    return drag(at);
}

bool SliderState::drag(QPoint to)
{
    if (!m_dragging)
        return false;
    m_position = qBound(0, along(to) - m_offset, travel());
    m_value = valueAt(m_position);
    return true;
}

int SliderState::pageStep() const
{
    return static_cast<int>(qMax(qint64{1}, (qint64{m_max} - m_min) / 10));
}

int SliderState::stepped(int units) const
{
    if (m_max <= m_min)
        return m_value;
    return static_cast<int>(qBound(qint64{m_min}, qint64{m_value} + units, qint64{m_max}));
}

bool SliderState::onKnob(QPoint at) const
{
    const QPoint corner = m_vertical ? QPoint((m_control.width() - m_knob.width()) / 2, m_position)
                                     : QPoint(m_position, (m_control.height() - m_knob.height()) / 2);
    return QRect(corner, m_knob).contains(at);
}

void SliderState::limitValue()
{
    if (m_max >= m_min)
        m_value = qBound(m_min, m_value, m_max);
    placeKnob();
}

} // namespace varnhold
