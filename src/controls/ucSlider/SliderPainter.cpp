#include "controls/ucSlider/SliderPainter.h"

#include "controls/EdgePainter.h"
#include "controls/SystemColorsUi.h"
#include "controls/ucSlider/SliderMetrics.h"
#include "controls/ucSlider/SliderState.h"

#include <QLinearGradient>
#include <QPainter>

namespace varnhold {

namespace {

constexpr qreal disabledOpacity = 0.4;

QColor mixed(const QColor& a, const QColor& b, qreal part)
{
    const auto channel = [part](int from, int to) { return qRound(from + (to - from) * part); };
    return QColor(channel(a.red(), b.red()), channel(a.green(), b.green()), channel(a.blue(), b.blue()));
}

// Black or white, whichever the colour is farther from.
QColor farFrom(const QColor& color)
{
    return qGray(color.rgb()) > 128 ? QColor(Qt::black) : QColor(Qt::white);
}

EdgeKind edgeOf(int railStyle)
{
    switch (railStyle) {
    case 1:
        return EdgeKind::raised;
    case 2:
        return EdgeKind::etched;
    case 3:
        return EdgeKind::bump;
    case 4:
        return EdgeKind::flat;
    default:
        return EdgeKind::sunken;
    }
}

void paintRail(QPainter& painter, const SliderLook& look)
{
    if (look.railStyle != SliderState::pictureRail) {
        drawSystemEdge(painter, grooveRect(look.size, look.vertical, look.knob.size()),
                       systemEdge(edgeOf(look.railStyle), look.backColor));
        return;
    }
    if (look.railPicture.isNull())
        return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QSize rail = look.railPicture.deviceIndependentSize().toSize();
    painter.drawPixmap(pictureRailRect(look.size, look.vertical, rail), look.railPicture);
}

// A cap lit from above with one line across its middle. Its outline runs along whole device pixels.
void paintDrawnKnob(QPainter& painter, const SliderLook& look, qreal ratio)
{
    const QColor back = toQColor(look.backColor);
    const bool dark = qGray(back.rgb()) <= 128;
    const qreal lift = look.pressed ? 0.0 : look.hovered ? 0.35 : 0.2;
    const QColor face =
        mixed(dark ? mixed(back, Qt::white, 0.5) : mixed(back, Qt::white, 0.45), Qt::white, lift);
    const QColor edge =
        look.focusShown ? farFrom(back) : mixed(back, dark ? Qt::white : Qt::black, dark ? 0.85 : 0.6);

    const auto aligned = [ratio](qreal at) { return qRound(at * ratio) / ratio; };
    const qreal pen = qMax(1, qRound(ratio)) / ratio;
    QRectF cap(QPointF(aligned(look.knob.left()), aligned(look.knob.top())),
               QPointF(aligned(look.knob.left() + look.knob.width()),
                       aligned(look.knob.top() + look.knob.height())));
    cap.adjust(pen / 2, pen / 2, -pen / 2, -pen / 2);

    QLinearGradient shade(cap.topLeft(), cap.bottomLeft());
    shade.setColorAt(0, mixed(face, Qt::white, 0.35));
    shade.setColorAt(1, mixed(face, Qt::black, 0.12));
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edge, pen));
    painter.setBrush(shade);
    painter.drawRoundedRect(cap, 2.5, 2.5);
    painter.setRenderHint(QPainter::Antialiasing, false);

    const QPoint middle(look.knob.left() + look.knob.width() / 2, look.knob.top() + look.knob.height() / 2);
    const QRect grip = look.vertical ? QRect(look.knob.left() + 5, middle.y(), look.knob.width() - 10, 1)
                                     : QRect(middle.x(), look.knob.top() + 5, 1, look.knob.height() - 10);
    painter.fillRect(grip, edge);
}

void paintKnob(QPainter& painter, const SliderLook& look, qreal ratio)
{
    if (look.sliderIcon.isNull())
        paintDrawnKnob(painter, look, ratio);
    else
        painter.drawPixmap(look.knob.topLeft(), look.sliderIcon);
}

void paintFocus(QPainter& painter, const SliderLook& look)
{
    const QColor back = toQColor(look.backColor);
    const QColor line = mixed(back, farFrom(back), 0.6);
    const QRect frame(QPoint(0, 0), look.size);
    painter.fillRect(frame.left(), frame.top(), frame.width(), 1, line);
    painter.fillRect(frame.left(), frame.bottom(), frame.width(), 1, line);
    painter.fillRect(frame.left(), frame.top(), 1, frame.height(), line);
    painter.fillRect(frame.right(), frame.top(), 1, frame.height(), line);
}

} // namespace

QSize drawnKnobSize(bool vertical)
{
    return vertical ? QSize(21, 11) : QSize(11, 21);
}

void paintSlider(QPainter& painter, const SliderLook& look, qreal ratio)
{
    if (look.size.isEmpty())
        return;
    painter.fillRect(QRect(QPoint(0, 0), look.size), toQColor(look.backColor));
    if (!look.enabled)
        painter.setOpacity(disabledOpacity);
    paintRail(painter, look);
    if (look.focusShown)
        paintFocus(painter, look);
    paintKnob(painter, look, ratio);
    painter.setOpacity(1);
}

} // namespace varnhold
