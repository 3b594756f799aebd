#include "covers/BitmapFile.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>

namespace varnhold {

QByteArray bitmapFile(const QImage& picture)
{
    if (picture.isNull())
        return {};
    QImage opaque(picture.size(), QImage::Format_RGB32); // its writer stores these as 24 bits
    opaque.fill(Qt::white);
    QImage flat = picture;
    flat.setDevicePixelRatio(1);
    QPainter(&opaque).drawImage(0, 0, flat);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    opaque.save(&buffer, "BMP");
    return bytes;
}

} // namespace varnhold
