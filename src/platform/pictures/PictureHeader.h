#pragma once

#include <QByteArrayView>
#include <QSize>

namespace varnhold {

enum class PictureKind { None, Bitmap, Jpeg, Gif, Png };

/// What the bytes of a picture tell of it, without unpacking any. Pictures come from servers and from
/// strangers' folders: what is told decides whether a decoder sees them at all.
struct PictureHeader
{
    PictureKind kind = PictureKind::None;
    QSize size;                ///< as told; empty where the header is not whole, or tells none
    bool inOnePass = false;    ///< a JPEG that is unpacked row by row, also scaled
    int scans = 0;             ///< of a JPEG that is not; counted to one more than is allowed
    qint64 heldBytes = 0;      ///< what unpacking it holds in memory besides the picture that comes out
    bool isInterlaced = false; ///< a PNG whose rows do not come in order
};

namespace pictureLimits {
inline constexpr int side = 16'384;
inline constexpr qint64 pixelsInOnePass = 64'000'000;
inline constexpr qint64 pixels = 24'000'000; ///< of what is unpacked whole, and of what comes out of anything
inline constexpr qint64 jpegBytes = qint64{32} << 20;
inline constexpr int scans = 64;
inline constexpr qint64 pixelScans = 400'000'000; ///< each scan passes over all pixels: a third of a second
inline constexpr qint64 memory = 150'000'000;     ///< bytes while one picture is read
} // namespace pictureLimits

/// The kind alone, by the first bytes: 8 of them suffice.
PictureKind pictureKind(QByteArrayView start);

/// Of a JPEG all bytes matter, of the others the first 64.
PictureHeader pictureHeader(QByteArrayView bytes);

/// True when it may be unpacked. `byteCount`: of the whole file.
bool isWithinLimits(const PictureHeader& header, qint64 byteCount);

/// True for a picture of one of the four kinds that may be unpacked and whose end is there. What stands
/// behind the end does no harm.
bool isWholePicture(QByteArrayView bytes);

/// True for a bitmap whose rows are all there, as far as that can be told: packed ones are believed.
bool hasAllRows(QByteArrayView bitmap);

} // namespace varnhold
