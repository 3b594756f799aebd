#include "appearance/ScrollBarLook.h"

#include "controls/MorphListBox/MorphListBackground.h"
#include "controls/MorphListBox/MorphListMarks.h"
#include "controls/SystemColorsUi.h"

#include <QPainter>

namespace varnhold {

void paintScrollBar(QPainter& painter, const ScrollBarLook& bar, const MorphListDesign& design)
{
    const qreal ratio = painter.device()->devicePixelRatioF();
    const bool lies = bar.orientation == Qt::Horizontal;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.scale(1 / ratio, 1 / ratio);
    // A lying bar is a standing one with its axes changed.
    if (lies)
        painter.setTransform(QTransform(0, 1, 1, 0, 0, 0), true);
    const auto toDevice = [&](const QRect& place) {
        const QRect standing = lies ? QRect(place.y(), place.x(), place.height(), place.width()) : place;
        const QPoint from(qRound(standing.left() * ratio), qRound(standing.top() * ratio));
        const QPoint to(qRound((standing.right() + 1) * ratio), qRound((standing.bottom() + 1) * ratio));
        return QRect(from, to - QPoint(1, 1));
    };
    const auto ramp = [&](const QRect& place, ColorValue from, ColorValue to) {
        if (!place.isEmpty())
            painter.drawImage(place.topLeft(),
                              morphGradientImage({place.width(), place.height(), from, to, 0, true, false}));
    };
    const auto arrow = [&](const ScrollBarLook::Part& part, bool up, ColorValue color, int line) {
        const QRect place = toDevice(part.place);
        ramp(place, part.pressed ? design.ButtonColor2 : design.ButtonColor1,
             part.pressed ? design.ButtonColor1 : design.ButtonColor2);
        if (!place.isEmpty())
            paintArrow(painter, part.pressed ? place.translated(0, line) : place, up, toQColor(color));
    };
    const int line = qMax(1, int(ratio));
    for (const ScrollBarLook::Part& track : {bar.before, bar.after})
        ramp(toDevice(track.place), track.pressed ? design.TrackClickColor1 : design.TrackBarColor1,
             track.pressed ? design.TrackClickColor2 : design.TrackBarColor2);
    arrow(bar.less, true, bar.enabled ? design.ArrowUpColor : design.DisArrowUpColor, line);
    arrow(bar.more, false, bar.enabled ? design.ArrowDownColor : design.DisArrowDownColor, line);
    if (const QRect thumb = toDevice(bar.thumb); !thumb.isEmpty()) {
        ramp(thumb, design.ThumbColor1, design.ThumbColor2);
        paintFrame(painter, thumb, line, toQColor(design.ThumbBorderColor));
    }
    painter.restore();
}

} // namespace varnhold
