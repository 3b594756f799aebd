#pragma once

#include "controls/SystemEdge.h"

#include <QRect>

class QPainter;

namespace varnhold {

/// Draws the rings inside the rectangle, given in the painter's own pixels, each `thickness` of them wide.
void drawSystemEdge(QPainter& painter, const QRect& rect, const SystemEdge& edge, int thickness = 1);

} // namespace varnhold
