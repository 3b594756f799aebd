// Every skin delivers the whole catalogue, at the sizes that the windows are laid out for.

#include "SkinFiles.h"

#include "Delivery.h"
#include "app/main/MainLayout.h"
#include "appearance/MenuGlyphs.h"
#include "controls/ButtonEx/ButtonExMetrics.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImageReader>
#include <QSet>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

struct Sized
{
    QString names;
    QSize size;
};

const Sized pictures[] = {
    {u"background-main.bmp"_s, {447, 289}},
    {u"background-mLarge.bmp"_s, {595, 385}},
    {u"background-mPic.bmp"_s, {337, 224}},
    {u"background-mLPic.bmp"_s, {485, 320}},
    {u"mainBar.bmp"_s, {337, 5}},
    {u"mainLBar.bmp"_s, {485, 5}},
    {u"barLeft.bmp"_s, {90, 5}},
    {u"background-settings.bmp"_s, {400, 248}},
    {u"background-search.bmp"_s, {447, 321}},
    {u"searchBar.bmp"_s, {5, 240}},
    {u"caption-bar.bmp"_s, {431, 22}},
    {u"background-DB.bmp"_s, {595, 385}},
    {u"background-nPic.bmp"_s, {292, 184}},
    {u"bImage.bmp"_s, {90, 104}},
    {u"background-dl.bmp"_s, {352, 164}},
    {u"background-slide.bmp"_s, {447, 221}},
    {u"background-splash.bmp"_s, {320, 160}},
    {u"list.bmp"_s, {64, 64}},
    {u"back.bmp"_s, {64, 4 * 18}}, // rows of the update list
    {u"slider.ico flag-us.ico flag-uk.ico flag-jp.ico flag-asia.ico flag-kor.ico psn.ico unknown.ico"_s,
     {16, 16}},
    {u"btn-updown-11.bmp btn-updown-22.bmp btn-updown-33.bmp"_s, {14, 14}},
    {u"file-btn-111.bmp file-btn-222.bmp file-btn-333.bmp"_s, {28, 14}},
    {u"Button1.bmp Button2.bmp Button3.bmp"_s, {40, 16}},
    {u"Button-1.bmp Button-2.bmp Button-3.bmp"_s, {56, 16}},
    {u"Button--1.bmp Button--2.bmp Button--3.bmp"_s, {92, 14}},
    {u"Button-l1.bmp Button-l2.bmp Button-l3.bmp"_s, {128, 16}},
    {u"button-T1.bmp button-T2.bmp button-T3.bmp"_s, {20, 14}},
};

/// What the program's menus ask for.
QSet<QString> menuNames()
{
    QSet<QString> names;
    for (const GlyphArray& glyphs : glyphArrays()) {
        for (const char* const file : glyphs.files)
            names << QLatin1StringView(file);
    }
    return names;
}

/// The share of pixels that differ.
double difference(const QImage& one, const QImage& other)
{
    int different = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            different += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
    }
    return double(different) / (one.width() * one.height());
}

} // namespace

class Catalogue : public testing::TestWithParam<QString>
{
protected:
    const SkinFiles& skin = SkinFiles::of(GetParam());
};

TEST_P(Catalogue, holdsEachFileOnceAtItsSize)
{
    QSet<QString> expected{u"skin.ini"_s};
    for (const Sized& row : pictures) {
        for (const QString& name : row.names.split(u' ')) {
            EXPECT_EQ(skin.picture(name).size(), row.size) << qPrintable(name);
            expected.insert(name.toLower());
        }
    }
    for (const QString& name : menuNames()) {
        EXPECT_EQ(skin.picture(name).size(), QSize(16, 16)) << qPrintable(name);
        expected.insert(name);
    }
    QSet<QString> found;
    for (const QString& name : skin.names())
        found.insert(name.toLower());
    EXPECT_EQ(found, expected);
    EXPECT_EQ(found.size(), skin.names().size()) << "two names differ by case only";
}

TEST_P(Catalogue, givesEachFamilyThreeFacesThatDifferAtTheSizeOfTheButton)
{
    for (const Sized& row : pictures) {
        const QStringList names = row.names.split(u' ');
        if (names.size() != 3)
            continue;
        const QImage idle = skin.picture(names[0]);
        EXPECT_GT(difference(idle, skin.picture(names[1])), 0.6) << qPrintable(names[0]);
        EXPECT_GT(difference(idle, skin.picture(names[2])), 0.6) << qPrintable(names[0]);
        EXPECT_GT(difference(skin.picture(names[1]), skin.picture(names[2])), 0.6) << qPrintable(names[0]);
        EXPECT_EQ(skinSize(idle.size()), idle.size()) << "a button scales its face";
    }
}

TEST_P(Catalogue, tellsEachMenuGlyphFromTheNext)
{
    QMap<QByteArray, QString> seen;
    for (const QString& name : menuNames()) {
        QString& other = seen[skin.bytes(name)];
        EXPECT_TRUE(other.isEmpty()) << qPrintable(name) << " looks like " << qPrintable(other);
        other = name;
    }
}

TEST_P(Catalogue, holdsIconsSharpAtThreeSizesAndSeeThroughAround)
{
    for (const QString& name : skin.names().filter(u".ico"_s)) {
        QByteArray bytes = skin.bytes(name);
        QBuffer buffer(&bytes);
        QImageReader reader(&buffer);
        EXPECT_EQ(reader.imageCount(), 3) << qPrintable(name);
        for (const int side : {16, 24, 32}) {
            const QImage icon = reader.read();
            EXPECT_EQ(icon.size(), QSize(side, side)) << qPrintable(name);
            EXPECT_EQ(qAlpha(icon.pixel(0, 0)), 0) << qPrintable(name);
            EXPECT_EQ(qAlpha(icon.pixel(side / 2, side / 2)), 255) << qPrintable(name);
            reader.jumpToNextImage();
        }
    }
}

TEST_P(Catalogue, setsTheMainWindowsControlsIntoItsPicture)
{
    const struct
    {
        QString file;
        const MainLayout& layout;
    } windows[] = {{u"background-main.bmp"_s, MainLayout::normal()},
                   {u"background-mLarge.bmp"_s, MainLayout::enlarged()}};
    for (const auto& [file, layout] : windows) {
        const QImage picture = skin.picture(file);
        ASSERT_EQ(picture.size(), layout.window);
        for (const QRect& well : {layout.picLeft, layout.picMain, mainplaces::txtGameID}) {
            const QRect edge = well.adjusted(-1, -1, 1, 1);
            const QRgb line = picture.pixel(edge.topLeft());
            for (int x = edge.left(); x <= edge.right(); ++x)
                ASSERT_EQ(picture.pixel(x, edge.top()), line) << "the edge is broken above " << x;
            for (int y = edge.top(); y < edge.bottom(); ++y) {
                ASSERT_EQ(picture.pixel(edge.left(), y), line);
                ASSERT_EQ(picture.pixel(edge.right(), y), line);
            }
            EXPECT_NE(picture.pixel(well.topLeft()), line);
        }
    }
}

TEST_P(Catalogue, repeatsTheListsGroundsWithoutASeam)
{
    for (const QString& name : {u"list.bmp"_s, u"back.bmp"_s}) {
        const QImage tile = skin.picture(name);
        const auto step = [&](int fromX, int toX) {
            int most = 0;
            for (int y = 0; y < tile.height(); ++y)
                most = qMax(most, qAbs(qGreen(tile.pixel(fromX, y)) - qGreen(tile.pixel(toX, y))));
            return most;
        };
        int inside = 0;
        for (int x = 1; x < tile.width(); ++x)
            inside = qMax(inside, step(x - 1, x));
        EXPECT_LE(step(tile.width() - 1, 0), inside) << qPrintable(name);
    }
}

TEST_P(Catalogue, isTheSameBytesEachTime)
{
    const SkinFiles again(GetParam());
    for (const QString& name : skin.names())
        EXPECT_EQ(skin.bytes(name), again.bytes(name)) << qPrintable(name);
}

INSTANTIATE_TEST_SUITE_P(Skins, Catalogue, testing::ValuesIn(skinNames()),
                         [](const auto& skin) { return skin.param.toStdString(); });

} // namespace varnhold::test
