#include "controls/XP_ProgressBar/ListProgress.h"

#include "controls/XP_ProgressBar/XP_ProgressBar.h"

namespace varnhold {

namespace {

constexpr int paintInterval = 50; // ms

} // namespace

void ListProgress::show(int value)
{
    m_percent = value;
    m_next = 0;
    m_bar.setValue(value);
    m_bar.show();
    m_bar.repaint();
    m_painted.start();
}

void ListProgress::setMaximum(int maximum)
{
    m_bar.setMax(maximum);
}

void ListProgress::setValue(int value)
{
    const bool last = value >= m_bar.max();
    if (value < m_next && !last)
        return;
    constexpr int steps = 500; // looks at the clock, at most, on the way to the maximum
    m_next = value + m_bar.max() / steps;
    // What is set is a percentage, what is read is its part of Max: so the bar's Value reads as `value`.
    const int percent = static_cast<int>(qint64{value} * 100 / qMax(m_bar.max(), 1));
    if (!last && (percent == m_percent || (m_painted.isValid() && m_painted.elapsed() < paintInterval)))
        return;
    m_percent = percent;
    m_bar.setValue(percent);
    if (!last)
        m_bar.repaint();
    m_painted.start();
}

void ListProgress::hide()
{
    m_bar.hide();
}

} // namespace varnhold
