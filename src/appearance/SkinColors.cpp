#include "appearance/SkinColors.h"

#include "appearance/WindowControls.h"
#include "controls/SystemColorsUi.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QLabel>
#include <QLineEdit>
#include <QMetaProperty>
#include <QVariant>
#include <QWidget>

namespace varnhold {

namespace {

/// A text field has a ground of its own; a label or a check box shows the window's picture.
bool hasOwnGround(const QWidget& part)
{
    return qobject_cast<const QLineEdit*>(&part) != nullptr ||
           qobject_cast<const QAbstractScrollArea*>(&part) != nullptr;
}

bool isLabel(const QWidget& part)
{
    return qobject_cast<const QLabel*>(&part) != nullptr ||
           qobject_cast<const QAbstractButton*>(&part) != nullptr;
}

void setPaletteColors(QWidget& part, const QColor& fore, const QColor& back)
{
    QPalette palette = part.palette();
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(role, fore);
    if (hasOwnGround(part))
        palette.setColor(QPalette::Base, back);
    part.setPalette(palette);
}

} // namespace

bool assignProperty(QObject& control, const char* name, const QVariant& value)
{
    const QMetaObject& meta = *control.metaObject();
    const int index = meta.indexOfProperty(name);
    return index >= 0 && meta.property(index).write(&control, value);
}

void assignSkinColors(QWidget& control, const SkinColors& colors)
{
    const bool declares = assignProperty(control, "ForeColor", colors[0]);
    assignProperty(control, "HighlightColor", colors[1]);
    assignProperty(control, "BackColor", colors[2]);
    if (!declares && (isLabel(control) || hasOwnGround(control)))
        setPaletteColors(control, toQColor(colors[0]), toQColor(colors[2]));
}

void assignSkinColorsInside(const QWidget& window, const SkinColors& colors)
{
    for (QWidget* control : controlsOf<QWidget>(window)) {
        // A control's inner parts are its own affair; headings have no name and are no such part.
        const bool isNamed = !control->objectName().isEmpty() && !control->objectName().startsWith(u"qt_");
        if (isNamed || qobject_cast<QLabel*>(control) != nullptr)
            assignSkinColors(*control, colors);
    }
}

} // namespace varnhold
