#include "controls/gallery/GalleryPage.h"
#include "controls/gallery/GallerySheet.h"
#include "controls/ucSlider/ucSlider.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QPainter>
#include <QPainterPath>

#include <array>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<const char16_t*, 5> railNames = {u"0 sunken", u"1 raised", u"2 etched", u"3 bump",
                                                      u"4 flat"};

ucSlider* slider(int orientation, int value, int railStyle = 0)
{
    auto* made = new ucSlider;
    made->setOrientation(orientation);
    made->setRailStyle(railStyle);
    made->setValue(value);
    made->resize(orientation == 0 ? QSize(150, made->height()) : QSize(made->width(), 110));
    return made;
}

QPixmap knobPicture()
{
    QPixmap knob(16, 16);
    knob.fill(Qt::transparent);
    QPainter painter(&knob);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QColor(0x7A, 0x3E, 0x10));
    painter.setBrush(QColor(0xE8, 0x9A, 0x3C));
    painter.drawEllipse(QRectF(0.5, 0.5, 15, 15));
    return knob;
}

QPixmap railPicture(QSize size)
{
    QPixmap rail(size);
    QPainter painter(&rail);
    QLinearGradient shade(0, 0, size.width() > size.height() ? 0 : size.width(),
                          size.width() > size.height() ? size.height() : 0);
    shade.setColorAt(0, QColor(0x2A, 0x3B, 0x55));
    shade.setColorAt(1, QColor(0x6C, 0x8F, 0xC0));
    painter.fillRect(rail.rect(), shade);
    return rail;
}

void addAll(GallerySheet* sheet, ColorValue back)
{
    for (const int orientation : {0, 1}) {
        sheet->heading(orientation == 0 ? u"Orientation 0"_s : u"Orientation 1"_s);
        for (int style = 0; style < 5; ++style) {
            ucSlider* made = slider(orientation, 2 * style + 1, style);
            made->setBackColor(back);
            sheet->add(made, QString::fromUtf16(railNames.at(static_cast<size_t>(style))));
        }
        ucSlider* pictured = slider(orientation, 5, SliderState::pictureRail);
        pictured->setBackColor(back);
        pictured->setRailPicture(railPicture(orientation == 0 ? QSize(150, 8) : QSize(8, 110)));
        pictured->setSliderIcon(knobPicture());
        sheet->add(pictured, u"99 picture, icon"_s);
        ucSlider* focused = slider(orientation, 5);
        focused->setBackColor(back);
        QFocusEvent reached(QEvent::FocusIn, Qt::TabFocusReason);
        QCoreApplication::sendEvent(focused, &reached);
        sheet->add(focused, u"keyboard"_s);
        ucSlider* disabled = slider(orientation, 5);
        disabled->setBackColor(back);
        disabled->setEnabled(false);
        sheet->add(disabled, u"disabled"_s);
    }
    sheet->heading(u"Ends"_s);
    for (const int value : {0, 10}) {
        ucSlider* made = slider(0, value);
        made->setBackColor(back);
        made->setSliderIcon(knobPicture());
        sheet->add(made, QString::number(value));
    }
}

QWidget* light()
{
    auto* sheet = new GallerySheet(760, QColor(0xD4, 0xD0, 0xC8));
    addAll(sheet, systemcolors::buttonFace);
    return sheet->finish();
}

QWidget* dark()
{
    auto* sheet = new GallerySheet(760, QColor(0x14, 0x1C, 0x2B));
    addAll(sheet, 0x002B1C14);
    return sheet->finish();
}

} // namespace

GalleryPages sliderPages()
{
    return {
        {u"ucslider"_s, u"ucSlider"_s, light},
        {u"ucslider-dark"_s, u"ucSlider on a dark page"_s, dark},
    };
}

} // namespace varnhold
