#pragma once

#include <QtGlobal>

namespace varnhold {

/// The beat of a held scroll part: the first step comes at once, the second after repeatDelay, the others
/// repeatInterval apart. It rests while the pointer is off the part. Times are milliseconds of one clock.
class MorphListRepeat
{
public:
    enum class State { Idle, Waiting, Running, Resting };

    [[nodiscard]] State state() const { return m_state; }
    [[nodiscard]] bool held() const { return m_state != State::Idle; }

    void start(qint64 now); ///< with the first step
    void stop() { m_state = State::Idle; }
    void resume(); ///< the pointer is back on the part
    /// Asked every repeatPoll. True when a step is due; goes to rest when the pointer has left the part.
    bool beat(qint64 now, bool onPart);

private:
    State m_state = State::Idle;
    qint64 m_lastStep = 0;
};

} // namespace varnhold
