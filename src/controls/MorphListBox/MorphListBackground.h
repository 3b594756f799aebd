#pragma once

#include "controls/MorphListBox/MorphListDesign.h"
#include "controls/MorphListBox/MorphListGradient.h"

#include <QImage>
#include <QPainterPath>
#include <QPixmap>

namespace varnhold {

/// The outline of a list of that size: a rectangle, or one with curved corners. `inset` and the radii of
/// the design are multiplied by `ratio`.
QPainterPath morphOutline(const QSizeF& size, const MorphListDesign& design, qreal inset, qreal ratio);

[[nodiscard]] inline bool isCurved(const MorphListDesign& design)
{
    return design.CurveTopLeft > 0 || design.CurveTopRight > 0 || design.CurveBottomLeft > 0 ||
           design.CurveBottomRight > 0;
}

QImage morphGradientImage(const MorphGradient& gradient);

/// What the background of a list is made of.
struct MorphBackground
{
    QSize size; ///< device pixels
    qreal ratio = 1;
    bool enabled = true;
    bool focused = false;
    MorphListDesign design;
    QPixmap picture; ///< over the gradient; may be null
    int pictureMode = 0;
};

/// Thickness of the border in device pixels: rounded down, so that no row or scroll bar reaches into it.
[[nodiscard]] inline int morphBorderWidth(const MorphListDesign& design, qreal ratio)
{
    return int(design.BorderWidth * ratio);
}

/// Gradient, picture and border in device pixels. Outside a curved outline it is transparent.
QImage paintMorphBackground(const MorphBackground& background);

} // namespace varnhold
