#include "platform/pictures/PictureReader.h"

#include "platform/ReadFile.h"
#include "platform/RunTimeError.h"
#include "platform/pictures/FittedSize.h"
#include "platform/pictures/PictureHeader.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>

#include <cmath>

namespace varnhold {

namespace {

/// By name: no other reader that is installed ever sees the bytes.
QByteArray formatOf(PictureKind kind)
{
    switch (kind) {
    case PictureKind::Bitmap:
        return "bmp";
    case PictureKind::Jpeg:
        return "jpeg";
    case PictureKind::Gif:
        return "gif";
    case PictureKind::Png:
        return "png";
    case PictureKind::None:
        break;
    }
    return {};
}

/// `size`, or one in its proportions of so many pixels.
QSize bounded(const QSize& size, qint64 pixels)
{
    const double count = static_cast<double>(size.width()) * size.height();
    if (count <= static_cast<double>(pixels))
        return size;
    const double scale = std::sqrt(static_cast<double>(pixels) / count);
    return fittedSize(size, QSize(std::max(1, static_cast<int>(size.width() * scale)),
                                  std::max(1, static_cast<int>(size.height() * scale))));
}

QSize sizeToShow(const PictureHeader& header, const QSize& most)
{
    QSize size = header.size;
    if (!most.isEmpty() && (size.width() > most.width() || size.height() > most.height()))
        size = fittedSize(size, most);
    // Two pictures stand side by side while one is scaled into the other.
    constexpr qint64 pixelBytes = 4;
    if (header.kind == PictureKind::Jpeg) {
        const qint64 room = (pictureLimits::memory - header.heldBytes) / pixelBytes;
        const bool fits = size == header.size && header.size.width() * qint64{header.size.height()} <=
                                                     std::min(room, pictureLimits::pixels);
        if (!fits)
            size = bounded(size, room / 2);
    }
    return size;
}

/// 32 bits a pixel, in place where the pixels are as large already.
void makeUniform(QImage& image)
{
    image.setDevicePixelRatio(1);
    image.convertTo(image.hasAlphaChannel() ? QImage::Format_ARGB32_Premultiplied : QImage::Format_RGB32);
}

QImage decode(QIODevice& device, const PictureHeader& header, const QSize& most)
{
    const QByteArray format = formatOf(header.kind);
    QImageReader reader(&device, format);
    const QSize shown = sizeToShow(header, most);
    const bool isJpeg = header.kind == PictureKind::Jpeg;
    if (isJpeg && shown != header.size)
        reader.setScaledSize(shown);
    // The reader fills an image that it is handed, if that suits, and leaves there what it read before it
    // failed; without one the missing part would show what was in the memory.
    QImage image;
    const QImage::Format pixels = isJpeg ? QImage::Format_Invalid : reader.imageFormat();
    if (pixels != QImage::Format_Invalid) {
        image = QImage(header.size, pixels);
        image.fill(Qt::transparent);
    }
    if (!reader.read(&image) && image.isNull())
        return {};
    makeUniform(image);
    if (image.width() > shown.width() || image.height() > shown.height())
        return image.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return image;
}

} // namespace

QImage readPicture(QByteArrayView bytes, const QSize& most)
{
    const PictureHeader header = pictureHeader(bytes);
    if (!isWithinLimits(header, bytes.size()))
        return {};
    QByteArray view = QByteArray::fromRawData(bytes.data(), bytes.size());
    QBuffer buffer(&view);
    return buffer.open(QIODevice::ReadOnly) ? decode(buffer, header, most) : QImage();
}

QImage readPictureFile(const QString& path, const QSize& most)
{
    constexpr qint64 firstBytes = 64;
    constexpr qint64 readAtOnce = 1 << 20;
    int descriptor = -1;
    try {
        descriptor = openRegularFile(path);
    } catch (const RunTimeError&) {
        return {};
    }
    QFile file;
    if (!file.open(descriptor, QIODevice::ReadOnly | QIODevice::Unbuffered, QFile::AutoCloseHandle))
        return {};
    const qint64 size = file.size();
    QByteArray bytes = file.read(firstBytes);
    const PictureKind kind = pictureKind(bytes);
    const bool isJpeg = kind == PictureKind::Jpeg;
    if (kind == PictureKind::None || (isJpeg && size > pictureLimits::jpegBytes))
        return {};
    // A file may grow while it is read, or be no regular one's size at all: no more than was looked at.
    if (isJpeg || size <= readAtOnce)
        bytes += file.read(size - bytes.size());
    if (size <= readAtOnce)
        return readPicture(bytes, most);
    const PictureHeader header = pictureHeader(bytes);
    bytes.clear(); // not held beside what is unpacked from it
    if (!isWithinLimits(header, size) || !file.seek(0))
        return {};
    return decode(file, header, most);
}

} // namespace varnhold
