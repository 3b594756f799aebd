#include "controls/MorphListBox/MorphListScroll.h"

#include <algorithm>

namespace varnhold {

bool MorphListScroll::setExtent(int count, int rows)
{
    m_count = std::max(0, count);
    m_rows = std::max(0, rows);
    return setFirst(m_first);
}

bool MorphListScroll::setFirst(int first)
{
    const int oldFirst = m_first;
    const int oldLast = m_last;
    m_first = std::clamp(first, 0, std::max(0, m_count - std::max(1, m_rows)));
    m_last = std::min(m_first + m_rows, m_count) - 1;
    return m_first != oldFirst || m_last != oldLast;
}

bool MorphListScroll::showRow(int index)
{
    if (index < 0 || index >= m_count || m_rows == 0)
        return false;
    if (index < m_first)
        return setFirst(index);
    return index > m_last && setFirst(index - m_rows + 1);
}

} // namespace varnhold
