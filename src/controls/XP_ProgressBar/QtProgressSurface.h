#pragma once

#include "controls/XP_ProgressBar/ProgressSurface.h"

#include <QFont>
#include <QPainter>
#include <QPixmap>

namespace varnhold {

/// Draws a bar into an image of the screen's own pixels. Every edge is rounded to a whole pixel there, so
/// that lines stay sharp and neighbours meet without a seam at any ratio.
class QtProgressSurface : public ProgressSurface
{
public:
    /// `image` holds client x ratio pixels; its own device pixel ratio must be 1 while this exists.
    QtProgressSurface(QImage& image, QSize client, qreal ratio, QFont font, QPixmap picture);

    [[nodiscard]] QSize clientSize() const override { return m_client; }
    void fillRect(const BarRect& rect, ColorValue color) override;
    void drawLine(QPoint from, QPoint to, ColorValue color) override;
    void drawEdge(const BarRect& rect, EdgeKind kind) override;
    void fillHatch(const BarRect& rect, int style, ColorValue color, ColorValue background) override;
    void fillPicture(const BarRect& rect) override;
    [[nodiscard]] ColorValue pictureColor() const override;
    [[nodiscard]] QSize textSize(const QString& text) const override;
    void drawText(const BarRect& rect, const BarRect& clip, const QString& text, ColorValue color) override;

private:
    [[nodiscard]] QRect pixels(const BarRect& rect) const;

    QPainter m_painter;
    QSize m_client;
    QSize m_pixels;
    qreal m_ratio;
    QFont m_font;
    QPixmap m_picture;
};

} // namespace varnhold
