#pragma once

#include <QKeyEvent>
#include <QVarLengthArray>

namespace varnhold {

/// The keys that are held down in one control. A release counts only where its press came: the key that has
/// moved the focus on comes up in the control that it was moved to.
class PressedKeys
{
public:
    void pressed(const QKeyEvent& event)
    {
        if (!m_held.contains(nameOf(event)))
            m_held.append(nameOf(event));
    }
    /// Whether the key was pressed here; it no longer is.
    [[nodiscard]] bool released(const QKeyEvent& event) { return m_held.removeOne(nameOf(event)); }
    /// The focus has gone, and with it the releases.
    void forget() { m_held.clear(); }

private:
    /// What is the same at both ends of a stroke: the letter changes with Shift, the key's place does not.
    static quint64 nameOf(const QKeyEvent& event)
    {
        constexpr int above = 32;
        return event.nativeScanCode() != 0 ? quint64(event.nativeScanCode()) << above : quint64(event.key());
    }

    QVarLengthArray<quint64, 4> m_held;
};

} // namespace varnhold
