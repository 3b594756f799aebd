#include "appearance/SkinPictures.h"

#include "platform/Files.h"
#include "platform/RunTimeError.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>

#include <cstdlib>

namespace varnhold {

namespace {

constexpr qint64 mostPixels = qint64(128) << 18; // 128 MB at four bytes each
constexpr int iconSide = 16;

/// Size as the file tells it; the toolkit's reader keeps silent about a bitmap that it finds too large.
QSize toldSize(const QByteArray& bytes, const QImageReader& reader)
{
    constexpr qsizetype widthAt = 18;
    constexpr qsizetype heightAt = 22;
    if (!bytes.startsWith("BM") || bytes.size() < heightAt + 4)
        return reader.size();
    return {qFromLittleEndian<qint32>(bytes.constData() + widthAt),
            qAbs(qFromLittleEndian<qint32>(bytes.constData() + heightAt))};
}

QPixmap decode(QByteArray bytes)
{
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    QImageReader reader(&buffer);
    reader.setDecideFormatFromContent(true);
    if (!reader.canRead())
        throw RunTimeError(errors::invalidPicture);
    const QSize told = toldSize(bytes, reader);
    if (told.isValid() && qint64(told.width()) * told.height() > mostPixels)
        throw RunTimeError(errors::outOfMemory);
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
