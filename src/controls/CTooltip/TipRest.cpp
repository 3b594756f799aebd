#include "controls/CTooltip/TipRest.h"

namespace varnhold {

namespace {
constexpr int platformInitial = 500;
constexpr int platformVisible = 5000;
} // namespace

void TipRest::setTimes(int initial, int visible)
{
    m_initial = static_cast<quint32>(initial < 0 ? platformInitial : initial);
    m_visible = static_cast<quint32>(visible < 0 ? platformVisible : visible);
}

TipRest::Act TipRest::pointerAt(const QPoint& place, bool over, quint32 now)
{
    if (!over) {
        const bool shown = m_stage == Stage::Shown;
        m_stage = Stage::Away;
        return shown ? Act::Hide : Act::None;
    }
    switch (m_stage) {
    case Stage::Away:
        m_stage = Stage::Resting;
        m_place = place;
        m_since = now;
        [[fallthrough]];
    case Stage::Resting:
        if (place != m_place) {
            m_place = place;
            m_since = now;
        }
        if (now - m_since < m_initial)
            return Act::None;
        m_stage = Stage::Shown;
        m_since = now;
        return Act::Show;
    case Stage::Shown:
        if (now - m_since < m_visible)
            return Act::None;
        m_stage = Stage::Spent;
        return Act::Hide;
    case Stage::Spent:
        break;
    }
    return Act::None;
}

TipRest::Act TipRest::dismiss()
{
    const bool shown = m_stage == Stage::Shown;
    if (m_stage != Stage::Away)
        m_stage = Stage::Spent;
    return shown ? Act::Hide : Act::None;
}

} // namespace varnhold
