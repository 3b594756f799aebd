#pragma once

#include "controls/SystemColors.h"

#include <QImage>

class QPainter;

namespace varnhold {

/// Stands for "take the colour of one of the picture's own pixels".
inline constexpr ColorValue colorOfPicture = 0xFFFFFFFF;

/// The picture with every pixel of one colour cut out, at 96 pixels to the inch whatever its file says.
/// colorOfPicture takes the colour of the pixel at `probe`; nothing is cut when that lies outside.
[[nodiscard]] QImage cutColor(const QImage& picture, ColorValue color, const QPoint& probe = QPoint(1, 1));

/// Draws a picture so that its pixels stay sharp at the device's ratio: whole factors repeat pixels, others
/// are averaged by area. The painter's own state is left as it was.
void drawSharp(QPainter& painter, const QPoint& at, const QImage& picture);

} // namespace varnhold
