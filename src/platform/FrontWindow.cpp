#include "platform/FrontWindow.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

namespace varnhold {

QWidget* frontWindow()
{
    // Between two boxes, while the focus is on its way back, no window is active.
    static QPointer<QWidget> last;
    if (QWidget* const active = QApplication::activeWindow()) {
        last = active;
        return active;
    }
    if (last && last->isVisible())
        return last;
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
