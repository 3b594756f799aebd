#include "platform/pictures/PictureReader.h"

#include "support/TempRoot.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QElapsedTimer>
#include <QImageWriter>
#include <QLoggingCategory>
#include <QtEndian>

#include <sys/stat.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

/// Left half red, right half noise, so that every format needs bytes for each row.
QImage sample(const QSize& size = {120, 160})
{
    QImage image(size, QImage::Format_RGB32);
    quint32 state = 1;
    for (int y = 0; y < size.height(); ++y) {
        for (int x = 0; x < size.width(); ++x) {
            state = state * 1664525U + 1013904223U;
            image.setPixel(x, y, x < size.width() / 2 ? 0xFFFF0000U : 0xFF000000U | (state >> 8U));
        }
    }
    return image;
}

QByteArray encoded(const QImage& image, const char* format)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format));
    return bytes;
}

QByteArray gif()
{
    // Two pixels by two: red, green, blue, white.
    return QByteArray::fromHex("4749463839610200020091000000ff0000ff000000ffffffff"
                               "2c000000000200020000020344340500"
                               "3b");
}

QByteArray withBigEndianSize(QByteArray png, quint32 width, quint32 height)
{
    qToBigEndian(width, png.data() + 16);
    qToBigEndian(height, png.data() + 20);
    return png;
}

QByteArray progressiveJpeg(const QSize& size)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "jpeg");
    writer.setProgressiveScanWrite(true);
    EXPECT_TRUE(writer.write(sample(size)));
    return bytes;
}

/// With the last scan so many times more.
QByteArray withScans(const QByteArray& jpeg, int more)
{
    const qsizetype lastScan = jpeg.lastIndexOf("\xFF\xDA");
    const QByteArray scan = jpeg.sliced(lastScan).chopped(2);
    return jpeg.chopped(2) + scan.repeated(more) + jpeg.last(2);
}

int scansOf(const QByteArray& jpeg)
{
    return static_cast<int>(jpeg.count("\xFF\xDA"));
}

bool isReddish(QRgb pixel)
{
    return qRed(pixel) > 200 && qGreen(pixel) < 60 && qBlue(pixel) < 60;
}

} // namespace

TEST(PictureReader, ReadsEachKindWithBytesBehindIt)
{
    for (const char* format : {"png", "bmp", "jpeg"}) {
        SCOPED_TRACE(format);
        const QByteArray bytes = encoded(sample(), format);
        for (const QByteArray& behind : {QByteArray(), QByteArray(1, '\0'), QByteArray(5000, 'x')}) {
            const QImage image = readPicture(bytes + behind);
            ASSERT_EQ(image.size(), QSize(120, 160));
            EXPECT_TRUE(isReddish(image.pixel(20, 150)));
        }
    }
    const QImage image = readPicture(gif() + '\0');
    ASSERT_EQ(image.size(), QSize(2, 2));
}

TEST(PictureReader, ShowsHalfAPictureAsFarAsItGoes)
{
    QLoggingCategory::setFilterRules(u"qt.gui.imageio.jpeg.warning=false"_s);
    for (const char* format : {"png", "bmp", "jpeg"}) {
        SCOPED_TRACE(format);
        const QByteArray bytes = encoded(sample(), format);
        const QImage image = readPicture(bytes.first(bytes.size() / 2));
        ASSERT_EQ(image.size(), QSize(120, 160));
        // A bitmap starts with its last row.
        const int there = qstrcmp(format, "bmp") == 0 ? 155 : 5;
        EXPECT_TRUE(isReddish(image.pixel(20, there)));
        EXPECT_EQ(image.pixel(20, 160 - there), image.pixel(100, 160 - there)) << "nothing of the memory";
    }
    for (const char* format : {"png", "bmp", "jpeg"}) {
        const QByteArray bytes = encoded(sample({40, 30}), format);
        for (qsizetype size = 0; size < bytes.size(); size += 7)
            readPicture(bytes.first(size)); // no crash at any cut
    }
}

TEST(PictureReader, RefusesWhatIsNoPictureOrTooLarge)
{
    EXPECT_TRUE(readPicture({}).isNull());
    EXPECT_TRUE(readPicture("<svg xmlns='http://www.w3.org/2000/svg' width='9' height='9'/>").isNull());
    const QByteArray png = encoded(sample(), "png");
    EXPECT_TRUE(readPicture(withBigEndianSize(png, 60000, 60000)).isNull());
    EXPECT_TRUE(readPicture(withBigEndianSize(png, 16385, 1)).isNull());
    EXPECT_TRUE(readPicture(withBigEndianSize(png, 16000, 16000)).isNull());
    QByteArray bitmap = encoded(sample(), "bmp");
    qToLittleEndian(60000, bitmap.data() + 18);
    EXPECT_TRUE(readPicture(bitmap).isNull());
    QByteArray wideGif = gif();
    qToLittleEndian(quint16(60000), wideGif.data() + 6);
    EXPECT_TRUE(readPicture(wideGif).isNull());

    const QByteArray progressive = progressiveJpeg({64, 64});
    EXPECT_FALSE(readPicture(withScans(progressive, 64 - scansOf(progressive))).isNull());
    EXPECT_TRUE(readPicture(withScans(progressive, 65 - scansOf(progressive))).isNull());

    const QByteArray nothing(200'000'000, '\0');
    QElapsedTimer timer;
    timer.start();
    EXPECT_TRUE(readPicture(nothing).isNull());
    EXPECT_LT(timer.elapsed(), 50) << "the first bytes decide";
}

TEST(PictureReader, ScalesDownToWhatIsWanted)
{
    for (const char* format : {"png", "bmp", "jpeg"}) {
        SCOPED_TRACE(format);
        const QByteArray bytes = encoded(sample({1200, 1600}), format);
        const QImage image = readPicture(bytes, {150, 150});
        EXPECT_EQ(image.size(), QSize(113, 150));
        EXPECT_TRUE(isReddish(image.pixel(20, 100)));
        EXPECT_EQ(readPicture(bytes, {3000, 3000}).size(), QSize(1200, 1600)) << "never up";
    }
}

TEST(PictureReader, HandsOnOneKindOfPixels)
{
    QImage clear = sample().convertToFormat(QImage::Format_ARGB32);
    clear.setPixelColor(20, 150, QColor(255, 0, 0, 128));
    const struct
    {
        QImage::Format format;
        QImage::Format expected;
    } rows[] = {
        {QImage::Format_ARGB32, QImage::Format_ARGB32_Premultiplied},
        {QImage::Format_RGBA64, QImage::Format_ARGB32_Premultiplied},
        {QImage::Format_Indexed8, QImage::Format_ARGB32_Premultiplied},
        {QImage::Format_RGB32, QImage::Format_RGB32},
        {QImage::Format_Grayscale16, QImage::Format_RGB32},
        {QImage::Format_Mono, QImage::Format_RGB32},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.format);
        EXPECT_EQ(readPicture(encoded(clear.convertToFormat(row.format), "png")).format(), row.expected);
    }
}

TEST(PictureReader, ReadsFilesByTheirContents)
{
    TempRoot root;
    const QString path = root.write(u"cover.jpg"_s, encoded(sample(), "png"));
    EXPECT_EQ(readPictureFile(path).size(), QSize(120, 160));
    EXPECT_TRUE(readPictureFile(root.path(u"missing.jpg"_s)).isNull());
    EXPECT_TRUE(readPictureFile(root.write(u"empty.jpg"_s, {})).isNull());
    EXPECT_TRUE(readPictureFile(root.path(u""_s)).isNull());
    const QString pipe = root.path(u"pipe.jpg"_s);
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    EXPECT_TRUE(readPictureFile(pipe).isNull()) << "without waiting for a writer";
    // Larger than what is read at once: the decoder reads from the file.
    const QByteArray large = encoded(sample({1200, 1600}), "bmp");
    ASSERT_GT(large.size(), 1 << 20);
    EXPECT_EQ(readPictureFile(root.write(u"large.jpg"_s, large), {150, 150}).size(), QSize(113, 150));
    EXPECT_TRUE(
        readPictureFile(root.write(u"long.jpg"_s, progressiveJpeg({9, 9}) + QByteArray(32 << 20, 'x')))
            .isNull());
}

} // namespace varnhold::test
