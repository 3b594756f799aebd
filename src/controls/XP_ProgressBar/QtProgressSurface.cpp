#include "controls/XP_ProgressBar/QtProgressSurface.h"

#include "controls/EdgePainter.h"
#include "controls/SystemColorsUi.h"

#include <QFontMetrics>
#include <QImage>

#include <utility>

namespace varnhold {

namespace {

// Whether the hatch covers a pixel of its square tile. Diagonals run through the tile's corners.
bool onHatch(int style, int x, int y, int period, int thickness)
{
    const bool row = y < thickness;
    const bool column = x < thickness;
    const bool down = (x - y + period) % period < thickness;
    const bool up = (x + y) % period < thickness;
    switch (style) {
    case 0:
        return row;
    case 1:
        return column;
    case 2:
        return down;
    case 3:
        return up;
    case 4:
        return row || column;
    case 5:
        return down || up;
    default:
        return true;
    }
}

QImage hatchTile(int style, const QColor& color, const QColor& background, qreal ratio)
{
    const int period = qMax(2, qRound(8 * ratio));
    const int thickness = qMax(1, qRound(ratio));
    QImage tile(period, period, QImage::Format_RGB32);
    for (int y = 0; y < period; ++y) {
        for (int x = 0; x < period; ++x)
            tile.setPixelColor(x, y, onHatch(style, x, y, period, thickness) ? color : background);
    }
    return tile;
}

} // namespace

QtProgressSurface::QtProgressSurface(QImage& image, QSize client, qreal ratio, QFont font, QPixmap picture)
    : m_painter(&image),
      m_client(client),
      m_pixels(image.size()),
      m_ratio(ratio),
      m_font(std::move(font)),
      m_picture(std::move(picture))
{
}

QRect QtProgressSurface::pixels(const BarRect& rect) const
{
    // At a fractional ratio the image is the next whole pixel larger; the last column and row take it up.
    const auto x = [this](int at) {
        return at >= m_client.width() ? m_pixels.width() : qRound(at * m_ratio);
    };
    const auto y = [this](int at) {
        return at >= m_client.height() ? m_pixels.height() : qRound(at * m_ratio);
    };
    const QPoint corner(x(rect.left), y(rect.top));
    return {corner, QSize(x(rect.right) - corner.x(), y(rect.bottom) - corner.y())};
}

void QtProgressSurface::fillRect(const BarRect& rect, ColorValue color)
{
    m_painter.fillRect(pixels(rect), toQColor(color));
}

void QtProgressSurface::drawLine(QPoint from, QPoint to, ColorValue color)
{
    if (from.y() == to.y())
        fillRect({from.x(), from.y(), to.x(), from.y() + 1}, color);
    else
        fillRect({from.x(), from.y(), from.x() + 1, to.y()}, color);
}

void QtProgressSurface::drawEdge(const BarRect& rect, EdgeKind kind)
{
    drawSystemEdge(m_painter, pixels(rect), systemEdge(kind), qMax(1, qRound(m_ratio)));
}

void QtProgressSurface::fillHatch(const BarRect& rect, int style, ColorValue color, ColorValue background)
{
    m_painter.fillRect(pixels(rect),
                       QBrush(hatchTile(style, toQColor(color), toQColor(background), m_ratio)));
}

void QtProgressSurface::fillPicture(const BarRect& rect)
{
    if (m_picture.isNull())
        return;
    QPixmap tile = m_picture;
    const QSize size = (m_picture.deviceIndependentSize() * m_ratio).toSize().expandedTo({1, 1});
    if (tile.size() != size)
        tile = tile.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    tile.setDevicePixelRatio(1);
    m_painter.fillRect(pixels(rect), QBrush(tile));
}

ColorValue QtProgressSurface::pictureColor() const
{
    if (m_picture.isNull())
        return 0xFFFFFF;
    const QPixmap mean = m_picture.scaled(1, 1, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return toColorValue(mean.toImage().pixelColor(0, 0));
}

QSize QtProgressSurface::textSize(const QString& text) const
{
    const QFontMetrics metrics(m_font);
    return {metrics.horizontalAdvance(text), metrics.height()};
}

void QtProgressSurface::drawText(const BarRect& rect, const BarRect& clip, const QString& text,
                                 ColorValue color)
{
    if (clip.isEmpty())
        return;
    m_painter.save();
    m_painter.setClipRect(pixels(clip));
    m_painter.scale(m_ratio, m_ratio);
    m_painter.setFont(m_font);
    m_painter.setPen(toQColor(color));
    m_painter.drawText(QPoint(rect.left, rect.top + QFontMetrics(m_font).ascent()), text);
    m_painter.restore();
}

} // namespace varnhold
