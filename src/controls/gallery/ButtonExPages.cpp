#include "controls/ButtonEx/ButtonEx.h"
#include "controls/gallery/GalleryPage.h"
#include "controls/gallery/GallerySheet.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>

#include <array>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

enum class Show { Up, Over, Pressed, Disabled, Focused };

constexpr std::array<const char16_t*, 5> showNames = {u"up", u"over", u"pressed", u"disabled", u"keyboard"};

void sendMouse(ButtonEx& button, QEvent::Type type, Qt::MouseButton which)
{
    const QPointF place(3, 3);
    QMouseEvent event(type, place, place, which, type == QEvent::MouseMove ? Qt::NoButton : which,
                      Qt::NoModifier);
    QCoreApplication::sendEvent(&button, &event);
}

/// Brings the button into a state by what brings it there on a desktop.
ButtonEx* shown(ButtonEx* button, Show state)
{
    switch (state) {
    case Show::Up:
        break;
    case Show::Over:
        sendMouse(*button, QEvent::MouseMove, Qt::NoButton);
        break;
    case Show::Pressed:
        sendMouse(*button, QEvent::MouseButtonPress, Qt::LeftButton);
        break;
    case Show::Disabled:
        button->setEnabled(false);
        break;
    case Show::Focused: {
        QFocusEvent reached(QEvent::FocusIn, Qt::TabFocusReason);
        QCoreApplication::sendEvent(button, &reached);
        break;
    }
    }
    return button;
}

struct Colors
{
    ColorValue fore = systemcolors::buttonText;
    ColorValue highlight = systemcolors::buttonText;
    ColorValue back = systemcolors::buttonFace;
};

ButtonEx* bevelled(const Colors& colors, int border)
{
    auto* button = new ButtonEx;
    button->setCaption(u"&Options"_s);
    button->setBorderStyle(border);
    button->setForeColor(colors.fore);
    button->setHighlightColor(colors.highlight);
    button->setBackColor(colors.back);
    button->resize(84, 26);
    return button;
}

/// A small face with chamfered corners; what is cut away is pure blue.
QPixmap face(const QColor& light, const QColor& dark, QSize size = QSize(56, 20))
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(QColor(0, 0, 255));
    QPainter painter(&image);
    const int right = size.width() - 1;
    const int bottom = size.height() - 1;
    for (int y = 0; y <= bottom; ++y) {
        const int cut = qMax(0, qMax(3 - y, 3 - (bottom - y)));
        const double part = double(y) / bottom;
        const auto mix = [&](int a, int b) { return static_cast<int>(a + (b - a) * part); };
        painter.fillRect(cut, y, right + 1 - 2 * cut, 1,
                         QColor(mix(light.red(), dark.red()), mix(light.green(), dark.green()),
                                mix(light.blue(), dark.blue())));
    }
    return QPixmap::fromImage(image);
}

ButtonEx* skinned()
{
    auto* button = new ButtonEx;
    button->setAppearance(2);
    button->setCaption(u"&Fetch"_s);
    button->setForeColor(0xF0E6DC);
    button->setHighlightColor(0xFFE07A);
    const QPixmap up = face(QColor(0x3A, 0x52, 0x78), QColor(0x1C, 0x2C, 0x48));
    const QPixmap down = face(QColor(0x14, 0x20, 0x34), QColor(0x22, 0x34, 0x52));
    button->setSkinUp(up);
    button->setSkinOver(face(QColor(0x4E, 0x70, 0xA4), QColor(0x26, 0x3E, 0x66)));
    button->setSkinFocus(up);
    button->setSkinDown(down);
    button->setSkinDisabled(down);
    return button;
}

QPixmap glyph(const QColor& color)
{
    QImage image(16, 16, QImage::Format_RGB32);
    image.fill(QColor(0xFF, 0x00, 0xFF));
    QPainter painter(&image);
    painter.fillRect(7, 2, 2, 8, color);
    for (int i = 0; i < 5; ++i)
        painter.fillRect(3 + i, 7 + i, 10 - 2 * i, 1, color);
    painter.fillRect(2, 13, 12, 2, color);
    return QPixmap::fromImage(image);
}

void addStates(GallerySheet* sheet, const std::function<ButtonEx*()>& make)
{
    for (int state = 0; state < 5; ++state)
        sheet->add(shown(make(), static_cast<Show>(state)),
                   QString::fromUtf16(showNames.at(static_cast<size_t>(state))));
    sheet->newRow();
}

QWidget* page(const QColor& background, const Colors& colors)
{
    auto* sheet = new GallerySheet(620, background);
    for (const int border : {1, 2, 3, 4, 0}) {
        sheet->heading(u"BorderStyle %1"_s.arg(border));
        addStates(sheet, [&] { return bevelled(colors, border); });
    }
    sheet->heading(u"Glyph; Style 1 latched; default"_s);
    for (const Show state : {Show::Up, Show::Over, Show::Pressed}) {
        ButtonEx* button = bevelled(colors, 1);
        button->setPicture(glyph(QColor(0xD0, 0x60, 0x20)));
        sheet->add(shown(button, state), u"glyph"_s);
    }
    ButtonEx* latched = bevelled(colors, 1);
    latched->setStyle(1);
    latched->setValue(0);
    sheet->add(latched, u"latched"_s);
    ButtonEx* standard = bevelled(colors, 1);
    standard->setDefault(true);
    sheet->add(standard, u"default"_s);
    sheet->heading(u"Faces"_s);
    addStates(sheet, skinned);
    return sheet->finish();
}

} // namespace

GalleryPages buttonExPages()
{
    return {
        {u"buttonex"_s, u"ButtonEx"_s, [] { return page(QColor(0xD4, 0xD0, 0xC8), {}); }},
        {u"buttonex-dark"_s, u"ButtonEx on a dark page"_s,
         [] {
             return page(QColor(0x14, 0x1C, 0x2B), Colors{0xF0E6DC, 0xFFE07A, 0x402C20});
         }},
    };
}

} // namespace varnhold
