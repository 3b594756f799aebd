#pragma once

#include <QPoint>
#include <QRect>
#include <QSize>

namespace varnhold {

/// Value, knob position and drag of a ucSlider, in logical pixels along its long side. No event comes from
/// here: the mouse routines answer whether the control has one to raise.
class SliderState
{
public:
    static constexpr int pictureRail = 99; ///< RailStyle under which the rail is a picture

    [[nodiscard]] int min() const { return m_min; }
    [[nodiscard]] int max() const { return m_max; }
    /// A value that the new range leaves outside moves to the nearer end; with Max below Min it stays.
    void setMin(int min);
    void setMax(int max);

    [[nodiscard]] int value() const { return m_value; }
    /// Throws RunTimeError 380 and keeps the old value when the new one is outside Min to Max. Places the
    /// knob if the value differs from the last one and no drag is on.
    void setValue(int value);

    [[nodiscard]] bool vertical() const { return m_vertical; }
    void setVertical(bool vertical);

    /// Sizes of the control and of its knob; the knob is placed anew. Limited to 0 to 16 million pixels.
    void setSizes(QSize control, QSize knob);
    [[nodiscard]] QSize controlSize() const { return m_control; }
    [[nodiscard]] QSize knobSize() const { return m_knob; }

    /// The knob's left, or top when vertical.
    [[nodiscard]] int knobPosition() const { return m_position; }
    /// The knob at its position, centred across the control.
    [[nodiscard]] QRect knobRect() const;
    /// Longest way of the knob: rail length less knob length, never below 0.
    [[nodiscard]] int travel() const;
    /// (rail length - knob length) x (value - Min) / (Max - Min), rounded; 0 when Max is not above Min.
    [[nodiscard]] int positionOf(int value) const;
    /// The inverse; the present value when the knob has no way to go.
    [[nodiscard]] int valueAt(int position) const;

    [[nodiscard]] bool dragging() const { return m_dragging; }
    /// A press takes hold of the knob where it is hit; beside the knob, the knob jumps under the press.
    /// True when it jumped, so that a move has happened.
    bool press(QPoint at);
    /// Moves the knob while dragging, stops it at the ends, and sets the value that it stands for. True
    /// when a drag is on.
    bool drag(QPoint to);
    void release() { m_dragging = false; }

    /// One page, as keys and wheel step it: a tenth of the range, at least 1.
    [[nodiscard]] int pageStep() const;
    /// The value that many units on, limited to Min and Max.
    [[nodiscard]] int stepped(qint64 units) const;

private:
    [[nodiscard]] int along(QSize size) const { return m_vertical ? size.height() : size.width(); }
    [[nodiscard]] int along(QPoint point) const { return m_vertical ? point.y() : point.x(); }
    void limitValue();
    void placeKnob() { m_position = positionOf(m_value); }

    QSize m_control;
    QSize m_knob;
    int m_min = 0;
    int m_max = 10;
    int m_value = 0;
    int m_position = 0;
    int m_offset = 0;
    bool m_vertical = true;
    bool m_dragging = false;
};

} // namespace varnhold
