#pragma once

#include <QColor>
#include <QRect>

class QPainter;

namespace varnhold {

// Small shapes of the list. They are put together from whole device pixels, so they are sharp at any ratio.
// `line` is the width of a line in device pixels.

/// A triangle in the middle of the place, as the arrow of a scroll button.
void paintArrow(QPainter& painter, const QRect& place, bool up, const QColor& color);

void paintFrame(QPainter& painter, const QRect& place, int line, const QColor& color);

/// The mark inside a check box of that place. Style 0: a cross; 2: a filled square; another: a tick.
void paintCheckMark(QPainter& painter, const QRect& box, int style, const QColor& color);

/// Every second dot along the four edges.
void paintDottedFrame(QPainter& painter, const QRect& place, int line, const QColor& color);

} // namespace varnhold
