#pragma once

#include "platform/Screen.h"

#include <QPoint>
#include <QRect>
#include <QSize>

#include <algorithm>

namespace varnhold {

/// Where a child window comes up, in logical pixels: 340 and 120 twips from the main window's corner, then
/// moved only as far as it takes to stand wholly in the work area, unless the main window itself crosses an
/// edge of that. One that is larger than the area begins at its corner.
inline QPoint childPlace(const QRect& main, const QSize& child, const WorkArea& area)
{
    constexpr QPoint offset(23, 8);
    const QPoint told = main.topLeft() + offset;
    const bool crosses = main.left() < area.left || main.top() < area.top || main.right() >= area.right ||
                         main.bottom() >= area.bottom;
    if (crosses)
        return told;
    return {std::max(area.left, std::min(told.x(), area.right - child.width())),
            std::max(area.top, std::min(told.y(), area.bottom - child.height()))};
}

} // namespace varnhold
