#include "controls/MorphListBox/MorphListRepeat.h"

#include "controls/MorphListBox/MorphListDesign.h"

namespace varnhold {

void MorphListRepeat::start(qint64 now)
{
    m_state = State::Waiting;
    m_lastStep = now;
}

void MorphListRepeat::resume()
{
    if (m_state == State::Resting)
        m_state = State::Running;
}

bool MorphListRepeat::beat(qint64 now, bool onPart)
{
    if (m_state == State::Waiting && now - m_lastStep >= MorphListConstants::repeatDelay)
        m_state = State::Running;
    if (m_state != State::Running)
        return false;
    if (!onPart) {
        m_state = State::Resting;
        return false;
    }
    if (now - m_lastStep < MorphListConstants::repeatInterval)
        return false;
    m_lastStep = now;
    return true;
}

} // namespace varnhold
