// Pictures of lists in flat colours, a letter for each. All that is painted here but texts is put together
// from whole pixels by integer arithmetic, so the tolerance is none at all; texts, which depend on the font
// engine, are left empty.
#include "controls/MorphListBox/MorphListPainter.h"
#include "controls/MorphListBox/MorphListTexts.h"

#include "controls/SystemColorsUi.h"

#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QPainter>
#include <QRegion>

#include <map>

namespace varnhold {

namespace {

using namespace Qt::StringLiterals;

const std::map<ColorValue, char> letters = {
    {0x000001, '.'}, {0x000002, '#'}, {0x000003, 's'}, {0x000004, ':'}, {0x000005, 'B'},
    {0x000006, 'A'}, {0x000007, 't'}, {0x000008, 'T'}, {0x000009, '|'}, {0x00000A, 'o'},
    {0x00000B, 'x'}, {0x00000C, 'c'}, {0x0000FF, 'R'},
};

MorphListLook flatLook()
{
    MorphListLook look;
    MorphListDesign& design = look.design;
    design.BackColor1 = design.BackColor2 = 0x000001;
    design.BorderColor1 = design.BorderColor2 = 0x000002;
    design.FocusBorderColor1 = design.FocusBorderColor2 = 0x000002;
    design.SelColor1 = design.SelColor2 = 0x000003;
    design.FocusRectColor = 0x000004;
    design.ButtonColor1 = design.ButtonColor2 = 0x000005;
    design.ArrowUpColor = design.ArrowDownColor = 0x000006;
    design.TrackBarColor1 = design.TrackBarColor2 = 0x000007;
    design.ThumbColor1 = design.ThumbColor2 = 0x000008;
    design.ThumbBorderColor = 0x000009;
    design.CheckBoxColor = 0x00000A;
    design.CheckboxArrowColor = 0x00000B;
    design.TrackClickColor1 = design.TrackClickColor2 = 0x00000C;
    return look;
}

void prepare(MorphListModel& list, const MorphListLook& look, QSize size, int count)
{
    MorphListMeasure measure;
    measure.ScaleWidth = size.width();
    measure.ScaleHeight = size.height();
    measure.fontHeight = 8;
    measure.BorderWidth = look.design.BorderWidth;
    measure.RightToLeft = look.RightToLeft;
    measure.ShowItemImages = look.ShowItemImages;
    measure.scrollBarWidth = 9;
    measure.thumbMinimum = 7;
    list.setMeasure(measure);
    for (int i = 0; i < count; ++i)
        list.AddItem(QString());
}

/// One line of letters a row of pixels; "*3" behind it says that it stands three times.
std::string paintedAt(qreal ratio, QSize size, MorphListModel& list, const MorphListLook& look)
{
    QImage image(size * ratio, QImage::Format_ARGB32_Premultiplied);
    image.setDevicePixelRatio(ratio);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    MorphListPainter().paint(painter, QRect(QPoint(), size), QRect(QPoint(), size), list, look);
    painter.end();
    std::string picture = "\n";
    std::string row;
    int repeated = 0;
    const auto endRows = [&] {
        picture += row + (repeated > 1 ? "*" + std::to_string(repeated) : "") + (repeated > 0 ? "\n" : "");
    };
    for (int y = 0; y < image.height(); ++y) {
        std::string next;
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            const auto known = letters.find(toColorValue(QColor::fromRgb(pixel)));
            next += qAlpha(pixel) == 0 ? ' ' : known == letters.end() ? '?' : known->second;
        }
        if (next != row) {
            endRows();
            row = next;
            repeated = 0;
        }
        ++repeated;
    }
    endRows();
    return picture;
}

} // namespace

TEST(MorphListPicture, ACheckListWithFocusAndScrollBar)
{
    MorphListLook look = flatLook();
    MorphListModel list;
    list.setCheckList(true);
    prepare(list, look, {36, 42}, 5);
    list.setListIndex(1);
    list.setSelected(1, true);
    list.focusIn();
    EXPECT_EQ(paintedAt(1, {36, 42}, list, look), R"(
####################################
#.........................BBBBBBBBB#*3
#.........................BBBBABBBB#
#.........................BBBAAABBB#
#.........................BBBBBBBBB#
#...ooooooooooooo.........BBBBBBBBB#
#...o...........o.........BBBBBBBBB#*2
#...o...........o.........|||||||||#
#...o...........o.........|TTTTTTT|#*6
#...o...........o.........|||||||||#
#...o...........o.........ttttttttt#
#...ooooooooooooo.........ttttttttt#
#.........................ttttttttt#
#:s:s:s:s:s:s:s:s:s:s:s:s:ttttttttt#
#sssooooooooooooosssssssssttttttttt#
#:ssosssssssssssossssssss:ttttttttt#
#sssosssssssssssosssssssssttttttttt#
#:ssossssssssxssossssssss:ttttttttt#
#sssosssssssxxssosssssssssttttttttt#
#:ssossxsssxxxssossssssss:ttttttttt#
#sssossxxsxxxsssosssssssssttttttttt#
#:ssossxxxxxssssossssssss:ttttttttt#
#sssosssxxxsssssosssssssssttttttttt#
#:ssossssxssssssossssssss:ttttttttt#
#sssosssssssssssosssssssssBBBBBBBBB#
#:ssosssssssssssossssssss:BBBBBBBBB#
#sssooooooooooooosssssssssBBBBBBBBB#
#:s:s:s:s:s:s:s:s:s:s:s:s:BBBAAABBB#
#.........................BBBBABBBB#
#.........................BBBBBBBBB#*4
####################################
)");
}

TEST(MorphListPicture, ACurvedBorderAndAMirroredRowWithItsImage)
{
    MorphListLook look = flatLook();
    look.RightToLeft = true;
    look.ShowItemImages = true;
    look.design.BorderWidth = 2;
    look.design.CurveTopLeft = 8;
    look.design.CurveBottomRight = 5;
    QPixmap red(4, 4);
    red.fill(Qt::red);
    look.images.append(red);
    MorphListModel list;
    prepare(list, look, {32, 34}, 3);
    list.setImageIndex(0, 0);
    EXPECT_EQ(paintedAt(1, {32, 34}, list, look), R"(
     ###########################
   #############################
  ####BBBBB...................##
 ###BBBBBBB...................##
 ##BBBBBBBB...................##
###BBBABBBB...................##
##BBBAAABBB...................##
##BBBBBBBBB........RRRRRRRR...##*4
##|||||||||........RRRRRRRR...##
##|TTTTTTT|........RRRRRRRR...##*3
##|TTTTTTT|...................##*3
##|||||||||...................##
##ttttttttt...................##*4
##BBBBBBBBB...................##*3
##BBBAAABBB...................##
##BBBBABBBB...................##
##BBBBBBBBB...................##*3
##BBBBBBBBB..................## 
############################### 
#############################   
)");
}

TEST(MorphListPicture, PartsMeetAtAFractionalRatio)
{
    MorphListLook look = flatLook();
    MorphListModel list;
    prepare(list, look, {24, 45}, 9);
    list.setListIndex(2);
    static_cast<void>(list.press(mousebutton::left, 0, {20, 34}, 0)); // the track is held
    EXPECT_EQ(paintedAt(1.5, {24, 45}, list, look), R"(
####################################
#..................................#
#....................BBBBBBBBBBBBBB#*5
#....................BBBBBBAABBBBBB#
#....................BBBBBAAAABBBBB#
#....................BBBBAAAAAABBBB#
#....................BBBBBBBBBBBBBB#*5
#....................tttttttttttttt#*17
#....................||||||||||||||#*2
#....................||TTTTTTTTTT||#*12
#....................||||||||||||||#*2
#....................cccccccccccccc#*5
#....................BBBBBBBBBBBBBB#*5
#....................BBBBAAAAAABBBB#
#....................BBBBBAAAABBBBB#
#....................BBBBBBAABBBBBB#
#....................BBBBBBBBBBBBBB#*5
#..................................#
####################################
)");
}

TEST(MorphListPicture, APartPaintedAgainIsTheSamePicture)
{
    for (const qreal ratio : {1.0, 1.5, 2.0}) {
        MorphListLook look;
        look.font.setPixelSize(6); // keeps inside its row
        applyMorphTheme(1, look.design);
        MorphListModel list;
        prepare(list, look, {60, 70}, 30);
        for (int i = 0; i < list.count(); ++i)
            list.setText(i, u"BLUS%1"_s.arg(i));
        list.setListIndex(2);
        MorphListPainter kept;
        QImage pieces(QSize(60, 70) * ratio, QImage::Format_RGB32);
        pieces.setDevicePixelRatio(ratio);
        QImage whole = pieces;
        const QRect all(0, 0, 60, 70);
        {
            QPainter painter(&pieces);
            kept.paint(painter, all, all, list, look);
            list.setListIndex(4);
            for (const int row : {2, 4}) {
                const QRect place = list.metrics().row(row);
                painter.setClipRect(place);
                kept.paint(painter, all, place, list, look);
            }
        }
        QPainter painter(&whole);
        MorphListPainter().paint(painter, all, all, list, look);
        painter.end();
        EXPECT_EQ(pieces, whole) << ratio;
    }
}

TEST(MorphListPicture, ATextThatFitsAtRatioOneIsWholeAtEveryRatio)
{
    QFont font;
    font.setPixelSize(11);
    for (const int stretch : {int(QFont::Unstretched), int(QFont::SemiCondensed)}) {
        font.setStretch(stretch);
        const QString id = u"NPUB31466"_s;
        const int width = QFontMetrics(font).horizontalAdvance(id) + 1;
        for (const qreal ratio : {1.0, 1.1, 1.25, 1.4, 1.5, 1.6, 1.75, 2.0, 2.25, 2.5, 3.0}) {
            MorphListTexts texts;
            texts.setFont(font, ratio);
            const auto painted = [&](int room) {
                QImage image(300, 60, QImage::Format_RGB32);
                image.fill(Qt::white);
                QPainter painter(&image);
                texts.paint(painter, {0, 0, room, 60}, id, Qt::black, false);
                return image;
            };
            EXPECT_EQ(painted(qRound(width * ratio)), painted(300)) << ratio << ' ' << stretch;
        }
    }
}

} // namespace varnhold
