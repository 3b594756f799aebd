#include "appearance/SkinPictures.h"

#include "platform/Files.h"
#include "platform/RunTimeError.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>

#include <cstdlib>
#include <optional>

namespace varnhold {

namespace {

constexpr qint64 mostPixels = qint64(128) << 18; // 128 MB at four bytes each
constexpr int iconSide = 16;

/// What a bitmap's header tells. The toolkit's reader keeps silent about one that it finds too large, and
/// takes one that ends too early for whole.
struct BitmapHeader
{
    qint64 pixelsAt;
    qint64 width;
    qint64 height;
    int bits;
    bool packed; ///< how many bytes its pixels take cannot be told
};

template <typename Number> Number numberAt(const QByteArray& bytes, qsizetype at)
{
    return qFromLittleEndian<Number>(bytes.constData() + at);
}

std::optional<BitmapHeader> bitmapHeader(const QByteArray& bytes)
{
    constexpr qsizetype least = 34; // up to the kind of packing
    constexpr quint32 oldHeader = 12;
    if (!bytes.startsWith("BM") || bytes.size() < least)
        return std::nullopt;
    const auto pixelsAt = numberAt<quint32>(bytes, 10);
    if (numberAt<quint32>(bytes, 14) == oldHeader)
        return BitmapHeader{pixelsAt, numberAt<quint16>(bytes, 18), numberAt<quint16>(bytes, 20),
                            numberAt<quint16>(bytes, 24), false};
    constexpr quint32 bitFields = 3;
    const auto packing = numberAt<quint32>(bytes, 30);
    return BitmapHeader{pixelsAt, numberAt<qint32>(bytes, 18), std::abs(qint64{numberAt<qint32>(bytes, 22)}),
                        numberAt<quint16>(bytes, 28), packing != 0 && packing != bitFields};
}

/// Throws for a picture whose header asks for too much, or for more than there is.
void checkHeader(const QByteArray& bytes, const QImageReader& reader)
{
    const std::optional<BitmapHeader> bitmap = bitmapHeader(bytes);
    const QSize told = reader.size();
    const qint64 pixels =
        bitmap ? bitmap->width * bitmap->height : qint64{told.width()} * qint64{told.height()};
    if (pixels > mostPixels)
        throw RunTimeError(errors::outOfMemory);
    if (!bitmap || bitmap->packed)
        return;
    const qint64 row = (bitmap->width * bitmap->bits + 31) / 32 * 4;
    const qint64 lastRow = (bitmap->width * bitmap->bits + 7) / 8; // some writers leave its padding out
    if (bitmap->pixelsAt + row * (bitmap->height - 1) + lastRow > bytes.size())
        throw RunTimeError(errors::invalidPicture);
}

QPixmap decode(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead())
        throw RunTimeError(errors::invalidPicture);
    checkHeader(bytes, reader);
    QImage best;
    // An icon file holds several sizes.
    const int count = reader.imageCount();
    do {
        const QImage image = reader.read();
        if (image.isNull()) {
            if (best.isNull())
                throw RunTimeError(errors::invalidPicture);
            break;
        }
        if (best.isNull() || std::abs(image.width() - iconSide) < std::abs(best.width() - iconSide))
            best = image;
    } while (count > 1 && reader.currentImageNumber() + 1 < count && reader.jumpToNextImage());
    best.setDevicePixelRatio(1);
    return QPixmap::fromImage(std::move(best));
}

} // namespace

QPixmap SkinPictures::load(const QString& name)
{
    const QString key = name.toCaseFolded();
    const auto known = m_decoded.constFind(key);
    if (known != m_decoded.constEnd())
        return *known;
    return *m_decoded.insert(key, decode(m_folder.read(name)));
}

QPixmap SkinPictures::loadPath(const QString& path)
{
    if (!FileExists(path)) {
        const qsizetype cut = std::max(path.lastIndexOf(u'/'), path.lastIndexOf(u'\\'));
        return load(path.mid(cut + 1));
    }
    return decode(SkinFolder::readFile(path));
}

} // namespace varnhold
