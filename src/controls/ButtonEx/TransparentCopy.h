#pragma once

#include "controls/SystemColors.h"

#include <QImage>

class QPainter;
class QWidget;

namespace varnhold {

/// Stands for "take the colour of one of the picture's own pixels".
inline constexpr ColorValue colorOfPicture = 0xFFFFFFFF;

/// The picture with every pixel of one colour cut out, at 96 pixels to the inch whatever its file says.
/// colorOfPicture takes the colour of the pixel at `probe`; nothing is cut when that pixel lies outside or
/// is transparent already.
[[nodiscard]] QImage cutColor(const QImage& picture, ColorValue color, const QPoint& probe = QPoint(1, 1));

/// Copies the part of a picture from its top left, `size` large, to `at`, without the pixels of one colour.
/// Parts outside either picture are left out.
void maskCopy(QImage& destination, const QPoint& at, const QImage& source, const QSize& size,
              ColorValue color = colorOfPicture);
/// The same inside a clip rectangle of the destination.
void maskCopy(QImage& destination, const QPoint& at, const QImage& source, const QSize& size,
              ColorValue color, const QRect& clip);

/// Copies between the pictures of two holders: a width or height of -1 is the source's own, colorOfPicture is
/// the colour at (0, 0). `shown`, if given, is redrawn at the end. False when either picture is null.
bool pictureCopy(QImage& destination, const QPoint& at, const QImage& source,
                 const QSize& size = QSize(-1, -1), ColorValue color = colorOfPicture,
                 QWidget* shown = nullptr);

/// Draws a picture so that its pixels stay sharp at the device's ratio: whole factors repeat pixels, others
/// are averaged by area. One pixel of the picture is one logical pixel.
void drawSharp(QPainter& painter, const QPoint& at, const QImage& picture);

} // namespace varnhold
