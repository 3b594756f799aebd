#include "platform/QtScreen.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

namespace varnhold {

namespace {

QRect geometryOf(QRect (QScreen::*which)() const)
{
    const QScreen* screen = QGuiApplication::primaryScreen();
    return screen == nullptr ? QRect() : (screen->*which)();
}

} // namespace

WorkArea QtScreen::workArea() const
{
    const QRect area = geometryOf(&QScreen::availableGeometry);
    return {area.left(), area.top(), area.left() + area.width(), area.top() + area.height()};
}

int QtScreen::width() const
{
    return geometryOf(&QScreen::geometry).width();
}

int QtScreen::height() const
{
    return geometryOf(&QScreen::geometry).height();
}

PointerPlace QtScreen::pointer() const
{
    const QPoint place = QCursor::pos();
    return {place.x(), place.y()};
}

} // namespace varnhold
