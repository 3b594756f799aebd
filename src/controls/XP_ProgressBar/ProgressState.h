#pragma once

#include "controls/SystemColors.h"

namespace varnhold {

/// What an XP_ProgressBar shows, apart from font and picture.
class ProgressState
{
public:
    ColorValue color = systemcolors::highlight; ///< base colour of the bar
    int brushStyle = 4;                         ///< 0 to 5: the platform's hatch numbers
    int max = 100;                              ///< scales only what value() answers
    int min = 0;
    bool vertical = false;
    int scrolling = 0; ///< the look, 0 to 9; any other number draws the continuous bar
    bool showText = false;

    /// The number is the percentage itself, whatever Min and Max are; kept as it comes until the next
    /// drawing.
    void setValue(int percent) { m_percent = percent; }

    /// percent() / 100 x max, divided by min when that is above 0; rounded to even at a half and limited to
    /// an int. With the default range this is the number that was set.
    [[nodiscard]] int value() const;

    /// The percentage as stored: may be negative, or above 100 until the next drawing.
    [[nodiscard]] int percent() const { return m_percent; }

    /// Start of every drawing: what exceeds 100 becomes 100.
    void clampForDrawing();

private:
    int m_percent = 0;
};

} // namespace varnhold
