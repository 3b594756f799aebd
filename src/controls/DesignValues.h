#pragma once

// Values that belong to the design of a control on its window and to nothing that the program computes:
// looks, ranges, intervals. Windows take them from here, so that a designer finds them in one place.

namespace varnhold::design {

/// Looks of XP_ProgressBar (its property Scrolling).
namespace progresslook {
inline constexpr int segmented = 0;
inline constexpr int continuous = 1;
inline constexpr int searching = 2;
inline constexpr int pastel = 3;
inline constexpr int sunken = 4;
inline constexpr int office = 5;
inline constexpr int metal = 6;
inline constexpr int brush = 7;
inline constexpr int picture = 8;
inline constexpr int media = 9;
} // namespace progresslook

/// Looks whose bar stands out from its track and whose track suits the window, by the skin's back colour.
inline constexpr int barLookOnDark = progresslook::office;
inline constexpr int barLookOnLight = progresslook::media;

/// Which look each window's bar has before a skin gives it its colour: the only one that can be told in any.
inline constexpr int frmMain_ProgressBar1_Scrolling = progresslook::media;
inline constexpr int frmSearch_PB_Scrolling = progresslook::media;
inline constexpr int frm_Winsock_PB_Scrolling = progresslook::media;

/// Milliseconds between two looks of a ButtonEx at the pointer while it is over the button. Short enough that
/// the hover face goes when the pointer does.
inline constexpr int ButtonEx_Timer1_Interval = 20;

/// Ends of a scroll bar or slider that picks a setting.
struct Range
{
    int min;
    int max;
};

inline constexpr Range ucSlider1_Range{0, 255}; ///< opacity; 0 to 4 of frmSettings
inline constexpr int ucSlider1_Orientation = 0;
inline constexpr Range Vs_Server_Range{1, 6};
inline constexpr Range vscl_LBxTheme_Range{0, 10};
inline constexpr Range vscl_LBxAlign_Range{0, 2};
inline constexpr Range vscl_Align_Range{0, 5};
inline constexpr Range vSearch_Range{1, 3};
inline constexpr Range vsMargin_Range{1, 99}; ///< of frmSearch

/// Theme of MorphListBox1 under a skin that names none.
inline constexpr int MorphListBox1_Theme = 2;

} // namespace varnhold::design
