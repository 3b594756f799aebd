#pragma once

#include <QPoint>
#include <QtGlobal>

namespace varnhold {

/// Decides when a tip comes and goes. It is told at short intervals where the pointer is.
class TipRest
{
public:
    enum class Act { None, Show, Hide };

    /// Milliseconds; a negative time is the platform's own (500 and 5000).
    void setTimes(int initial, int visible);
    /// `over`: the pointer is on the owner, with no mouse button down. `now`: ticks in milliseconds, which
    /// may wrap round.
    Act pointerAt(const QPoint& place, bool over, quint32 now);
    /// A press or a key: the tip goes and does not come back before the pointer has left the owner.
    Act dismiss();
    /// Whether it has to be told of the pointer now; else only when the pointer enters.
    [[nodiscard]] bool isWatching() const { return m_stage != Stage::Away; }

private:
    enum class Stage { Away, Resting, Shown, Spent };

    Stage m_stage = Stage::Away;
    QPoint m_place;
    quint32 m_since = 0;
    quint32 m_initial = 500;
    quint32 m_visible = 5000;
};

} // namespace varnhold
