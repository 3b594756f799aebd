#pragma once

#include "controls/MorphListBox/MorphListDesign.h"

#include <QRect>

class QPainter;

namespace varnhold {

/// A scroll bar of the toolkit's, as the game list draws its own.
struct ScrollBarLook
{
    /// The parts of the bar.
    struct Part
    {
        QRect place; ///< logical pixels; empty for a part that has no room
        bool pressed = false;
    };

    Part less; ///< the arrow at the beginning
    Part more;
    Part before; ///< of the track, up to the thumb
    Part after;
    QRect thumb;
    Qt::Orientation orientation = Qt::Vertical;
    bool enabled = true;
};

void paintScrollBar(QPainter& painter, const ScrollBarLook& bar, const MorphListDesign& design);

} // namespace varnhold
