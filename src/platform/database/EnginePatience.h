#pragma once

#include <QtGlobal>

#include <chrono>

struct sqlite3;

namespace varnhold {

class DatabaseWatch;

/// Interrupts statements that work for seconds without a row (an endless trigger, a view that calls itself),
/// and lets the windows paint meanwhile.
class EnginePatience
{
public:
    enum class Limit { Rows, None }; ///< None: work that may be long

    /// `watch` may be null: nothing paints then.
    explicit EnginePatience(DatabaseWatch* watch, Limit limit = Limit::Rows) : m_watch(watch), m_limit(limit)
    {
    }
    EnginePatience(const EnginePatience&) = delete;
    EnginePatience& operator=(const EnginePatience&) = delete;

    void watchOver(sqlite3* engine);
    /// A row came, or a statement begins or ends.
    void progressed() { ++m_steps; }

private:
    using Clock = std::chrono::steady_clock;

    bool goesOn();

    DatabaseWatch* m_watch;
    Limit m_limit;
    quint64 m_steps = 0;
    quint64 m_seenSteps = 0;
    Clock::time_point m_lastStep;
    Clock::time_point m_lastLook;
    Clock::time_point m_lastPainted;
};

} // namespace varnhold
