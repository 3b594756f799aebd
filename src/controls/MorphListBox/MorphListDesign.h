#pragma once

#include <QtGlobal>

#include <array>

namespace varnhold {

/// Every colour of the list with its default: a 32-bit value 0x00BBGGRR, or a system colour index when the
/// top bit is set. The names are those of the widget's properties.
// clang-format off
#define VARNHOLD_MORPH_COLORS(X) \
    X(BackColor1, 0x606060)          X(BackColor2, 0xE0E0E0) \
    X(BorderColor1, 0)               X(BorderColor2, 0) \
    X(FocusBorderColor1, 0)          X(FocusBorderColor2, 0) \
    X(ForeColor, 0)                  X(HighlightColor, 0) \
    X(SelColor1, 0xC0FFFF)           X(SelColor2, 0xC0FFFF) \
    X(FocusRectColor, 0) \
    X(ButtonColor1, 0)               X(ButtonColor2, 0xC0C0C0) \
    X(ArrowDownColor, 0)             X(ArrowUpColor, 0xE0E0E0) \
    X(ThumbColor1, 0)                X(ThumbColor2, 0x909090) \
    X(ThumbBorderColor, 0xE0E0E0) \
    X(TrackBarColor1, 0x606060)      X(TrackBarColor2, 0xE0E0E0) \
    X(TrackClickColor1, 0)           X(TrackClickColor2, 0xE0E0E0) \
    X(CheckBoxColor, 0)              X(CheckboxArrowColor, 0) \
    X(DisBackColor1, 0x808080)       X(DisBackColor2, 0xC0C0C0) \
    X(DisBorderColor1, 0)            X(DisBorderColor2, 0) \
    X(DisForeColor, 0x404040)        X(DisHighlightColor, 0x808080) \
    X(DisSelColor1, 0x808080)        X(DisSelColor2, 0xC0C0C0) \
    X(DisFocusRectColor, 0x808080) \
    X(DisButtonColor1, 0x404040)     X(DisButtonColor2, 0x808080) \
    X(DisArrowDownColor, 0xC0C0C0)   X(DisArrowUpColor, 0xC0C0C0) \
    X(DisThumbColor1, 0x404040)      X(DisThumbColor2, 0x808080) \
    X(DisThumbBorderColor, 0x808080) \
    X(DisTrackbarColor1, 0x808080)   X(DisTrackbarColor2, 0xC0C0C0) \
    X(DisCheckboxColor, 0)           X(DisCheckboxArrowColor, 0)
// clang-format on

/// What a theme decides about the list: its colours and its shape.
struct MorphListDesign
{
#define VARNHOLD_MORPH_FIELD(name, value) quint32 name = value;
    VARNHOLD_MORPH_COLORS(VARNHOLD_MORPH_FIELD)
#undef VARNHOLD_MORPH_FIELD

    float BackAngle = 45; ///< degrees; any value, taken round the circle
    bool BackMiddleOut = true;
    bool BorderMiddleOut = true;
    bool CircularGradient = false;
    int BorderWidth = 1; ///< logical pixels; 0 draws no border
    int CurveTopLeft = 0;
    int CurveTopRight = 0;
    int CurveBottomLeft = 0;
    int CurveBottomRight = 0;

    bool operator==(const MorphListDesign&) const = default;
};

/// The value of the property `Theme` of a list that was set up by hand.
inline constexpr int morphThemeByHand = 10;

/// Numbers of the look and the behaviour that are nobody's property, in logical pixels and milliseconds.
struct MorphListConstants
{
    static constexpr int rowLimit = 100;  ///< rows that are shown at most, however high the list is
    static constexpr int rowTopInset = 5; ///< from the border to row 0, and from the last row to the border
    static constexpr int textInset = 3;   ///< from the border to the text
    static constexpr int checkTextInset = 23; ///< the same in a check list
    static constexpr int checkBoxSide = 13;
    static constexpr int checkRowMinimum = 15;
    static constexpr int repeatDelay = 400; ///< from the first step of a held scroll part to the second
    static constexpr int repeatPoll = 25;
    static constexpr int repeatInterval = 50; ///< at least this long between two steps
};

/// Writes the colours and the shape of theme 0 to 9 into the design; the disabled colours go back to their
/// defaults. False, with nothing written, for another number.
bool applyMorphTheme(int theme, MorphListDesign& design);

} // namespace varnhold
