#include "app/main/MainLayout.h"

#include <algorithm>
#include <cmath>

namespace varnhold {

namespace {

constexpr int columnsTop = 46;
constexpr int leftColumn = 8;
constexpr int leftColumnWidth = 90;
constexpr int mainColumn = 102;

/// The buttons stand 30 pixels apart.
constexpr std::array<FootButton, 7> footButtonsFrom(int left)
{
    return {{{"cmdView", left},
             {"cmdClear", left + 30},
             {"CmdAdd", left + 60},
             {"CmdDelete", left + 90},
             {"cmdEdit", left + 120},
             {"CmdNewRecord", left + 150},
             {"CmdRefresh", left + 180}}};
}

} // namespace

const MainLayout& MainLayout::normal()
{
    static const MainLayout layout{
        .window = {447, 289},
        .winState = {{399, 5, 14, 14}, {429, 5, 14, 14}, {414, 5, 14, 14}},
        .lblCaption = {62, 2, 536, 18},
        .lblInfo = {137, 23, 302, 18},
        .lblStatus = {0, 274, 127, 15},
        .lblBlank = {344, 274, 90, 15},
        .lblCnt = {371, 5, 24, 14},
        .picLeft = {leftColumn, columnsTop, leftColumnWidth, 224},
        .picMain = {mainColumn, columnsTop, 337, 224},
        .footTop = 274,
        .footButtons = footButtonsFrom(127),
        .columnTwips = 3365,
    };
    return layout;
}

const MainLayout& MainLayout::enlarged()
{
    static const MainLayout layout{
        .window = {595, 385},
        .winState = {{547, 5, 14, 14}, {577, 5, 14, 14}, {562, 5, 14, 14}},
        .lblCaption = {62, 2, 484, 18},
        .lblInfo = {137, 23, 450, 18},
        .lblStatus = {0, 370, 275, 15},
        .lblBlank = {492, 370, 90, 15},
        .lblCnt = {519, 5, 24, 14},
        .picLeft = {leftColumn, columnsTop, leftColumnWidth, 320},
        .picMain = {mainColumn, columnsTop, 485, 320},
        .footTop = 370,
        .footButtons = footButtonsFrom(275),
        .columnTwips = 4800,
    };
    return layout;
}

QPoint placeEnlarged(const QRect& window, const QSize& enlarged, const WorkArea& area)
{
    const QRect inside(QPoint(area.left, area.top), QPoint(area.right - 1, area.bottom - 1));
    if (!inside.contains(window))
        return window.topLeft();
    return {std::max(area.left, std::min(window.x(), area.right - enlarged.width())),
            std::max(area.top, std::min(window.y(), area.bottom - enlarged.height()))};
}

SplitPlaces splitColumn(double wantedTop, int floor, int upperTop, int columnTwips)
{
    int top = static_cast<int>(std::clamp(std::nearbyint(wantedTop), -1.0e6, 1.0e6));
    top = std::max(top, floor);
    top = std::min(top, columnTwips - splitBarHeight);
    const int lowerTop = top + splitBarHeight;
    return {top, std::max(top - upperTop, 0), lowerTop, std::max(columnTwips - lowerTop, 0)};
}

} // namespace varnhold
