#include "controls/MorphListBox/MorphListMetrics.h"

#include <gtest/gtest.h>

#include <limits>

namespace varnhold {

namespace {

MorphListMeasure measureOf(int width, int height, int fontHeight, bool checkList = false, int image = -1)
{
    MorphListMeasure measure;
    measure.ScaleWidth = width;
    measure.ScaleHeight = height;
    measure.fontHeight = fontHeight;
    measure.checkList = checkList;
    measure.ShowItemImages = image >= 0;
    measure.ItemImageSize = std::max(0, image);
    return measure;
}

} // namespace

TEST(MorphListMetrics, RowsFollowFontImagesAndStyle)
{
    struct Case
    {
        const char* name;
        MorphListMeasure measure;
        int rowHeight;
        int textLeft;
    };
    const Case cases[] = {
        {"plain", measureOf(100, 200, 13), 13, 3},
        {"images as high as the font", measureOf(100, 200, 13, false, 0), 13, 3 + 13 + 1},
        {"images higher than the font", measureOf(100, 200, 13, false, 32), 32, 3 + 32 + 1},
        {"images lower than the font", measureOf(100, 200, 13, false, 8), 13, 3 + 8 + 1},
        {"check list", measureOf(100, 200, 16, true), 18, 23},
        {"check list with a small font", measureOf(100, 200, 8, true), 15, 23},
        {"check list with images", measureOf(100, 200, 13, true, 20), 22, 23 + 20 + 1},
    };
    for (const Case& c : cases) {
        const MorphListMetrics metrics(c.measure, 1, 0);
        EXPECT_EQ(metrics.rowHeight(), c.rowHeight) << c.name;
        EXPECT_EQ(metrics.rows(), 190 / c.rowHeight) << c.name;
        EXPECT_EQ(metrics.text(0).left(), c.textLeft) << c.name;
        EXPECT_EQ(metrics.rowTops().front(), 5) << c.name;
    }
    MorphListMeasure bordered = measureOf(100, 200, 13);
    bordered.BorderWidth = 4;
    const MorphListMetrics metrics(bordered, 1, 0);
    EXPECT_EQ(metrics.rows(), (200 - 10 - 8) / 13);
    EXPECT_EQ(metrics.rowTops().at(2), 4 + 5 + 2 * 13);
    EXPECT_EQ(metrics.row(0), QRect(4, 9, 92, 13));
}

TEST(MorphListMetrics, HitsRowsByTheirTops)
{
    const MorphListMetrics metrics(measureOf(100, 10 + 3 * 10 + 4, 10), 3, 0);
    EXPECT_EQ(metrics.rowAt(4), -1);
    EXPECT_EQ(metrics.rowAt(5), 0);
    EXPECT_EQ(metrics.rowAt(14), 0);
    EXPECT_EQ(metrics.rowAt(15), 1);
    EXPECT_EQ(metrics.rowAt(34), 2);
    EXPECT_EQ(metrics.rowAt(35), -1);
    EXPECT_EQ(metrics.rowAt(std::numeric_limits<int>::min()), -1);
    EXPECT_EQ(metrics.rowAt(std::numeric_limits<int>::max()), -1);
    EXPECT_FALSE(metrics.hasScrollBar()) << "three rows fit";
    EXPECT_EQ(metrics.text(0).right(), 99) << "the text may run to the edge";
}

TEST(MorphListMetrics, TellsThePartsOfTheScrollBar)
{
    // 20 rows fit; the bar is 16 x 210 with a track of 178.
    const MorphListMeasure measure = measureOf(100, 210, 10);
    const MorphListMetrics top(measure, 40, 0);
    EXPECT_EQ(top.bar(), QRect(84, 0, 16, 210));
    EXPECT_EQ(top.track(), QRect(84, 16, 16, 178));
    EXPECT_EQ(top.thumb(), QRect(84, 16, 16, 178 * 20 / 40));
    EXPECT_EQ(top.row(0).right(), 83);
    EXPECT_TRUE(top.trackAbove().isEmpty());
    const MorphListMetrics middle(measure, 40, 10);
    EXPECT_EQ(middle.thumb().top(), 16 + 89 * 10 / 20);
    EXPECT_EQ(middle.zoneAt({90, 5}), HitZone::UpperArrow);
    EXPECT_EQ(middle.zoneAt({90, 20}), HitZone::Track);
    EXPECT_TRUE(middle.aboveThumb({90, 20}));
    EXPECT_EQ(middle.zoneAt({90, 100}), HitZone::Thumb);
    EXPECT_EQ(middle.zoneAt({90, 190}), HitZone::Track);
    EXPECT_FALSE(middle.aboveThumb({90, 190}));
    EXPECT_EQ(middle.zoneAt({90, 200}), HitZone::LowerArrow);
    EXPECT_EQ(middle.zoneAt({50, 100}), HitZone::Rows);
    EXPECT_EQ(middle.trackAbove().height() + middle.thumb().height() + middle.trackBelow().height(), 178);
    for (int first = 0; first <= 20; ++first)
        EXPECT_EQ(middle.firstRowFor(MorphListMetrics(measure, 40, first).thumb().top()), first);

    MorphListMeasure mirrored = measure;
    mirrored.RightToLeft = true;
    const MorphListMetrics left(mirrored, 40, 10);
    EXPECT_EQ(left.bar().left(), 0);
    EXPECT_EQ(left.row(0), QRect(16, 5, 84, 10));
    EXPECT_EQ(left.text(0).right(), 99 - 3);
}

TEST(MorphListMetrics, AnySizeKeepsItsPartsInside)
{
    for (const int width : {-5, 0, 1, 2, 17, 400}) {
        for (const int height : {-5, 0, 1, 9, 21, 40, 5000}) {
            for (const int count : {0, 1, 101, 1'000'000}) {
                MorphListMeasure measure = measureOf(width, height, 7, count % 2 == 1, 0);
                measure.BorderWidth = 2;
                const MorphListMetrics metrics(measure, count, count / 2);
                const QRect all(0, 0, std::max(0, width), std::max(0, height));
                EXPECT_LE(metrics.rows(), 100);
                for (const QRect& part : {metrics.bar(), metrics.upperArrow(), metrics.track(),
                                          metrics.thumb(), metrics.lowerArrow()})
                    EXPECT_TRUE(part.isEmpty() || all.contains(part)) << width << "x" << height;
                for (int y = -10; y < height; y += 3)
                    static_cast<void>(metrics.firstRowFor(y));
            }
        }
    }
}

TEST(MorphListMetrics, ThemesKeepWhatTheyDoNotName)
{
    MorphListDesign design;
    design.BackAngle = 10;
    design.DisForeColor = 1;
    design.CurveTopLeft = 9;
    ASSERT_TRUE(applyMorphTheme(5, design));
    EXPECT_EQ(design.BackColor1, 0xB366FFU);
    EXPECT_EQ(design.TrackClickColor1, 0x6262FFU);
    EXPECT_EQ(design.BackAngle, 45);
    EXPECT_EQ(design.DisForeColor, 0x404040U);
    EXPECT_EQ(design.BorderWidth, 0);
    EXPECT_EQ(design.CurveTopLeft, 0);
    const MorphListDesign before = design;
    EXPECT_FALSE(applyMorphTheme(10, design));
    EXPECT_FALSE(applyMorphTheme(-1, design));
    EXPECT_EQ(design, before);
}

} // namespace varnhold
