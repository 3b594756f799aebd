#include "platform/pictures/PictureHeader.h"

#include "platform/pictures/JpegHeader.h"

#include <QtEndian>

#include <array>
#include <cstdlib>
#include <optional>

namespace varnhold {

namespace {

struct Mark
{
    QByteArrayView bytes;
    PictureKind kind;
};

constexpr std::array marks = {
    Mark{"\xFF\xD8\xFF", PictureKind::Jpeg},
    Mark{"\x89PNG\r\n\x1A\n", PictureKind::Png},
    Mark{"GIF8", PictureKind::Gif},
    Mark{"BM", PictureKind::Bitmap},
};

template <typename Number> Number littleAt(QByteArrayView bytes, qsizetype at)
{
    return qFromLittleEndian<Number>(bytes.data() + at);
}

struct BitmapHeader
{
    qint64 pixelsAt;
    qint64 width;
    qint64 height;
    int bits;
    bool isPacked;
    qint64 packedBytes; ///< as told; 0: not told
};

std::optional<BitmapHeader> bitmapHeader(QByteArrayView bytes)
{
    constexpr qsizetype least = 38; // up to the size of what is packed
    constexpr quint32 oldHeader = 12;
    constexpr qsizetype leastOld = 26;
    if (bytes.size() < leastOld)
        return std::nullopt;
    const auto pixelsAt = littleAt<quint32>(bytes, 10);
    if (littleAt<quint32>(bytes, 14) == oldHeader)
        return BitmapHeader{pixelsAt,
                            littleAt<quint16>(bytes, 18),
                            littleAt<quint16>(bytes, 20),
                            littleAt<quint16>(bytes, 24),
                            false,
                            0};
    if (bytes.size() < least)
        return std::nullopt;
    constexpr quint32 bitFields = 3;
    const auto packing = littleAt<quint32>(bytes, 30);
    return BitmapHeader{pixelsAt,
                        littleAt<qint32>(bytes, 18),
                        std::abs(qint64{littleAt<qint32>(bytes, 22)}),
                        littleAt<quint16>(bytes, 28),
                        packing != 0 && packing != bitFields,
                        littleAt<quint32>(bytes, 34)};
}

QSize sizeOf(qint64 width, qint64 height)
{
    constexpr qint64 largest = 1 << 28;
    if (width <= 0 || height <= 0 || width > largest || height > largest)
        return {};
    return {static_cast<int>(width), static_cast<int>(height)};
}

void readJpeg(QByteArrayView bytes, PictureHeader& header)
{
    const JpegHeader told = jpegHeader(bytes, pictureLimits::scans, false);
    header.size = told.size;
    header.inOnePass = told.inOnePass;
    header.scans = told.scans;
    header.heldBytes = told.heldBytes;
}

void readPng(QByteArrayView bytes, PictureHeader& header)
{
    constexpr qsizetype least = 29;
    if (bytes.size() < least || bytes.sliced(12, 4) != QByteArrayView("IHDR"))
        return;
    header.size =
        sizeOf(qFromBigEndian<qint32>(bytes.data() + 16), qFromBigEndian<qint32>(bytes.data() + 20));
    header.isInterlaced = bytes[28] != 0;
    // Sixteen bits a channel are unpacked so, and then turned into eight.
    constexpr char deep = 16;
    constexpr qint64 deepPixelBytes = 8;
    if (bytes[24] == deep)
        header.heldBytes = deepPixelBytes * header.size.width() * header.size.height();
}

bool pngHasEnd(QByteArrayView bytes)
{
    constexpr qsizetype around = 12; // length, name and check sum of a chunk
    qsizetype at = 8;
    while (bytes.size() - at >= around) {
        const qint64 length = qFromBigEndian<quint32>(bytes.data() + at);
        if (length > bytes.size() - at - around)
            return false;
        if (bytes.sliced(at + 4, 4) == QByteArrayView("IEND"))
            return true;
        at += around + length;
    }
    return false;
}

/// Steps through the blocks; true at the closing mark behind at least one picture.
bool gifHasEnd(QByteArrayView bytes)
{
    const auto byteAt = [&](qsizetype at) { return static_cast<unsigned char>(bytes[at]); };
    const auto tableBytes = [](unsigned flags) {
        return (flags & 0x80U) != 0 ? qsizetype{3} << ((flags & 7U) + 1U) : qsizetype{0};
    };
    constexpr qsizetype screenPart = 13;
    constexpr qsizetype picturePart = 10;
    constexpr unsigned char extension = 0x21;
    constexpr unsigned char picture = 0x2C;
    constexpr unsigned char closing = 0x3B;
    if (bytes.size() < screenPart)
        return false;
    qsizetype at = screenPart + tableBytes(byteAt(10));
    bool hasPicture = false;
    while (at < bytes.size() && (byteAt(at) == extension || byteAt(at) == picture)) {
        if (byteAt(at) == extension) {
            at += 2;
        } else {
            if (bytes.size() - at < picturePart)
                return false;
            hasPicture = true;
            at += picturePart + tableBytes(byteAt(at + 9)) + 1;
        }
        while (at < bytes.size() && byteAt(at) != 0)
            at += 1 + byteAt(at);
        ++at;
    }
    return hasPicture && at < bytes.size() && byteAt(at) == closing;
}

} // namespace

PictureKind pictureKind(QByteArrayView start)
{
    for (const Mark& mark : marks)
        if (start.startsWith(mark.bytes))
            return mark.kind;
    return PictureKind::None;
}

PictureHeader pictureHeader(QByteArrayView bytes)
{
    PictureHeader header;
    header.kind = pictureKind(bytes);
    switch (header.kind) {
    case PictureKind::None:
        break;
    case PictureKind::Jpeg:
        readJpeg(bytes, header);
        break;
    case PictureKind::Png:
        readPng(bytes, header);
        break;
    case PictureKind::Gif:
        if (constexpr qsizetype least = 10; bytes.size() >= least)
            header.size = {littleAt<quint16>(bytes, 6), littleAt<quint16>(bytes, 8)};
        break;
    case PictureKind::Bitmap:
        if (const auto bitmap = bitmapHeader(bytes))
            header.size = sizeOf(bitmap->width, bitmap->height);
        break;
    }
    return header;
}

bool isWithinLimits(const PictureHeader& header, qint64 byteCount)
{
    using namespace pictureLimits;
    const bool isJpeg = header.kind == PictureKind::Jpeg;
    const qint64 count = qint64{header.size.width()} * header.size.height();
    return !header.size.isEmpty() && header.size.width() <= side && header.size.height() <= side &&
           count <= (header.inOnePass ? pixelsInOnePass : pixels) && header.heldBytes < memory &&
           (!isJpeg || (byteCount <= jpegBytes && header.scans > 0 && header.scans <= scans &&
                        (header.inOnePass || count * header.scans <= pixelScans)));
}

bool isWholePicture(QByteArrayView bytes)
{
    const PictureHeader header = pictureHeader(bytes);
    if (!isWithinLimits(header, bytes.size()))
        return false;
    switch (header.kind) {
    case PictureKind::Jpeg:
        return jpegHeader(bytes, pictureLimits::scans, true).hasEnd;
    case PictureKind::Png:
        return pngHasEnd(bytes);
    case PictureKind::Gif:
        return gifHasEnd(bytes);
    case PictureKind::Bitmap:
        return hasAllRows(bytes);
    case PictureKind::None:
        break;
    }
    return false;
}

bool hasAllRows(QByteArrayView bytes)
{
    const std::optional<BitmapHeader> bitmap = bitmapHeader(bytes);
    constexpr int mostBits = 32;
    if (!bitmap || sizeOf(bitmap->width, bitmap->height).isEmpty() || bitmap->bits > mostBits)
        return false;
    if (bitmap->isPacked)
        return bitmap->pixelsAt + bitmap->packedBytes <= bytes.size();
    const qint64 row = (bitmap->width * bitmap->bits + 31) / 32 * 4;
    const qint64 lastRow = (bitmap->width * bitmap->bits + 7) / 8; // some writers leave its padding out
    return bitmap->pixelsAt + row * (bitmap->height - 1) + lastRow <= bytes.size();
}

} // namespace varnhold
