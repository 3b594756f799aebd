// Reading damaged pictures: what their bytes tell, and, where there are windows, the decoders behind it.

#include "fuzz/FuzzTarget.h"
#include "platform/pictures/PictureHeader.h"

#ifdef VARNHOLD_DECODERS
#include "platform/pictures/PictureReader.h"

#include <QLoggingCategory>
#endif

namespace varnhold::test {

namespace {

#ifdef VARNHOLD_DECODERS
void checkReader(const QByteArray& input, const PictureHeader& header, bool isAllowed)
{
    static const bool isQuiet = [] {
        QLoggingCategory::setFilterRules(QStringLiteral("qt.gui.*=false"));
        return true;
    }();
    // Sizes that are allowed but large only cost time here.
    constexpr qint64 mostPixels = 200'000;
    if (!isQuiet || qint64{header.size.width()} * header.size.height() > mostPixels)
        return;
    const QImage image = readPicture(input);
    if (image.isNull())
        return;
    require(isAllowed, "read against its header", input);
    require(image.width() <= header.size.width() && image.height() <= header.size.height(), "larger", input);
    require(image.depth() == 32, "other pixels", input);
    const QImage small = readPicture(input, {5, 5});
    require(small.width() <= 5 && small.height() <= 5, "does not fit", input);
}
#endif

} // namespace

void check(const QByteArray& input)
{
    const PictureHeader header = pictureHeader(input);
    const bool isAllowed = isWithinLimits(header, input.size());
    const bool isWhole = isWholePicture(input);
    require(header.kind == pictureKind(input), "two kinds", input);
    require(header.scans <= pictureLimits::scans + 1 && header.heldBytes >= 0, "odd counts", input);
    require(!isWhole || isAllowed, "whole and not allowed", input);
    require(!isWhole || isWholePicture(input + "behind"), "bytes behind harm", input);
#ifdef VARNHOLD_DECODERS
    checkReader(input, header, isAllowed);
#endif
}

const std::vector<QByteArray>& pieces()
{
    static const std::vector<QByteArray> all = piecesOf(
        "IHDR|IDAT|IEND|PLTE|tRNS|iCCP|BM",
        {QByteArray::fromHex("ffd8"), QByteArray::fromHex("ffd9"),
         QByteArray::fromHex("ffda000c03010002110311003f00"), QByteArray::fromHex("ffda0008010100003f00"),
         QByteArray::fromHex("ffc2"), QByteArray::fromHex("ffdd00040001"), QByteArray::fromHex("ffd0"),
         QByteArray::fromHex("ff05ffff"), QByteArray::fromHex("ffff"), QByteArray::fromHex("0000"),
         QByteArray::fromHex("7fffffff"), QByteArray::fromHex("ffffff7f"), QByteArray::fromHex("00000080"),
         QByteArray::fromHex("2c140014000400040000"), QByteArray::fromHex("21f904"),
         QByteArray::fromHex("3b")});
    return all;
}

} // namespace varnhold::test
