#include "controls/CTooltip/TipPainter.h"

#include "controls/Contrast.h"
#include "controls/SystemColorsUi.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int smallIcon = 16;
constexpr int largeIcon = 32;
constexpr int iconGap = 7;
constexpr int titleGap = 5;
constexpr int tabBlanks = 8;
/// Contrast from which text of this size can be read.
constexpr double readable = 4.5;

QFont titleFont(const TipContent& content)
{
    QFont font = content.font;
    font.setBold(true);
    return font;
}

int iconSize(const TipContent& content)
{
    if (content.title.isEmpty() || content.icon < 1 || content.icon > 6)
        return 0;
    return content.icon > 3 ? largeIcon : smallIcon;
}

/// Lays the text out for a width. Lines that would end below `height` are left out.
QSize layOut(QTextLayout& layout, const QString& text, const QFont& font, const QSize& most)
{
    QString lines = text;
    lines.replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n').replace(u'\n', QChar::LineSeparator);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setTabStopDistance(QFontMetricsF(font).horizontalAdvance(u' ') * tabBlanks);
    layout.setText(lines);
    layout.setFont(font);
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    double width = 0;
    double y = 0;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max(1, most.width()));
        if (y + line.height() > most.height())
            break;
        line.setPosition(QPointF(0, y));
        y += line.height();
        width = std::max(width, line.naturalTextWidth());
    }
    layout.endLayout();
    return QSize(static_cast<int>(std::ceil(width)), static_cast<int>(std::ceil(y)));
}

struct Parts
{
    QRect icon;
    QRect title;
    QRect text;
    QSize all;
};

/// Where things stand inside the padding.
Parts layOutParts(const TipContent& content, const QSize& most, QTextLayout& title, QTextLayout& text)
{
    Parts parts;
    int top = 0;
    if (!content.title.isEmpty()) {
        const int icon = iconSize(content);
        const int left = icon == 0 ? 0 : icon + iconGap;
        const QSize size =
            layOut(title, content.title, titleFont(content), QSize(most.width() - left, most.height()));
        const int height = std::max(icon, size.height());
        parts.icon = QRect(0, (height - icon) / 2, icon, icon);
        parts.title = QRect(QPoint(left, (height - size.height()) / 2), size);
        parts.all = QSize(left + size.width(), height);
        top = height + titleGap;
    }
    const QSize size = layOut(text, content.text, content.font, QSize(most.width(), most.height() - top));
    parts.text = QRect(QPoint(0, top), size);
    if (!size.isEmpty())
        parts.all = QSize(std::max(parts.all.width(), size.width()), top + size.height());
    return parts;
}

QSize inside(const QSize& most, const QSize& padding)
{
    return QSize(std::max(1, most.width() - 2 * padding.width()),
                 std::max(1, most.height() - 2 * padding.height()));
}

void drawMark(QPainter& painter, const QRectF& box, const QColor& color, bool dotFirst)
{
    // A bar and a dot: an "i", or turned round an exclamation mark.
    const double unit = box.width() / 16;
    const double x = box.center().x() - unit;
    const double dotY = dotFirst ? box.top() + 3.5 * unit : box.top() + 11.5 * unit;
    const double barY = dotFirst ? box.top() + 6.5 * unit : box.top() + 5.5 * unit;
    painter.setBrush(color);
    painter.drawRect(QRectF(x, dotY, 2 * unit, 2 * unit));
    painter.drawRect(QRectF(x, barY, 2 * unit, (dotFirst ? 6 : 5) * unit));
}

void drawIcon(QPainter& painter, const QRect& rect, int icon)
{
    if (rect.isEmpty())
        return;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const QRectF box(rect);
    const double unit = box.width() / 16;
    switch ((icon - 1) % 3) {
    case 0:
        painter.setBrush(QColor(0x1F, 0x6F, 0xC8));
        painter.drawEllipse(box);
        drawMark(painter, box, Qt::white, true);
        break;
    case 1: {
        QPainterPath triangle;
        triangle.moveTo(box.center().x(), box.top() + unit);
        triangle.lineTo(box.right() - 0.5 * unit, box.bottom() - unit);
        triangle.lineTo(box.left() + 0.5 * unit, box.bottom() - unit);
        triangle.closeSubpath();
        painter.setPen(QPen(QColor(0xB0, 0x7A, 0x00), unit, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
        painter.setBrush(QColor(0xFF, 0xC8, 0x1E));
        painter.drawPath(triangle);
        painter.setPen(Qt::NoPen);
        drawMark(painter, box, QColor(0x20, 0x18, 0x00), false);
        break;
    }
    default:
        painter.setBrush(QColor(0xC8, 0x28, 0x28));
        painter.drawEllipse(box);
        painter.setPen(QPen(Qt::white, 2 * unit, Qt::SolidLine, Qt::FlatCap));
        painter.drawLine(box.center() - QPointF(3, 3) * unit, box.center() + QPointF(3, 3) * unit);
        painter.drawLine(box.center() - QPointF(3, -3) * unit, box.center() + QPointF(3, -3) * unit);
        break;
    }
    painter.restore();
}

} // namespace

QColor tipBackColor(const TipContent& content)
{
    return toQColor(content.backColor == 0 ? systemcolors::infoBackground : content.backColor);
}

QColor tipTextColor(const TipContent& content)
{
    if (content.textColor != 0)
        return toQColor(content.textColor);
    const ColorValue back = toColorValue(tipBackColor(content));
    const bool reads = contrastRatio(systemcolors::infoText, back) >= readable;
    return toQColor(reads ? systemcolors::infoText : blackOrWhiteOn(back));
}

QSize tipBodySize(const TipContent& content, const QSize& most)
{
    QTextLayout title;
    QTextLayout text;
    const QSize padding = tipPadding(content.balloon);
    return layOutParts(content, inside(most, padding), title, text).all + 2 * padding;
}

QImage tipShape(const TipPlace& place, bool balloon)
{
    QImage shape(place.window.size(), QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    if (shape.isNull())
        return shape;
    QPainter painter(&shape);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    if (balloon)
        painter.drawRoundedRect(place.body, balloonRadius, balloonRadius);
    else
        painter.drawRect(place.body);
    if (place.hasTail)
        painter.drawPolygon(place.tail.data(), static_cast<int>(place.tail.size()));
    return shape;
}

void paintTip(QPainter& painter, const TipContent& content, const TipPlace& place, const QImage& shape)
{
    const QColor back = tipBackColor(content);
    const QColor text = tipTextColor(content);
    const auto between = [](int a, int b) { return (a * 3 + b * 2) / 5; };
    const QColor border(between(text.red(), back.red()), between(text.green(), back.green()),
                        between(text.blue(), back.blue()));
    QImage ground(shape.size(), QImage::Format_ARGB32_Premultiplied);
    ground.fill(Qt::transparent);
    const auto isIn = [&shape](int x, int y) { return shape.valid(x, y) && qAlpha(shape.pixel(x, y)) != 0; };
    for (int y = 0; y < shape.height(); ++y) {
        for (int x = 0; x < shape.width(); ++x) {
            if (!isIn(x, y))
                continue;
            const bool edge = !isIn(x - 1, y) || !isIn(x + 1, y) || !isIn(x, y - 1) || !isIn(x, y + 1);
            ground.setPixelColor(x, y, edge ? border : back);
        }
    }
    painter.drawImage(0, 0, ground);

    const QSize padding = tipPadding(content.balloon);
    QTextLayout titleLayout;
    QTextLayout textLayout;
    const Parts parts = layOutParts(content, inside(place.body.size(), padding), titleLayout, textLayout);
    const QPoint origin = place.body.topLeft() + QPoint(padding.width(), padding.height());
    painter.save();
    painter.setPen(text);
    painter.setClipRect(place.body);
    drawIcon(painter, parts.icon.translated(origin), content.icon);
    titleLayout.draw(&painter, parts.title.topLeft() + origin);
    textLayout.draw(&painter, parts.text.topLeft() + origin);
    painter.restore();
}

} // namespace varnhold
