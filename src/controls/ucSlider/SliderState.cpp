#include "controls/ucSlider/SliderState.h"

#include "platform/RunTimeError.h"

namespace varnhold {

namespace {

constexpr int longest = 1 << 24;
constexpr int pagesInRange = 10;

// round(a x b / c) for a up to `longest`, b up to the widest range of values, and c above 0.
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
    const auto limited = [](QSize size) { return size.expandedTo({0, 0}).boundedTo({longest, longest}); };
    m_control = limited(control);
    m_knob = limited(knob);
    placeKnob();
}

QRect SliderState::knobRect() const
{
    const QPoint corner = m_vertical ? QPoint((m_control.width() - m_knob.width()) / 2, m_position)
                                     : QPoint(m_position, (m_control.height() - m_knob.height()) / 2);
    return {corner, m_knob};
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
    if (knobRect().contains(at)) {
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
    return static_cast<int>(qMax(qint64{1}, (qint64{m_max} - m_min) / pagesInRange));
}

int SliderState::stepped(qint64 units) const
{
    if (m_max <= m_min)
        return m_value;
    const qint64 limited = qBound(qint64{m_min} - m_max, units, qint64{m_max} - m_min);
    return static_cast<int>(qBound(qint64{m_min}, m_value + limited, qint64{m_max}));
}

void SliderState::limitValue()
{
    if (m_max >= m_min)
        m_value = qBound(m_min, m_value, m_max);
    placeKnob();
}

} // namespace varnhold
