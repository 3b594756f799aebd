#include "controls/ButtonEx/TransparentCopy.h"

#include "controls/SystemColorsUi.h"

#include <QPaintDevice>
#include <QPainter>
#include <QWidget>

#include <cmath>

namespace varnhold {

QImage cutColor(const QImage& picture, ColorValue color, const QPoint& probe)
{
    if (picture.isNull())
        return {};
    QImage cut = picture.convertToFormat(QImage::Format_ARGB32);
    cut.setDevicePixelRatio(1);
    QRgb key = 0;
    if (color == colorOfPicture) {
        if (!cut.valid(probe) || qAlpha(cut.pixel(probe)) == 0)
            return cut.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        key = cut.pixel(probe) & RGB_MASK;
    } else {
        key = toQColor(color).rgb() & RGB_MASK;
    }
    for (int y = 0; y < cut.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(cut.scanLine(y));
        for (int x = 0; x < cut.width(); ++x) {
            if ((line[x] & RGB_MASK) == key)
                line[x] = 0;
        }
    }
    return cut.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

namespace {

void copyCut(QImage& destination, const QPoint& at, const QImage& cut, const QSize& size, const QRect& clip)
{
    const QRect wanted = QRect(QPoint(0, 0), size).intersected(cut.rect());
    if (destination.isNull() || wanted.isEmpty())
        return;
    QPainter painter(&destination);
    painter.setClipRect(clip);
    painter.drawImage(at, cut, wanted);
}

} // namespace

void maskCopy(QImage& destination, const QPoint& at, const QImage& source, const QSize& size,
              ColorValue color)
{
    copyCut(destination, at, cutColor(source, color), size, destination.rect());
}

void maskCopy(QImage& destination, const QPoint& at, const QImage& source, const QSize& size,
              ColorValue color, const QRect& clip)
{
    copyCut(destination, at, cutColor(source, color), size, clip);
}

bool pictureCopy(QImage& destination, const QPoint& at, const QImage& source, const QSize& size,
                 ColorValue color, QWidget* shown)
{
    if (destination.isNull() || source.isNull())
        return false;
    const QSize wanted(size.width() == -1 ? source.width() : size.width(),
                       size.height() == -1 ? source.height() : size.height());
    copyCut(destination, at, cutColor(source, color, QPoint(0, 0)), wanted, destination.rect());
    if (shown)
        shown->update();
    return true;
}

void drawSharp(QPainter& painter, const QPoint& at, const QImage& picture)
{
    if (picture.isNull())
        return;
    const double ratio = painter.device()->devicePixelRatioF();
    const double whole = std::round(ratio);
    QImage scaled = picture;
    if (ratio > 1) {
        const int factor = static_cast<int>(std::ceil(ratio));
        const bool isWhole = qFuzzyCompare(ratio, whole);
        // Twice the next whole factor, then down: each source pixel keeps a hard core at 1.5.
        const int up = isWhole ? factor : factor * 2;
        scaled = picture.scaled(picture.size() * up, Qt::IgnoreAspectRatio, Qt::FastTransformation);
        if (!isWhole) {
            const QSize device(static_cast<int>(std::lround(picture.width() * ratio)),
                               static_cast<int>(std::lround(picture.height() * ratio)));
            scaled = scaled.scaled(device, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        }
        scaled.setDevicePixelRatio(ratio);
    }
    painter.drawImage(at, scaled);
}

} // namespace varnhold
