#include "platform/database/EnginePatience.h"

#include "platform/database/DatabaseWatch.h"

#include <sqlite3.h>

namespace varnhold {

namespace {

/// The engine's own instructions between two looks at the clock: well below a millisecond.
constexpr int instructions = 10'000;
constexpr std::chrono::milliseconds paintInterval{100};

} // namespace

void EnginePatience::watchOver(sqlite3* engine)
{
    m_lastStep = m_lastLook = m_lastPainted = Clock::now();
    sqlite3_progress_handler(
        engine, instructions, [](void* self) { return static_cast<EnginePatience*>(self)->goesOn() ? 0 : 1; },
        this);
}

bool EnginePatience::goesOn()
{
    const Clock::time_point now = Clock::now();
    if (m_seenSteps != m_steps) {
        m_seenSteps = m_steps;
        m_lastStep = now;
    }
    if (now - m_lastLook > paintInterval)
        m_lastPainted = now; // new work: the event loop ran in between
    m_lastLook = now;
    if (m_watch && now - m_lastPainted >= paintInterval) {
        m_watch->keepPainted();
        m_lastPainted = Clock::now();
    }
    if (m_limit == Limit::None)
        return true;
    return now - m_lastStep < (m_watch ? m_watch->patience() : DatabaseWatch::defaultPatience);
}

} // namespace varnhold
