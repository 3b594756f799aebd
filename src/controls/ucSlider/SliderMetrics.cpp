#include "controls/ucSlider/SliderMetrics.h"

namespace varnhold {

namespace {

constexpr int railMargin = 4;
constexpr int grooveThickness = 6;

QRect centredAcross(QSize control, bool vertical, int thickness, int inset)
{
    if (vertical) {
        return {(control.width() - thickness) / 2, inset, thickness, qMax(0, control.height() - 2 * inset)};
    }
    return {inset, (control.height() - thickness) / 2, qMax(0, control.width() - 2 * inset), thickness};
}

} // namespace

QSize sliderControlSize(QSize asked, bool vertical, QSize knob, QSize rail)
{
    if (vertical)
        return sliderControlSize(asked.transposed(), false, knob.transposed(), rail.transposed())
            .transposed();
    if (rail.isEmpty())
        return {asked.width(), knob.height()};
    const int across = rail.height() < knob.height() ? knob.height() + railMargin : rail.height();
    return {rail.width(), across};
}

QRect grooveRect(QSize control, bool vertical, QSize knob)
{
    const int across = vertical ? control.width() : control.height();
    const int knobLength = vertical ? knob.height() : knob.width();
    return centredAcross(control, vertical, qBound(0, grooveThickness, across), qMax(0, knobLength / 2 - 2));
}

QRect pictureRailRect(QSize control, bool vertical, QSize rail)
{
    const int across = vertical ? control.width() : control.height();
    return centredAcross(control, vertical, qBound(0, vertical ? rail.width() : rail.height(), across), 0);
}

} // namespace varnhold
