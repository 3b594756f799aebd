#include "controls/MousePointer.h"

#include <QCursor>
#include <QPixmap>
#include <QWidget>

#include <array>

namespace varnhold {

namespace {

constexpr int ownIcon = 99;

constexpr std::array<Qt::CursorShape, 16> shapes = {
    Qt::ArrowCursor,     Qt::ArrowCursor,   Qt::CrossCursor,     Qt::IBeamCursor,
    Qt::ArrowCursor,     Qt::SizeAllCursor, Qt::SizeBDiagCursor, Qt::SizeVerCursor,
    Qt::SizeFDiagCursor, Qt::SizeHorCursor, Qt::UpArrowCursor,   Qt::WaitCursor,
    Qt::ForbiddenCursor, Qt::BusyCursor,    Qt::WhatsThisCursor, Qt::SizeAllCursor,
};

} // namespace

void applyMousePointer(QWidget& widget, int pointer, const QPixmap& icon)
{
    if (pointer == ownIcon && !icon.isNull())
        widget.setCursor(QCursor(icon));
    else if (pointer > 0 && pointer < static_cast<int>(shapes.size()))
        widget.setCursor(shapes.at(static_cast<std::size_t>(pointer)));
    else
        widget.unsetCursor();
}

} // namespace varnhold
