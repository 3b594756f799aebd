#include "appearance/SkinPictures.h"

#include "platform/Files.h"
#include "platform/RunTimeError.h"
#include "platform/pictures/PictureHeader.h"

#include <QBuffer>
#include <QImageReader>

#include <cstdlib>

namespace varnhold {

namespace {

constexpr qint64 mostPixels = qint64(128) << 18; // 128 MB at four bytes each
constexpr int iconSide = 16;

/// Throws for a picture whose header asks for too much, or for more than there is.
void checkHeader(const QByteArray& bytes, const QImageReader& reader)
{
    // The toolkit's reader keeps silent about a bitmap that it finds too large, and takes one that ends too
    // early for whole.
    const PictureHeader header = pictureHeader(bytes);
    const QSize told = header.kind == PictureKind::Bitmap ? header.size : reader.size();
    if (qint64{told.width()} * qint64{told.height()} > mostPixels)
        throw RunTimeError(errors::outOfMemory);
    if (header.kind == PictureKind::Bitmap && !hasAllRows(bytes))
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
