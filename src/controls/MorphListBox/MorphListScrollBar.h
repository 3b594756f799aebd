#pragma once

#include "controls/MorphListBox/MorphListDesign.h"
#include "controls/MorphListBox/MorphListModel.h"

#include <QImage>

#include <functional>

class QPainter;

namespace varnhold {

/// Paints the five parts of the scroll bar, in device pixels.
class MorphListScrollBar
{
public:
    using ToDevice = std::function<QRect(const QRect&)>;

    void paint(QPainter& painter, MorphListModel& model, const MorphListDesign& design, bool enabled,
               const ToDevice& toDevice, int line);
    void forget() { m_strips = {}; }

private:
    struct Strips
    {
        QImage button;
        QImage pressedButton;
        QImage track;
        QImage clickedTrack;
        QImage thumb;
    };

    void makeStrips(const QSize& bar, const MorphListDesign& design, bool enabled);

    // Gradients across the whole bar. They run from side to side, so that each part is a piece of its strip.
    Strips m_strips;
};

} // namespace varnhold
