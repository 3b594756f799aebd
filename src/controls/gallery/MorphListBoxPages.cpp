#include "controls/MorphListBox/MorphListBox.h"
#include "controls/gallery/GalleryPage.h"
#include "controls/gallery/GallerySheet.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QMouseEvent>
#include <QPainter>

#include <array>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<const char16_t*, 10> themeNames = {
    u"None", u"Cyan", u"Gunmetal", u"Blue", u"Red", u"Pinky", u"Green", u"Purple", u"Golden", u"Copper"};

MorphListBox* filled(int theme, int count = 40, QSize size = {113, 90})
{
    auto* list = new MorphListBox;
    QFont font(u"Arial"_s);
    font.setPixelSize(11);
    list->setFont(font);
    list->setSorted(false);
    list->resize(size);
    list->setTheme(theme);
    for (int i = 0; i < count; ++i)
        list->AddItem(u"%1%2"_s.arg(i % 3 == 0 ? u"BLUS"_s : u"NPEB"_s).arg(30000 + 37 * i));
    list->setListIndex(qMin(2, count - 1));
    return list;
}

MorphListBox* focused(MorphListBox* list)
{
    QFocusEvent reached(QEvent::FocusIn, Qt::TabFocusReason);
    QCoreApplication::sendEvent(list, &reached);
    return list;
}

MorphListBox* pressedAt(MorphListBox* list, QPoint position)
{
    QMouseEvent press(QEvent::MouseButtonPress, position, position, Qt::LeftButton, Qt::LeftButton, {});
    QCoreApplication::sendEvent(list, &press);
    return list;
}

QPixmap disc(const QColor& color)
{
    QPixmap picture(32, 32);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(color);
    painter.drawEllipse(QRectF(2, 2, 28, 28));
    return picture;
}

QPixmap tile()
{
    QPixmap picture(24, 24);
    picture.fill(QColor(0xE8, 0xEE, 0xF6));
    QPainter painter(&picture);
    painter.setPen(QColor(0xC4, 0xD2, 0xE4));
    painter.drawLine(0, 23, 23, 0);
    painter.drawRect(0, 0, 23, 23);
    return picture;
}

MorphListBox* withImages(MorphListBox* list, int size)
{
    list->setShowItemImages(true);
    list->setItemImageSize(size);
    list->AddImage(disc(QColor(0xC0, 0x30, 0x30)));
    list->AddImage(disc(QColor(0x30, 0x60, 0xC0)));
    for (int i = 0; i < list->ListCount(); ++i)
        list->setImageIndex(i, i % 3 - 1);
    return list;
}

MorphListBox* checks(int checkStyle)
{
    MorphListBox* list = filled(2);
    list->setStyle(1);
    list->setCheckStyle(checkStyle);
    for (const int row : {0, 2, 3})
        list->setSelected(row, true);
    return list;
}

QWidget* themes()
{
    auto* sheet = new GallerySheet(760);
    sheet->heading(u"Themes, with keyboard focus"_s);
    for (int theme = 0; theme < 10; ++theme)
        sheet->add(focused(filled(theme)), QString::fromUtf16(themeNames.at(size_t(theme))));
    sheet->heading(u"Disabled"_s);
    MorphListBox* disabled = filled(1);
    disabled->setEnabled(false);
    sheet->add(disabled, u"all themes alike"_s);
    return sheet->finish();
}

QWidget* states()
{
    auto* sheet = new GallerySheet(760);
    sheet->heading(u"Rows"_s);
    MorphListBox* many = filled(3);
    many->setMultiSelect(2);
    for (const int row : {1, 2, 5})
        many->setSelected(row, true);
    sheet->add(many, u"multiple selection"_s);
    sheet->add(filled(1, 6), u"all rows fit"_s);
    sheet->add(withImages(filled(9), 0), u"images"_s);
    for (const int style : {0, 1, 2})
        sheet->add(checks(style), u"CheckStyle %1"_s.arg(style));
    MorphListBox* mirrored = withImages(filled(6), 0);
    mirrored->setRightToLeft(true);
    sheet->add(mirrored, u"RightToLeft"_s);
    sheet->heading(u"Background and border"_s);
    for (int mode = 0; mode < 3; ++mode) {
        MorphListBox* list = filled(8);
        list->setPicture(tile());
        list->setPictureMode(mode);
        sheet->add(list, u"PictureMode %1"_s.arg(mode));
    }
    MorphListBox* curved = filled(4);
    curved->setBorderWidth(3);
    curved->setCurveTopLeft(24);
    curved->setCurveBottomLeft(12);
    sheet->add(curved, u"curved, border of 3"_s);
    MorphListBox* circular = filled(7);
    circular->setCircularGradient(true);
    sheet->add(circular, u"CircularGradient"_s);
    return sheet->finish();
}

QWidget* details()
{
    auto* sheet = new GallerySheet(760);
    sheet->heading(u"Scroll bar"_s);
    sheet->add(pressedAt(filled(1), {108, 85}), u"arrow held"_s);
    sheet->add(pressedAt(filled(1), {108, 65}), u"track held"_s);
    sheet->add(filled(1, 100'000), u"100,000 rows"_s);
    sheet->heading(u"Rows"_s);
    sheet->add(withImages(filled(9), 24), u"images of 24"_s);
    MorphListBox* texts = filled(8);
    texts->setList(0, QString(10000, u'W'));
    texts->setList(1, u"\u0633\u0644\u0627\u0645 \u05d0\u05d1\u05d2"_s);
    texts->setList(3, u"Gr\u00fc\u00dfe \u65e5\u672c"_s);
    sheet->add(texts, u"long and foreign texts"_s);
    sheet->heading(u"Background"_s);
    for (int angle = 0; angle < 360; angle += 45) {
        MorphListBox* list = filled(5, 0, {113, 80});
        list->setBackMiddleOut(false);
        list->setBackAngle(float(angle));
        sheet->add(list, u"BackAngle %1"_s.arg(angle));
    }
    return sheet->finish();
}

} // namespace

GalleryPages morphListBoxPages()
{
    return {
        {u"morphlistbox-themes"_s, u"MorphListBox: themes"_s, themes},
        {u"morphlistbox-states"_s, u"MorphListBox: states"_s, states},
        {u"morphlistbox-details"_s, u"MorphListBox: details"_s, details, false},
    };
}

} // namespace varnhold
