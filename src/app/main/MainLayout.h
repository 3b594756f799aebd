#pragma once

#include "platform/Screen.h"

#include <QRect>
#include <QSize>

#include <array>
#include <span>

namespace varnhold {

/// A button in the foot; all are of one size. The window gives those a place that it has.
struct FootButton
{
    const char* name;
    int left;
};
inline constexpr QSize footButtonSize{28, 14};

/// Where the controls of the main window stand in one of its two sizes, in pixels. Controls that are not
/// named here keep their place.
struct MainLayout
{
    QSize window;
    QRect winState[3]; ///< btn_WinState(0..2)
    QRect lblCaption;
    QRect lblInfo;
    QRect lblStatus;
    QRect lblBlank; ///< also ProgressBar1
    QRect lblCnt;
    QRect picLeft;
    QRect picMain;
    int footTop;
    std::array<FootButton, 7> footButtons;
    int columnTwips; ///< scale height of picLeft and picMain

    static const MainLayout& normal();
    static const MainLayout& enlarged();
};

/// Places of the controls that are the same in both sizes.
namespace mainplaces {
inline constexpr QRect btnFile{8, 5, 28, 14};
inline constexpr QRect btn_Tools1{40, 5, 14, 14};
inline constexpr QRect btn_Tools0{55, 5, 14, 14};
inline constexpr QRect txtGameID{8, 23, 82, 18};
inline constexpr QRect btnFetch{94, 24, 40, 16};
inline constexpr double browserParkedTwips = 8600; ///< left of WebBrowser1 while it is out of sight
} // namespace mainplaces

/// Where a window that stands wholly in the work area goes when it grows to that size: up and left as far as
/// it must to stay there. One that the user put across an edge grows where it is.
QPoint placeEnlarged(const QRect& window, const QSize& enlarged, const WorkArea& area);

/// Where a window whose place was worked out opens. The enlarged one stands wholly in the work area of the
/// screen that shows its caption. The normal one stays, also across an edge; but where no screen shows its
/// caption, since that screen is gone, it comes to the primary one.
QPoint placeAtStart(const QPoint& place, bool enlarged, std::span<const ScreenAreas> screens);

/// A splitter bar between two controls of a column, all in twips.
struct SplitPlaces
{
    int barTop;      ///< limited
    int upperHeight; ///< of the control above
    int lowerTop;
    int lowerHeight; ///< of the control below
};

/// Height of barLeft and barMain in twips.
inline constexpr int splitBarHeight = 75;
/// Lower limits of the bars' top in twips.
inline constexpr int barLeftFloor = 540;
inline constexpr int barMainFloor = 0;

/// The column as a bar's wanted top divides it: not below `floor`, not below the column's end less 75 twips.
SplitPlaces splitColumn(double wantedTop, int floor, int upperTop, int columnTwips);

} // namespace varnhold
