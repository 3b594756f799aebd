#include "covers/LoadPicture.h"

#include "platform/RunTimeError.h"
#include "platform/pictures/DrawScaled.h"
#include "platform/pictures/PictureReader.h"

#include <QPainter>
#include <QPixmap>
#include <QWidget>

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int own = -1;
constexpr int longestSide = 16'384;

/// In place: a large picture is not held twice.
void layOn(QImage& image, QRgb background)
{
    if (image.hasAlphaChannel()) {
        QPainter painter(&image);
        painter.setCompositionMode(QPainter::CompositionMode_DestinationOver);
        painter.fillRect(image.rect(), QColor::fromRgb(background));
        painter.end();
        image.reinterpretAsFormat(QImage::Format_RGB32);
    }
}

} // namespace

QImage loadImageScaled(const QString& path, int width, int height, QRgb background, bool aspect)
{
    constexpr int errorNumber = 999;
    QImage picture = readPictureFile(path);
    const bool isOwn = width == own || height == own;
    const bool isSize = width >= 1 && height >= 1 && width <= longestSide && height <= longestSide;
    if (picture.isNull() || !(isOwn || isSize))
        throw RunTimeError(errorNumber, u"Error loading picture "_s + path, u"GDI+ Module"_s);
    if (isOwn || picture.size() == QSize(width, height)) {
        layOn(picture, background);
        return picture;
    }
    QImage drawn(width, height, QImage::Format_RGB32);
    drawn.fill(background);
    constexpr qsizetype pixelBytes = 4;
    picture.convertTo(QImage::Format_ARGB32_Premultiplied); // RGB32 leaves open what stands for alpha
    drawScaled({reinterpret_cast<const quint32*>(picture.constBits()), picture.width(), picture.height(),
                picture.bytesPerLine() / pixelBytes},
               {reinterpret_cast<quint32*>(drawn.bits()), width, height, drawn.bytesPerLine() / pixelBytes},
               aspect);
    return drawn;
}

bool loadPictureFile(const QString& path, QWidget& target)
{
    constexpr QRgb white = 0xFFFFFFFF;
    try {
        target.setProperty("Picture", QPixmap::fromImage(loadImageScaled(path, own, own, white, false)));
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

} // namespace varnhold
