#include "controls/ButtonEx/ButtonExPainter.h"

#include "controls/ButtonEx/ButtonExState.h"
#include "controls/ButtonEx/TransparentCopy.h"
#include "controls/SystemColorsUi.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace varnhold {

namespace {

/// The shades of a bevel, all made from the back colour so that it sits on any window.
struct Shades
{
    explicit Shades(const QColor& back)
        : face(back),
          highlight(mixed(back, 255, 45)),
          light(mixed(back, 255, 15)),
          shadow(mixed(back, 0, 35)),
          dark(mixed(back, 0, 65))
    {
    }

    /// What fills the button: hover and press tint it, away from white where there is nothing lighter.
    [[nodiscard]] QColor fill(int state) const
    {
        constexpr int bright = 128;
        constexpr int nearlyWhite = 230;
        const int grey = qGray(face.rgb());
        if (state == buttonstate::pressed)
            return mixed(face, 0, 12);
        if (state != buttonstate::over)
            return face;
        return grey > nearlyWhite ? mixed(face, 0, 6) : mixed(face, 255, grey > bright ? 40 : 10);
    }

    static QColor mixed(const QColor& color, int with, int percent)
    {
        const auto channel = [&](int own) { return own + (with - own) * percent / 100; };
        return QColor(channel(color.red()), channel(color.green()), channel(color.blue()));
    }

    QColor face;
    QColor highlight;
    QColor light;
    QColor shadow;
    QColor dark;
};

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

void stroke(QPainter& painter, const BevelStroke& stroke, const Shades& shades, const QColor& text)
{
    const QRect outer = stroke.rect;
    // Inner lines go first: at a fractional ratio they reach under the outer ones.
    const QRect inner = outer.adjusted(1, 1, -1, -1);
    switch (stroke.kind) {
    case BevelStroke::MonoFrame:
        frame(painter, outer, text, text);
        break;
    case BevelStroke::FlatFrame:
        frame(painter, outer, shades.shadow, shades.shadow);
        break;
    case BevelStroke::Raised:
        frame(painter, inner, shades.light, shades.shadow);
        frame(painter, outer, shades.highlight, shades.dark);
        break;
    case BevelStroke::Sunken:
        frame(painter, inner, shades.shadow, shades.light);
        frame(painter, outer, shades.dark, shades.highlight);
        break;
    case BevelStroke::Bump:
        frame(painter, inner, shades.shadow, shades.light);
        frame(painter, outer, shades.highlight, shades.dark);
        break;
    case BevelStroke::Etched:
        frame(painter, inner, shades.highlight, shades.shadow);
        frame(painter, outer, shades.shadow, shades.highlight);
        break;
    case BevelStroke::ThinRaised:
        frame(painter, outer, shades.highlight, shades.shadow);
        break;
    case BevelStroke::ThinSunken:
        frame(painter, outer, shades.shadow, shades.highlight);
        break;
    case BevelStroke::FocusDots:
        dots(painter, outer, text);
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

double channelLight(int channel)
{
    const double part = channel / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
}

double relativeLight(const QColor& color)
{
    return 0.2126 * channelLight(color.red()) + 0.7152 * channelLight(color.green()) +
           0.0722 * channelLight(color.blue());
}

/// WCAG contrast, 1 to 21.
double contrast(const QColor& one, const QColor& other)
{
    const double a = relativeLight(one);
    const double b = relativeLight(other);
    return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
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

/// A ring with clipped corners that can be told from whatever it lies on: in the highlight colour where that
/// stands out, otherwise black or white.
void ring(QPainter& painter, const ButtonExLook& look)
{
    constexpr int ringInset = 2;
    constexpr double enough = 3;
    const QRect rect =
        QRect(QPoint(0, 0), look.bevel.size).adjusted(ringInset, ringInset, -ringInset, -ringInset);
    if (rect.width() < 3 || rect.height() < 3)
        return;
    const QColor under = look.skinned ? meanAlong(look.face, rect) : toQColor(look.backColor);
    QColor color = toQColor(look.highlightColor);
    if (contrast(color, under) < enough)
        color = contrast(Qt::white, under) > contrast(Qt::black, under) ? Qt::white : Qt::black;
    frame(painter, rect, color, color, true);
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
        const Shades shades(toQColor(look.backColor));
        painter.fillRect(all, shades.fill(look.bevel.state));
        for (const BevelStroke& one : bevelStrokes(look.bevel)) {
            stroke(painter, one, shades, text);
            hasDots = hasDots || one.kind == BevelStroke::FocusDots;
        }
    }
    std::optional<QRect> glyph;
    if (!look.glyph.isNull()) {
        glyph = glyphPlace(look.bevel.size, look.glyph.size(), look.bevel.appearance, look.glyphOffset);
        drawSharp(painter, glyph->topLeft(), look.glyph);
    }
    caption(painter, look, glyph);
    if (look.highlight && !hasDots)
        ring(painter, look);
    painter.restore();
}

} // namespace varnhold
