#include "controls/EdgePainter.h"

#include "controls/SystemColorsUi.h"

#include <QPainter>

namespace varnhold {

void drawSystemEdge(QPainter& painter, const QRect& rect, const SystemEdge& edge, int thickness)
{
    QRect ring = rect;
    for (int i = 0; i < edge.rings; ++i) {
        if (ring.isEmpty())
            return;
        const EdgeRing& colors = i == 0 ? edge.outer : edge.inner;
        const QColor leftTop = toQColor(colors.leftTop);
        const QColor rightBottom = toQColor(colors.rightBottom);
        const int wide = qMin(thickness, ring.width());
        const int high = qMin(thickness, ring.height());
        painter.fillRect(QRect(ring.left(), ring.top(), ring.width(), high), leftTop);
        painter.fillRect(QRect(ring.left(), ring.top(), wide, ring.height()), leftTop);
        painter.fillRect(QRect(ring.left(), ring.bottom() + 1 - high, ring.width(), high), rightBottom);
        painter.fillRect(QRect(ring.right() + 1 - wide, ring.top(), wide, ring.height()), rightBottom);
        ring.adjust(thickness, thickness, -thickness, -thickness);
    }
}

} // namespace varnhold
