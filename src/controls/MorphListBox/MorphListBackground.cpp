#include "controls/MorphListBox/MorphListBackground.h"

#include "controls/SystemColorsUi.h"

#include <QPainter>

#include <algorithm>

namespace varnhold {

namespace {

void paintPicture(QPainter& painter, const MorphBackground& background)
{
    if (background.picture.isNull())
        return;
    const QRect all(QPoint(), background.size);
    // Scaled once to device pixels, so that tiles meet without a seam at any ratio.
    const QSizeF logical = background.picture.deviceIndependentSize() * background.ratio;
    const QSize size(std::max(1, qRound(logical.width())), std::max(1, qRound(logical.height())));
    const QSize wanted = background.pictureMode == 1 ? background.size : size;
    QImage picture = background.picture.toImage();
    picture.setDevicePixelRatio(1);
    if (picture.size() != wanted)
        picture = picture.scaled(wanted, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (background.pictureMode == 2)
        painter.fillRect(all, QBrush(picture));
    else
        painter.drawImage(0, 0, picture);
}

} // namespace

QPainterPath morphOutline(const QSizeF& size, const MorphListDesign& design, qreal inset, qreal ratio)
{
    const QRectF outer = QRectF(QPointF(), size).adjusted(inset, inset, -inset, -inset);
    QPainterPath path;
    if (outer.width() <= 0 || outer.height() <= 0)
        return path;
    const qreal limit = std::min(outer.width(), outer.height()) / 2;
    const auto radius = [&](int curve) {
        return std::clamp(curve * ratio - (curve > 0 ? inset : 0), qreal(0), limit);
    };
    const qreal topLeft = radius(design.CurveTopLeft);
    const qreal topRight = radius(design.CurveTopRight);
    const qreal bottomRight = radius(design.CurveBottomRight);
    const qreal bottomLeft = radius(design.CurveBottomLeft);
    path.moveTo(outer.left() + topLeft, outer.top());
    path.lineTo(outer.right() - topRight, outer.top());
    if (topRight > 0)
        path.arcTo(outer.right() - 2 * topRight, outer.top(), 2 * topRight, 2 * topRight, 90, -90);
    path.lineTo(outer.right(), outer.bottom() - bottomRight);
    if (bottomRight > 0)
        path.arcTo(outer.right() - 2 * bottomRight, outer.bottom() - 2 * bottomRight, 2 * bottomRight,
                   2 * bottomRight, 0, -90);
    path.lineTo(outer.left() + bottomLeft, outer.bottom());
    if (bottomLeft > 0)
        path.arcTo(outer.left(), outer.bottom() - 2 * bottomLeft, 2 * bottomLeft, 2 * bottomLeft, 270, -90);
    path.lineTo(outer.left(), outer.top() + topLeft);
    if (topLeft > 0)
        path.arcTo(outer.left(), outer.top(), 2 * topLeft, 2 * topLeft, 180, -90);
    path.closeSubpath();
    return path;
}

QImage morphGradientImage(const MorphGradient& gradient)
{
    QImage image(std::max(0, gradient.width), std::max(0, gradient.height), QImage::Format_RGB32);
    if (image.isNull())
        return image;
    paintMorphGradient(gradient, reinterpret_cast<quint32*>(image.bits()),
                       image.bytesPerLine() / qsizetype(sizeof(quint32)));
    return image;
}

QImage paintMorphBackground(const MorphBackground& background)
{
    const MorphListDesign& design = background.design;
    const bool enabled = background.enabled;
    QImage inner = morphGradientImage({background.size.width(), background.size.height(),
                                       enabled ? design.BackColor1 : design.DisBackColor1,
                                       enabled ? design.BackColor2 : design.DisBackColor2, design.BackAngle,
                                       design.BackMiddleOut, design.CircularGradient});
    if (inner.isNull())
        return inner;
    {
        QPainter painter(&inner);
        paintPicture(painter, background);
    }

    const int width = morphBorderWidth(design, background.ratio);
    const bool curved = isCurved(design);
    if (width <= 0 && !curved)
        return inner;
    const ColorValue color1 = !enabled             ? design.DisBorderColor1
                              : background.focused ? design.FocusBorderColor1
                                                   : design.BorderColor1;
    const ColorValue color2 = !enabled             ? design.DisBorderColor2
                              : background.focused ? design.FocusBorderColor2
                                                   : design.BorderColor2;
    QImage image(background.size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    // A ring of one pixel for each colour of the border, from the outside in; each outline covers what is
    // left of the one before.
    const auto outline = [&](int inset) {
        return morphOutline(background.size, design, inset, background.ratio);
    };
    const std::vector<quint32> ramp = morphRamp(width, color1, color2, design.BorderMiddleOut);
    for (int ring = 0; ring < width; ++ring)
        painter.fillPath(outline(ring), QColor::fromRgb(ramp[size_t(ring)]));
    painter.setClipPath(outline(width));
    painter.drawImage(0, 0, inner);
    painter.end();
    return curved ? image : image.convertToFormat(QImage::Format_RGB32);
}

} // namespace varnhold
