#include "appearance/ReadableTexts.h"

#include "appearance/SkinColors.h"
#include "appearance/WindowControls.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/Contrast.h"
#include "controls/SystemColorsUi.h"

#include <QAbstractButton>
#include <QApplication>
#include <QLabel>

#include <vector>

namespace varnhold {

namespace {

constexpr double readable = 4.5;

/// The picture that shows behind the control: its own face, or the ground of what it lies on.
QImage groundOf(const QWidget& control)
{
    QRect place = control.rect();
    for (const QWidget* at = &control; at != nullptr; at = at->parentWidget()) {
        const char* const name = qobject_cast<const ButtonEx*>(at) != nullptr ? "SkinUp" : "Picture";
        const QImage picture = at->property(name).value<QPixmap>().toImage();
        if (!picture.isNull())
            return picture.copy(place & picture.rect());
        if (at->isWindow())
            break;
        place.translate(at->pos());
    }
    return {};
}

/// A few colours that stand for all of them.
std::vector<ColorValue> colorsUnder(const QWidget& control)
{
    const QImage ground = groundOf(control);
    if (ground.isNull()) {
        const auto* const button = qobject_cast<const ButtonEx*>(&control);
        return {button != nullptr ? button->BackColor()
                                  : toColorValue(QApplication::palette().color(QPalette::Window))};
    }
    constexpr int side = 4;
    const QImage few = ground.scaled(side, side, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    std::vector<ColorValue> colors;
    for (int i = 0; i < side * side; ++i)
        colors.push_back(toColorValue(few.pixelColor(i % side, i / side)));
    return colors;
}

} // namespace

void makeTextsReadable(const QWidget& window, ColorValue fore)
{
    for (QWidget* const control : controlsOf<QWidget>(window)) {
        const auto* const button = qobject_cast<const ButtonEx*>(control);
        if (button == nullptr && qobject_cast<const QLabel*>(control) == nullptr &&
            qobject_cast<const QAbstractButton*>(control) == nullptr)
            continue;
        const ColorValue own = button != nullptr
                                   ? button->ForeColor()
                                   : toColorValue(control->palette().color(control->foregroundRole()));
        const ColorValue inks[] = {own, fore};
        const ColorValue ink = firstThatStandsOut(inks, colorsUnder(*control), readable);
        if (ink == own)
            continue;
        if (assignProperty(*control, "ForeColor", ink))
            continue;
        QPalette palette = control->palette();
        palette.setColor(control->foregroundRole(), toQColor(ink));
        control->setPalette(palette);
    }
}

} // namespace varnhold
