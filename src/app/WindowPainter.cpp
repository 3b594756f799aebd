#include "app/WindowPainter.h"

#include <QApplication>
#include <QWidget>

namespace varnhold {

void WindowPainter::keepPainted() noexcept
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* window : windows) {
        if (window->isVisible())
            window->repaint();
    }
}

} // namespace varnhold
