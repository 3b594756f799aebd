#include "controls/MorphListBox/MorphListPainter.h"

#include "controls/SystemColorsUi.h"

#include <QPainter>

namespace varnhold {

void MorphListPainter::paint(QPainter& painter, const QRect& place, const QRegion& dirty,
                             MorphListModel& model, const MorphListLook& look)
{
    painter.save();
    painter.setClipRegion(dirty);
    painter.fillRect(place, toQColor(look.design.BackColor2));
    painter.setFont(look.font);
    const MorphListMetrics& metrics = model.metrics();
    for (int index = model.topIndex(); index <= model.lastVisible(); ++index) {
        const int visible = index - model.topIndex();
        if (model.showsSelected(index))
            painter.fillRect(metrics.row(visible).translated(place.topLeft()),
                             toQColor(look.design.SelColor1));
        painter.setPen(
            toQColor(model.showsSelected(index) ? look.design.HighlightColor : look.design.ForeColor));
        painter.drawText(metrics.text(visible).translated(place.topLeft()),
                         Qt::AlignVCenter | (look.RightToLeft ? Qt::AlignRight : Qt::AlignLeft),
                         model.text(index));
    }
    if (metrics.hasScrollBar()) {
        painter.fillRect(metrics.track().translated(place.topLeft()), toQColor(look.design.TrackBarColor1));
        painter.fillRect(metrics.thumb().translated(place.topLeft()), toQColor(look.design.ThumbColor2));
    }
    painter.restore();
}

} // namespace varnhold
