#include "controls/MorphListBox/MorphListBox.h"
#include "controls/gallery/GalleryPage.h"
#include "controls/gallery/GallerySheet.h"

#include <QPainter>

#include <array>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<const char16_t*, 10> themeNames = {u"0 None",   u"1 Cyan",  u"2 Gunmetal", u"3 Blue",
                                                        u"4 Red",    u"5 Pinky", u"6 Green",    u"7 Purple",
                                                        u"8 Golden", u"9 Copper"};

QPixmap icon(const QColor& color)
{
    QPixmap made(14, 14);
    made.fill(Qt::transparent);
    QPainter painter(&made);
    painter.fillRect(2, 4, 10, 8, color);
    painter.fillRect(5, 1, 4, 3, color.darker(130));
    return made;
}

QPixmap picture()
{
    QPixmap made(48, 48);
    made.fill(QColor(0xDC, 0xE6, 0xF0));
    QPainter painter(&made);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0xA8, 0xC0, 0xD8), 3));
    painter.drawEllipse(QRectF(8, 8, 32, 32));
    return made;
}

MorphListBox* list(int theme, int rows = 24)
{
    auto* made = new MorphListBox;
    made->setTheme(theme);
    made->setSorted(false);
    made->resize(112, 104);
    for (int row = 0; row < rows; ++row)
        made->AddItem(u"VHLD%1"_s.arg(10001 + 37 * row));
    made->setListIndex(2);
    return made;
}

QWidget* themes()
{
    auto* sheet = new GallerySheet(760);
    for (int theme = 0; theme < 10; ++theme)
        sheet->add(list(theme), QString::fromUtf16(themeNames.at(static_cast<size_t>(theme))));
    return sheet->finish();
}

QWidget* states()
{
    auto* sheet = new GallerySheet(760);
    sheet->heading(u"Check lists, disabled, several rows, a short list"_s);
    for (int style = 0; style <= 2; ++style) {
        MorphListBox* made = list(2);
        made->setStyle(1);
        made->setCheckStyle(style);
        made->setSelected(1, true);
        made->setSelected(3, true);
        sheet->add(made, u"check style %1"_s.arg(style));
    }
    MorphListBox* disabled = list(2);
    disabled->setEnabled(false);
    sheet->add(disabled, u"disabled"_s);
    MorphListBox* several = list(3);
    several->setMultiSelect(2);
    for (const int row : {1, 2, 4})
        several->setSelected(row, true);
    sheet->add(several, u"several rows"_s);
    sheet->add(list(3, 4), u"short"_s);

    sheet->heading(u"Images, from right to left, pictures behind"_s);
    for (const bool mirrored : {false, true}) {
        MorphListBox* made = list(8);
        for (const QColor& color : {QColor(0x2E, 0x7A, 0xC8), QColor(0xC8, 0x4A, 0x2E)})
            made->AddImage(icon(color));
        for (int row = 0; row < 24; ++row)
            made->setImageIndex(row, row % 3 == 0 ? 1 : 0);
        made->setItemImageSize(14);
        made->setShowItemImages(true);
        made->setRightToLeft(mirrored);
        sheet->add(made, mirrored ? u"images, mirrored"_s : u"images"_s);
    }
    for (int mode = 0; mode <= 2; ++mode) {
        MorphListBox* made = list(0);
        made->setPicture(picture());
        made->setPictureMode(mode);
        sheet->add(made, u"picture mode %1"_s.arg(mode));
    }
    return sheet->finish();
}

} // namespace

GalleryPages morphListBoxPages()
{
    return {
        {u"morphlistbox-themes"_s, u"MorphListBox: themes"_s, themes},
        {u"morphlistbox-states"_s, u"MorphListBox: states"_s, states},
    };
}

} // namespace varnhold
