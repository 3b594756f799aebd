#include "platform/FrontWindow.h"

#include <QApplication>
#include <QWidget>

namespace varnhold {

QWidget* frontWindow()
{
    if (QWidget* const active = QApplication::activeWindow())
        return active;
    QWidget* front = nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget* const window : windows) {
        const Qt::WindowType type = window->windowType();
        if (!window->isVisible() || (type != Qt::Window && type != Qt::Dialog))
            continue;
        if (front == nullptr || type == Qt::Dialog)
            front = window;
    }
    return front;
}

} // namespace varnhold
