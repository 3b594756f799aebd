#include "controls/DesignValues.h"
#include "controls/XP_ProgressBar/XP_ProgressBar.h"
#include "controls/gallery/GalleryPage.h"
#include "controls/gallery/GallerySheet.h"

#include <QPainter>

#include <array>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<const char16_t*, 10> lookNames = {
    u"0 segmented", u"1 continuous", u"2 searching", u"3 pastel",  u"4 sunken",
    u"5 office",    u"6 metal",      u"7 brush",     u"8 picture", u"9 media",
};

constexpr ColorValue blue = 0x00D07A1E;
constexpr std::array<ColorValue, 4> windowColors = {0x00503A28, 0x00E4EEF4, 0x001C2A3C, 0x00FF3333};

QPixmap weave()
{
    QPixmap tile(12, 12);
    tile.fill(QColor(0x2E, 0x5E, 0x8C));
    QPainter painter(&tile);
    painter.fillRect(0, 0, 6, 6, QColor(0x4F, 0x8F, 0xC4));
    painter.fillRect(6, 6, 6, 6, QColor(0x3B, 0x74, 0xA8));
    return tile;
}

XP_ProgressBar* bar(int look, int percent, QSize size, bool text = false)
{
    auto* made = new XP_ProgressBar;
    made->setScrolling(look);
    made->setColor(blue);
    made->setImage(weave());
    made->setShowText(text);
    made->setOrientation(size.height() > size.width() ? 1 : 0);
    made->setValue(percent);
    made->resize(size);
    return made;
}

QString lookName(int look)
{
    return QString::fromUtf16(lookNames.at(static_cast<size_t>(look)));
}

QWidget* horizontal()
{
    auto* sheet = new GallerySheet(760);
    for (int look = 0; look < 10; ++look) {
        sheet->heading(lookName(look));
        for (const int percent : {0, 25, 60, 100})
            sheet->add(bar(look, percent, {168, 20}), QString::number(percent));
    }
    return sheet->finish();
}

QWidget* withText()
{
    auto* sheet = new GallerySheet(760);
    for (int look = 0; look < 10; ++look) {
        sheet->heading(lookName(look));
        for (const int percent : {10, 49, 55, 100})
            sheet->add(bar(look, percent, {168, 20}, true), QString::number(percent));
    }
    return sheet->finish();
}

QWidget* vertical()
{
    auto* sheet = new GallerySheet(760);
    for (int look = 0; look < 10; ++look) {
        for (const int percent : {0, 40, 100})
            sheet->add(bar(look, percent, {20, 120}), u"%1: %2"_s.arg(look).arg(percent));
    }
    return sheet->finish();
}

QWidget* details()
{
    auto* sheet = new GallerySheet(760);
    sheet->heading(u"Hatches of look 7"_s);
    for (int style = 0; style <= 6; ++style) {
        XP_ProgressBar* made = bar(design::progresslook::brush, 80, {88, 20});
        made->setBrushStyle(style);
        sheet->add(made, QString::number(style));
    }
    sheet->heading(u"Heights of 6 to 32"_s);
    for (const int look : {design::progresslook::segmented, design::progresslook::pastel,
                           design::progresslook::office, design::progresslook::media}) {
        sheet->newRow();
        for (const int height : {6, 9, 12, 15, 24, 32})
            sheet->add(bar(look, 60, {104, height}), QString::number(height));
    }
    sheet->heading(u"Bars of the program's windows in light and dark colours"_s);
    for (const ColorValue color : windowColors) {
        XP_ProgressBar* made = bar(design::frmMain_ProgressBar1_Scrolling, 60, {96, 12});
        made->setColor(color);
        sheet->add(made, u"frmMain"_s);
        made = bar(design::frm_Winsock_PB_Scrolling, 60, {200, 14});
        made->setColor(color);
        sheet->add(made, u"frm_Winsock"_s);
        made = bar(design::frmSearch_PB_Scrolling, 60, {200, 14});
        made->setColor(color);
        sheet->add(made, u"frmSearch"_s);
        sheet->newRow();
    }
    sheet->heading(u"The searching look on its way, no picture in look 8"_s);
    for (const int percent : {5, 30, 70, 95})
        sheet->add(bar(design::progresslook::searching, percent, {104, 20}), QString::number(percent));
    XP_ProgressBar* empty = bar(design::progresslook::picture, 60, {104, 20});
    empty->setImage({});
    sheet->add(empty, u"60, no picture"_s);
    return sheet->finish();
}

} // namespace

GalleryPages progressBarPages()
{
    return {
        {u"progressbar-looks"_s, u"XP_ProgressBar: looks"_s, horizontal},
        {u"progressbar-text"_s, u"XP_ProgressBar: looks with text"_s, withText, false},
        {u"progressbar-vertical"_s, u"XP_ProgressBar: upright"_s, vertical},
        {u"progressbar-details"_s, u"XP_ProgressBar: hatches, heights, blocks"_s, details},
    };
}

} // namespace varnhold
