// Text and signs can be read: measured on the pixels behind them.

#include "SkinFiles.h"

#include "app/main/MainLayout.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

#include <QColor>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

constexpr double readable = 4.5;
constexpr double visible = 3;

} // namespace

class Contrast : public testing::TestWithParam<QString>
{
protected:
    const SkinFiles& skin = SkinFiles::of(GetParam());
    const QColor fore = skin.color(u"Skin ForeColor"_s);
    const QColor highlight = skin.color(u"Skin HightlightColor"_s);

    void expectReadable(const QColor& ink, const QString& file, const QRect& area)
    {
        EXPECT_GE(leastContrast(ink, skin.picture(file), area), readable)
            << qPrintable(file) << " at " << area.x() << ' ' << area.y();
    }
};

TEST_P(Contrast, ofLabelsOnTheWindows)
{
    const struct
    {
        QString file;
        const MainLayout& layout;
    } windows[] = {{u"background-main.bmp"_s, MainLayout::normal()},
                   {u"background-mLarge.bmp"_s, MainLayout::enlarged()}};
    for (const auto& [file, layout] : windows) {
        const QRect caption(QPoint(layout.lblCaption.left(), 5), QPoint(layout.winState[0].left(), 18));
        for (const QRect& label :
             {caption, layout.lblInfo.adjusted(4, 2, -4, -2), layout.lblStatus.adjusted(8, 1, 0, -1),
              layout.lblBlank.adjusted(0, 1, 0, -1), layout.lblCnt.adjusted(4, 1, -4, -1), layout.picLeft,
              layout.picMain, mainplaces::txtGameID}) {
            expectReadable(fore, file, label);
        }
    }
    expectReadable(fore, u"background-dl.bmp"_s, {8, 4, 336, 12});
    expectReadable(fore, u"background-dl.bmp"_s, {8, 24, 336, 104});
    expectReadable(fore, u"background-dl.bmp"_s, {8, 142, 300, 17});
    expectReadable(fore, u"background-settings.bmp"_s, {110, 30, 280, 208});
    expectReadable(fore, u"background-settings.bmp"_s, {24, 5, 340, 12});
    expectReadable(fore, u"background-search.bmp"_s, {10, 30, 422, 278});
    // Where labels stand: beside the picture, and in the panels' well.
    expectReadable(fore, u"background-DB.bmp"_s, {460, 31, 124, 14});
    expectReadable(fore, u"background-DB.bmp"_s, {297, 195, 280, 176});
    expectReadable(fore, u"background-slide.bmp"_s, {8, 5, 407, 12});
    for (const QString& file :
         {u"background-mPic.bmp"_s, u"background-mLPic.bmp"_s, u"background-nPic.bmp"_s})
        expectReadable(fore, file, skin.picture(file).rect());
}

TEST_P(Contrast, ofRowsOnTheListsGrounds)
{
    for (const QColor& ink : {fore, skin.color(u"ForeColor"_s)}) {
        for (const QString& file : {u"list.bmp"_s, u"back.bmp"_s})
            expectReadable(ink, file, skin.picture(file).rect());
        for (const QString& key : {u"BackColor1"_s, u"BackColor2"_s, u"Skin BackColor"_s})
            EXPECT_GE(contrast(ink, skin.color(key)), readable) << qPrintable(key);
    }
    for (const QString& key : {u"SelColor1"_s, u"SelColor2"_s})
        EXPECT_GE(contrast(skin.color(u"HighlightColor"_s), skin.color(key)), readable) << qPrintable(key);
    for (const QString& key : {u"ButtonColor1"_s, u"ButtonColor2"_s})
        EXPECT_GE(contrast(skin.color(u"ArrowUpColor"_s), skin.color(key)), visible) << qPrintable(key);
}

TEST_P(Contrast, ofCaptionsOnEachFace)
{
    // Idle in the fore colour, under the mouse in the highlight colour; on the third face the highlight
    // colour when pressed, the fore colour when disabled.
    const struct
    {
        QColor ink;
        int face;
    } captions[] = {{fore, 1}, {highlight, 2}, {highlight, 3}, {fore, 3}};
    for (const QString& family :
         {u"Button%1.bmp"_s, u"Button-%1.bmp"_s, u"Button--%1.bmp"_s, u"Button-l%1.bmp"_s}) {
        for (const auto& [ink, face] : captions) {
            const QString file = family.arg(face);
            expectReadable(ink, file, skin.picture(file).rect().adjusted(3, 2, -3, -3));
        }
    }
}

TEST_P(Contrast, ofButtonEdgesAndMenuGlyphs)
{
    for (const QString& name : skin.names().filter(u"menu/"_s)) {
        const QImage glyph = skin.picture(name);
        double most = 0;
        for (int y = 0; y < glyph.height(); ++y) {
            for (int x = 0; x < glyph.width(); ++x)
                most = qMax(most, contrast(glyph.pixelColor(0, 0), glyph.pixelColor(x, y)));
        }
        EXPECT_GE(most, visible) << qPrintable(name);
    }
    EXPECT_GE(contrast(highlight, skin.picture(u"background-mPic.bmp"_s).pixelColor(5, 5)), visible);
}

INSTANTIATE_TEST_SUITE_P(Skins, Contrast, testing::ValuesIn(skinNames()),
                         [](const auto& skin) { return skin.param.toStdString(); });

} // namespace varnhold::test
