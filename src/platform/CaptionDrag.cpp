#include "platform/CaptionDrag.h"

#include "platform/EdgeSnap.h"
#include "platform/HandCursors.h"
#include "platform/Twips.h"
#include "platform/Wayland.h"

#include <QMouseEvent>
#include <QWidget>
#include <QWindow>

#include <utility>

namespace varnhold {

CaptionDrag::CaptionDrag(QWidget& window, const Screen& screen, Hooks hooks)
    : QObject(&window), m_window(window), m_screen(screen), m_hooks(std::move(hooks))
{
}

void CaptionDrag::addHandle(QWidget& label)
{
    label.setCursor(imgCurser(0));
    label.installEventFilter(this);
}

bool CaptionDrag::eventFilter(QObject* watched, QEvent* event)
{
    auto* label = qobject_cast<QWidget*>(watched);
    if (label == nullptr)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress: {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if (mouse->button() != Qt::LeftButton)
            return false;
        if (onWayland()) {
            if (m_window.windowHandle() != nullptr)
                m_window.windowHandle()->startSystemMove();
            return true;
        }
        m_dragging = true;
        m_grip = mouse->globalPosition().toPoint() - m_window.pos();
        label->setCursor(imgCurser(1));
        return true;
    }
    case QEvent::MouseMove:
        if (m_dragging)
            m_window.move(static_cast<QMouseEvent*>(event)->globalPosition().toPoint() - m_grip);
        return m_dragging;
    case QEvent::MouseButtonRelease:
        if (!m_dragging || static_cast<QMouseEvent*>(event)->button() != Qt::LeftButton)
            return false;
        m_dragging = false;
        label->setCursor(imgCurser(0));
        drop();
        return false; // a label may have a click of its own
    default:
        return false;
    }
}

void CaptionDrag::drop()
{
    const WindowPlace place{twipsFromPixels(m_window.x()), twipsFromPixels(m_window.y()),
                            twipsFromPixels(m_window.width()), twipsFromPixels(m_window.height())};
    // The place before the snap is what the next start uses; this is meant.
    if (m_hooks.store)
        m_hooks.store(place.left, place.top);
    const WorkArea area = m_screen.workArea();
    if (m_hooks.keepWorkArea)
        m_hooks.keepWorkArea(area);
    if (!m_hooks.snaps || !m_hooks.snaps())
        return;
    const WindowPlace rest = snapToEdges(place, m_screen.width(), m_screen.height(), area);
    if (rest != place)
        m_window.move(pixelsFromTwips(rest.left), pixelsFromTwips(rest.top));
}

} // namespace varnhold
