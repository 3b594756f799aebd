#include "platform/pictures/PictureHeader.h"

#include "support/PrintText.h"

#include <gtest/gtest.h>

namespace varnhold::test {

namespace {

QByteArray hex(const char* text)
{
    return QByteArray::fromHex(text);
}

const QByteArray frame = hex("ffc0 0011 08 0003 0005 03 012200 021101 031101"); // 5 x 3, colours at half
const QByteArray scan = hex("ffda 000c 03 0100 0211 0311 003f00 aaff00aaffd0aa");
const QByteArray grayScan = hex("ffda 0008 01 0100 003f00 aa");
const QByteArray start = hex("ffd8 ffe0 0006 ffdaffd9"); // a segment may hold what looks like marks
const QByteArray end = hex("ffd9");

QByteArray progressive(const QByteArray& scans)
{
    QByteArray bytes = start + frame + scans + end;
    bytes[start.size() + 1] = '\xC2';
    return bytes;
}

const QByteArray jpeg = start + frame + scan + end;
const QByteArray gif = hex("4749463839610200030091000000ff0000ff000000ffffffff"
                           "21f90400000000002c000000000200020000020344340500"
                           "3b");
const QByteArray png = hex("89504e470d0a1a0a 0000000d49484452 00000004 00000006 0802000000 00000000"
                           "0000000249444154 7890 00000000 0000000049454e44ae426082");
/// 2 x 2 of 24 bits; the last row's padding is left out.
const QByteArray bitmap = hex("424d 44000000 00000000 36000000 28000000 02000000 02000000 0100 1800"
                              "00000000 00000000 00000000 00000000 00000000 00000000"
                              "0102030405060000 010203040506");

} // namespace

TEST(PictureHeader, TellsKindAndSizeAndWhetherItIsWholeAtEveryCut)
{
    const struct
    {
        const char* name;
        const QByteArray& bytes;
        PictureKind kind;
        QSize size;
    } rows[] = {
        {"jpeg", jpeg, PictureKind::Jpeg, {5, 3}},
        {"gif", gif, PictureKind::Gif, {2, 3}},
        {"png", png, PictureKind::Png, {4, 6}},
        {"bitmap", bitmap, PictureKind::Bitmap, {2, 2}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const PictureHeader header = pictureHeader(row.bytes);
        EXPECT_EQ(header.kind, row.kind);
        EXPECT_EQ(header.size, row.size);
        EXPECT_TRUE(isWholePicture(row.bytes));
        EXPECT_TRUE(isWholePicture(row.bytes + "behind"));
        for (qsizetype cut = 0; cut < row.bytes.size(); ++cut) {
            const QByteArray part(row.bytes.constData(), cut); // its own memory, for what looks too far
            EXPECT_FALSE(isWholePicture(part)) << cut;
        }
    }
    EXPECT_EQ(pictureKind("RIFF....WEBPVP8 "), PictureKind::None);
    EXPECT_FALSE(isWholePicture("<html>\xFF\xD8\xFF</html>"));
}

TEST(PictureHeader, CountsTheScansOfAJpegThatIsNotUnpackedInOnePass)
{
    const auto scansOf = [](const QByteArray& bytes) { return pictureHeader(bytes).scans; };
    EXPECT_TRUE(pictureHeader(jpeg).inOnePass);
    EXPECT_EQ(pictureHeader(jpeg).heldBytes, 0);
    EXPECT_FALSE(pictureHeader(start + frame + grayScan + grayScan + grayScan + end).inOnePass);

    EXPECT_EQ(scansOf(progressive(grayScan.repeated(64))), 64);
    EXPECT_TRUE(isWithinLimits(pictureHeader(progressive(grayScan.repeated(64))), 1));
    EXPECT_EQ(scansOf(progressive(grayScan.repeated(5000))), 65) << "counting ends where it is enough";
    EXPECT_FALSE(isWithinLimits(pictureHeader(progressive(grayScan.repeated(65))), 1));
    // A mark that is none hides no scans in what would be its length.
    EXPECT_EQ(scansOf(progressive(grayScan + hex("ff05ffff") + grayScan.repeated(9))), 10);
    // One block of the full size, two of a quarter each: 16 x 16 pixels hold 4 + 1 + 1 blocks.
    EXPECT_EQ(pictureHeader(progressive(grayScan)).heldBytes, 6 * 128);
}

TEST(PictureHeader, HoldsBackWhatWouldTakeTooMuch)
{
    const auto sized = [](QByteArray bytes, qsizetype at, const char* size) {
        const QByteArray told = hex(size);
        return bytes.replace(at, told.size(), told);
    };
    const qsizetype jpegSize = start.size() + 5;
    const struct
    {
        QByteArray bytes;
        bool isAllowed;
    } rows[] = {
        {sized(jpeg, jpegSize, "1f40 1f40"), true}, // 8000 x 8000 in one pass
        {sized(jpeg, jpegSize, "ffff ffff"), false},
        {sized(jpeg, jpegSize, "0001 4001"), false}, // a side of 16385
        {sized(jpeg, jpegSize, "0000 0001"), false},
        {sized(progressive(grayScan), jpegSize, "1388 1388"), false}, // 25 million
        {sized(progressive(grayScan), jpegSize, "1200 1200"), true},  // 21 million
        {sized(progressive(grayScan.repeated(19)), jpegSize, "1200 1200"), false},
        {sized(png, 16, "00001388 00001388"), false},
        {sized(png, 16, "00001200 00001200"), true},
        {sized(png, 16, "00001200 00001200 10"), false}, // of 16 bits a channel
        {sized(png, 16, "80000000 00000001"), false},
        {sized(gif, 6, "ffff ffff"), false},
        {sized(gif, 6, "0000 0000"), false},
        {sized(bitmap, 18, "401f0000 401f0000"), false},
        {sized(bitmap, 18, "02000000 00000080"), false}, // a height that has no positive form
        {sized(bitmap, 18, "ffffff7f ffffff7f"), false},
    };
    for (const auto& row : rows)
        EXPECT_EQ(isWithinLimits(pictureHeader(row.bytes), row.bytes.size()), row.isAllowed)
            << row.bytes.first(30).toHex(' ').toStdString();
    EXPECT_FALSE(isWithinLimits(pictureHeader(jpeg), (32 << 20) + 1));
    EXPECT_FALSE(hasAllRows(sized(bitmap, 18, "ffffff7f ffffff7f 0100 ffff")));
}

} // namespace varnhold::test
