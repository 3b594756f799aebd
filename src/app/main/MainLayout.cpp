#include "app/main/MainLayout.h"

#include <algorithm>
#include <cmath>

namespace varnhold {

namespace {

constexpr int columnsTop = 46;
constexpr int leftColumn = 8;
constexpr int leftColumnWidth = 90;
constexpr int mainColumn = 102;
constexpr int captionHeight = 20;

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

QRect rectOf(const WorkArea& area)
{
    return {QPoint(area.left, area.top), QPoint(area.right - 1, area.bottom - 1)};
}

/// Up and left as far as it must; a window larger than the area begins at its corner.
QPoint within(const QRect& window, const WorkArea& area)
{
    return {std::max(area.left, std::min(window.x(), area.right - window.width())),
            std::max(area.top, std::min(window.y(), area.bottom - window.height()))};
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
    return rectOf(area).contains(window) ? within(QRect(window.topLeft(), enlarged), area) : window.topLeft();
}

QPoint placeAtStart(const QPoint& place, bool enlarged, std::span<const ScreenAreas> screens)
{
    const QSize size = enlarged ? MainLayout::enlarged().window : MainLayout::normal().window;
    const QRect caption(place, QSize(size.width(), captionHeight));
    const ScreenAreas* shownOn = nullptr;
    int mostShown = 0;
    for (const ScreenAreas& screen : screens) {
        const QRect shown = caption & rectOf(screen.whole);
        if (shown.width() * shown.height() > mostShown) {
            mostShown = shown.width() * shown.height();
            shownOn = &screen;
        }
    }
    if (screens.empty() || (shownOn != nullptr && !enlarged))
        return place;
    return within(QRect(place, size), shownOn != nullptr ? shownOn->work : screens.front().work);
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
