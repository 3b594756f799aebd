#pragma once

#include <QByteArray>

class QImage;

namespace varnhold {

/// The picture as the bytes of a bitmap file of 24 bits a pixel; what is clear in it is laid onto white.
/// Empty for a null picture.
QByteArray bitmapFile(const QImage& picture);

} // namespace varnhold
