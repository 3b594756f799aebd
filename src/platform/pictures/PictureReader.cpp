#include "platform/pictures/PictureReader.h"

#include "platform/ReadFile.h"
#include "platform/RunTimeError.h"
#include "platform/pictures/FittedSize.h"
#include "platform/pictures/PictureHeader.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>

#include <algorithm>

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

/// The size in which a picture is to come. A large JPEG comes in so many eighths of its own as there is room
/// for twice, since the decoder may need both sides of its last step at once.
QSize sizeToShow(const PictureHeader& header, const QSize& most)
{
    const QSize& told = header.size;
    const bool isTooLarge = !most.isEmpty() && (told.width() > most.width() || told.height() > most.height());
    const QSize wanted = isTooLarge ? fittedSize(told, most) : told;
    if (header.kind != PictureKind::Jpeg)
        return wanted;
    constexpr qint64 pixelBytes = 4;
    constexpr int whole = 8;
    const qint64 room = (pictureLimits::memory - header.heldBytes) / pixelBytes;
    const auto count = [](const QSize& size) { return qint64{size.width()} * size.height(); };
    if (wanted == told && count(told) <= std::min(room, pictureLimits::pixels))
        return wanted;
    int eighths = whole;
    const auto inEighths = [&](int length) { return (length * eighths + whole - 1) / whole; };
    while (eighths > 1 && 2 * count({inEighths(told.width()), inEighths(told.height())}) > room)
        --eighths;
    const QSize largest(std::max(1, told.width() * eighths / whole),
                        std::max(1, told.height() * eighths / whole));
    return wanted.boundedTo(largest) == wanted ? wanted : largest;
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
