#include "controls/MorphListBox/MorphListScrollBar.h"

#include "controls/MorphListBox/MorphListBackground.h"
#include "controls/MorphListBox/MorphListMarks.h"
#include "controls/SystemColorsUi.h"

#include <QPainter>

namespace varnhold {

void MorphListScrollBar::paint(QPainter& painter, MorphListModel& model, const MorphListDesign& design,
                               bool enabled, const ToDevice& toDevice, int line)
{
    const MorphListMetrics& metrics = model.metrics();
    const QRect bar = toDevice(metrics.bar());
    if (bar.isEmpty())
        return;
    if (m_strips.track.size() != bar.size())
        makeStrips(bar.size(), design, enabled);

    const CaptureMode capture = model.capture();
    const auto piece = [&](const QRect& part, const QImage& strip) {
        if (!part.isEmpty())
            painter.drawImage(part.topLeft(), strip, part.translated(-bar.topLeft()));
    };
    const auto arrow = [&](const QRect& part, bool up, bool held, ColorValue color) {
        const QRect place = toDevice(part);
        piece(place, held ? m_strips.pressedButton : m_strips.button);
        paintArrow(painter, held ? place.translated(0, line) : place, up, toQColor(color));
    };
    piece(toDevice(metrics.trackAbove()),
          capture == CaptureMode::PageUp ? m_strips.clickedTrack : m_strips.track);
    piece(toDevice(metrics.trackBelow()),
          capture == CaptureMode::PageDown ? m_strips.clickedTrack : m_strips.track);
    arrow(metrics.upperArrow(), true, capture == CaptureMode::UpperArrow,
          enabled ? design.ArrowUpColor : design.DisArrowUpColor);
    arrow(metrics.lowerArrow(), false, capture == CaptureMode::LowerArrow,
          enabled ? design.ArrowDownColor : design.DisArrowDownColor);

    const QRect thumb = toDevice(metrics.thumb());
    piece(thumb, m_strips.thumb);
    paintFrame(painter, thumb, line,
               toQColor(enabled ? design.ThumbBorderColor : design.DisThumbBorderColor));
}

void MorphListScrollBar::makeStrips(const QSize& bar, const MorphListDesign& design, bool enabled)
{
    const auto strip = [&](ColorValue color1, ColorValue color2) {
        return morphGradientImage({bar.width(), bar.height(), color1, color2, 0, true, false});
    };
    const ColorValue button1 = enabled ? design.ButtonColor1 : design.DisButtonColor1;
    const ColorValue button2 = enabled ? design.ButtonColor2 : design.DisButtonColor2;
    m_strips.button = strip(button1, button2);
    m_strips.pressedButton = strip(button2, button1);
    m_strips.track = strip(enabled ? design.TrackBarColor1 : design.DisTrackbarColor1,
                           enabled ? design.TrackBarColor2 : design.DisTrackbarColor2);
    m_strips.clickedTrack = strip(design.TrackClickColor1, design.TrackClickColor2);
    m_strips.thumb = strip(enabled ? design.ThumbColor1 : design.DisThumbColor1,
                           enabled ? design.ThumbColor2 : design.DisThumbColor2);
}

} // namespace varnhold
