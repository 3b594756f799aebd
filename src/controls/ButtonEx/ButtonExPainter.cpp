#include "controls/ButtonEx/ButtonExPainter.h"

#include "controls/ButtonEx/ButtonExState.h"
#include "controls/ButtonEx/TransparentCopy.h"
#include "controls/Contrast.h"
#include "controls/SystemColorsUi.h"
#include "controls/SystemEdge.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace varnhold {

namespace {

QColor mixed(const QColor& color, int with, int percent)
{
    const auto channel = [&](int own) { return own + (with - own) * percent / 100; };
    return QColor(channel(color.red()), channel(color.green()), channel(color.blue()));
}

/// What fills a bevelled button: hover and press tint it, away from white where there is nothing lighter.
QColor fillOf(const QColor& back, int state)
{
    constexpr int bright = 128;
    constexpr int nearlyWhite = 230;
    const int grey = qGray(back.rgb());
    if (state == buttonstate::pressed)
        return mixed(back, 0, 12);
    if (state != buttonstate::over)
        return back;
    return grey > nearlyWhite ? mixed(back, 0, 6) : mixed(back, 255, grey > bright ? 40 : 10);
}

/// The width of a line in logical pixels: whole device pixels, so that no line is thicker than its opposite.
double lineWidth(const QPainter& painter)
{
    const double ratio = painter.device()->devicePixelRatioF();
    return std::max(1.0, std::round(ratio)) / ratio;
}

/// A frame of one line: left and top in one colour, right and bottom in another. `clipped` leaves the corner
/// pixels out.
void frame(QPainter& painter, const QRect& rect, const QColor& topLeft, const QColor& bottomRight,
           bool clipped = false)
{
    if (rect.isEmpty())
        return;
    const double line = lineWidth(painter);
    const int cut = clipped ? 1 : 0;
    const double right = rect.left() + rect.width();
    const double bottom = rect.top() + rect.height();
    const double width = rect.width() - 2 * cut;
    const double height = rect.height() - 2 * cut;
    painter.fillRect(QRectF(rect.left() + cut, rect.top(), width, line), topLeft);
    painter.fillRect(QRectF(rect.left(), rect.top() + cut, line, height), topLeft);
    painter.fillRect(QRectF(rect.left() + cut, bottom - line, width, line), bottomRight);
    painter.fillRect(QRectF(right - line, rect.top() + cut, line, height), bottomRight);
}

void dots(QPainter& painter, const QRect& rect, const QColor& color)
{
    const double line = lineWidth(painter);
    const auto dot = [&](int x, int y) {
        if ((x + y) % 2 == 0)
            painter.fillRect(QRectF(x, y, line, line), color);
    };
    for (int x = rect.left(); x <= rect.right(); ++x) {
        dot(x, rect.top());
        dot(x, rect.bottom());
    }
    for (int y = rect.top() + 1; y < rect.bottom(); ++y) {
        dot(rect.left(), y);
        dot(rect.right(), y);
    }
}

void ringOf(QPainter& painter, const QRect& rect, const EdgeRing& ring)
{
    frame(painter, rect, toQColor(ring.leftTop), toQColor(ring.rightBottom));
}

void edge(QPainter& painter, const QRect& rect, EdgeKind kind, ColorValue back)
{
    const SystemEdge edge = systemEdge(kind, back);
    // The inner ring goes first: at a fractional ratio it reaches under the outer one.
    if (edge.rings > 1)
        ringOf(painter, rect.adjusted(1, 1, -1, -1), edge.inner);
    ringOf(painter, rect, edge.outer);
}

void stroke(QPainter& painter, const BevelStroke& stroke, ColorValue back, const QColor& text)
{
    switch (stroke.kind) {
    case BevelStroke::MonoFrame:
        frame(painter, stroke.rect, text, text);
        break;
    case BevelStroke::FlatFrame:
        edge(painter, stroke.rect, EdgeKind::flat, back);
        break;
    case BevelStroke::Raised:
        edge(painter, stroke.rect, EdgeKind::raised, back);
        break;
    case BevelStroke::Sunken:
        edge(painter, stroke.rect, EdgeKind::sunken, back);
        break;
    case BevelStroke::Bump:
        edge(painter, stroke.rect, EdgeKind::bump, back);
        break;
    case BevelStroke::Etched:
        edge(painter, stroke.rect, EdgeKind::etched, back);
        break;
    case BevelStroke::ThinRaised:
        ringOf(painter, stroke.rect, systemEdge(EdgeKind::raised, back).inner);
        break;
    case BevelStroke::ThinSunken:
        ringOf(painter, stroke.rect, systemEdge(EdgeKind::sunken, back).outer);
        break;
    case BevelStroke::FocusDots:
        dots(painter, stroke.rect, text);
        break;
    }
}

void caption(QPainter& painter, const ButtonExLook& look, const std::optional<QRect>& glyph)
{
    if (look.caption.isEmpty())
        return;
    const QString text = captionText(look.caption);
    const QFontMetrics metrics(look.font, painter.device());
    const QSize size = metrics.size(0, text);
    const QPoint at = captionPlace(look.bevel.size, size, glyph, look.captionOffset);
    const qsizetype mnemonic = captionMnemonic(look.caption);
    painter.setFont(look.font);
    painter.setPen(toQColor(look.textColor));
    painter.setLayoutDirection(look.rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    int flags = Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip | Qt::AlignAbsolute;
    QString drawn = text;
    if (mnemonic >= 0) {
        // Only the first mark counts: a later one is drawn, and for the painter that is written twice.
        flags |= Qt::TextShowMnemonic;
        drawn.replace(u'&', QStringLiteral("&&"));
        const qsizetype before = QStringView(text).left(mnemonic).count(u'&');
        drawn.insert(mnemonic + before, u'&');
    }
    painter.drawText(QRect(at, size), flags, drawn);
}

/// What the ring will lie on: the mean of the face's pixels along it.
QColor meanAlong(const QImage& face, const QRect& rect)
{
    int red = 0;
    int green = 0;
    int blue = 0;
    int count = 0;
    for (int x = rect.left(); x <= rect.right(); ++x) {
        for (const int y : {rect.top(), rect.bottom()}) {
            if (!face.valid(x, y))
                continue;
            const QRgb pixel = face.pixel(x, y);
            red += qRed(pixel);
            green += qGreen(pixel);
            blue += qBlue(pixel);
            ++count;
        }
    }
    return count == 0 ? QColor(Qt::black) : QColor(red / count, green / count, blue / count);
}

/// A colour that can be told from what a highlight lies on: the highlight colour where that stands out,
/// otherwise black or white.
QColor standingOut(const ButtonExLook& look, const QRect& rect)
{
    constexpr double enough = 3;
    const ColorValue under = look.skinned ? toColorValue(meanAlong(look.face, rect)) : look.backColor;
    const bool stands = contrastRatio(look.highlightColor, under) >= enough;
    return toQColor(stands ? look.highlightColor : blackOrWhiteOn(under));
}

void highlights(QPainter& painter, const ButtonExLook& look, bool hasDots)
{
    constexpr int ringInset = 2;
    const QRect all(QPoint(0, 0), look.bevel.size);
    const QRect ring = all.adjusted(ringInset, ringInset, -ringInset, -ringInset);
    if (look.ring && !hasDots && ring.width() > 2 && ring.height() > 2) {
        const QColor color = standingOut(look, ring);
        frame(painter, ring, color, color, true);
    }
    const QRect dotted = focusPlace(look.bevel.size);
    if (look.focusDots && !hasDots && !dotted.isEmpty())
        dots(painter, dotted, standingOut(look, dotted));
}

} // namespace

void paintButtonEx(QPainter& painter, const ButtonExLook& look)
{
    const QRect all(QPoint(0, 0), look.bevel.size);
    if (all.isEmpty())
        return;
    painter.save();
    painter.setClipRect(all, Qt::IntersectClip);
    const QColor text = toQColor(look.textColor);
    bool hasDots = false;
    if (look.skinned) {
        drawSharp(painter, QPoint(0, 0), look.face);
    } else {
        painter.fillRect(all, fillOf(toQColor(look.backColor), look.bevel.state));
        for (const BevelStroke& one : bevelStrokes(look.bevel)) {
            stroke(painter, one, look.backColor, text);
            hasDots = hasDots || one.kind == BevelStroke::FocusDots;
        }
    }
    std::optional<QRect> glyph;
    if (!look.glyph.isNull()) {
        glyph = glyphPlace(look.bevel.size, look.glyph.size(), look.bevel.appearance, look.glyphOffset);
        drawSharp(painter, glyph->topLeft(), look.glyph);
    }
    caption(painter, look, glyph);
    highlights(painter, look, hasDots);
    painter.restore();
}

} // namespace varnhold
