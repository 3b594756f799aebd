#include "controls/XP_ProgressBar/ProgressState.h"

#include <cmath>
#include <limits>

namespace varnhold {

int ProgressState::value() const
{
    const double scaled = static_cast<double>(m_percent) / 100.0 * max / (min > 0 ? min : 1);
    constexpr double lowest = std::numeric_limits<int>::min();
    constexpr double highest = std::numeric_limits<int>::max();
    return static_cast<int>(qBound(lowest, std::nearbyint(scaled), highest));
}

void ProgressState::clampForDrawing()
{
    m_percent = qMin(m_percent, 100);
}

} // namespace varnhold
