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

WorkArea areaOf(const QRect& rect)
{
    return {rect.left(), rect.top(), rect.left() + rect.width(), rect.top() + rect.height()};
}

} // namespace

WorkArea QtScreen::workArea() const
{
    return areaOf(geometryOf(&QScreen::availableGeometry));
}

std::vector<ScreenAreas> QtScreen::screens() const
{
    std::vector<ScreenAreas> areas;
    for (const QScreen* const screen : QGuiApplication::screens())
        areas.push_back({areaOf(screen->geometry()), areaOf(screen->availableGeometry())});
    return areas;
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
