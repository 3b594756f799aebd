#include "covers/CoverPicture.h"

#include "covers/FitPreviewImage.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QtEndian>

#include <array>

namespace varnhold {

namespace {

constexpr int longestSide = 16384;
constexpr qint64 mostPixels = 64'000'000;

struct Kind
{
    QByteArrayView mark;
    const char* format;
};

constexpr std::array kinds = {
    Kind{"\xFF\xD8\xFF", "jpeg"},
    Kind{"\x89PNG\r\n\x1A\n", "png"},
    Kind{"GIF8", "gif"},
    Kind{"BM", "bmp"},
};

/// Empty for what is no picture: nothing beyond the first bytes is then read.
QByteArray formatOf(QByteArrayView start)
{
    for (const Kind& kind : kinds) {
        if (start.startsWith(kind.mark))
            return kind.format;
    }
    return {};
}

/// As the header tells it. The toolkit's reader walks through a whole animation for its size, and is silent
/// about a bitmap that it finds too large.
QSize toldSize(QByteArrayView header, const QByteArray& format, const QImageReader& reader)
{
    constexpr qsizetype gifSizeAt = 6;
    constexpr qsizetype bitmapSizeAt = 18;
    if (format == "gif" && header.size() >= gifSizeAt + 4)
        return {qFromLittleEndian<quint16>(header.data() + gifSizeAt),
                qFromLittleEndian<quint16>(header.data() + gifSizeAt + 2)};
    if (format == "bmp" && header.size() >= bitmapSizeAt + 8)
        return {qFromLittleEndian<qint32>(header.data() + bitmapSizeAt),
                qAbs(qFromLittleEndian<qint32>(header.data() + bitmapSizeAt + 4))};
    return reader.size();
}

bool isSensible(const QSize& size)
{
    return !size.isEmpty() && size.width() <= longestSide && size.height() <= longestSide &&
           qint64{size.width()} * size.height() <= mostPixels;
}

QImage decode(QIODevice& device, const QSize& most)
{
    constexpr qsizetype headerSize = 26;
    const QByteArray header = device.peek(headerSize);
    const QByteArray format = formatOf(header);
    if (format.isEmpty())
        return {};
    QImageReader reader(&device, format);
    const QSize size = toldSize(header, format, reader);
    if (!isSensible(size))
        return {};
    const QSize shown = !most.isEmpty() && (size.width() > most.width() || size.height() > most.height())
                            ? fitPreviewImage(size, most).size()
                            : size;
    if (format == "jpeg" && shown != size)
        reader.setScaledSize(shown);
    // The reader fills an image that it is handed, if that suits, and leaves there what it read before it
    // failed; without one the missing part would show what was in the memory.
    QImage image;
    const QImage::Format pixels = reader.imageFormat();
    if (pixels != QImage::Format_Invalid && format != "jpeg") {
        image = QImage(size, pixels);
        image.fill(Qt::transparent);
    }
    if (!reader.read(&image) && image.isNull())
        return {};
    image.setDevicePixelRatio(1);
    if (image.width() > shown.width() || image.height() > shown.height())
        return image.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    return image;
}

} // namespace

QImage coverPicture(QByteArrayView bytes, const QSize& most)
{
    QByteArray view = QByteArray::fromRawData(bytes.data(), bytes.size());
    QBuffer buffer(&view);
    return buffer.open(QIODevice::ReadOnly) ? decode(buffer, most) : QImage();
}

QImage coverPictureFile(const QString& path, const QSize& most)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? decode(file, most) : QImage();
}

} // namespace varnhold
