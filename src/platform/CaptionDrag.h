#pragma once

#include "platform/Screen.h"

#include <QObject>
#include <QPoint>

#include <functional>

class QMouseEvent;
class QWidget;

namespace varnhold {

/// Moves a frameless window by labels of its own that act as a caption, and lets it snap to the screen's
/// edges when it is dropped.
///
/// Where the desktop keeps positions to itself (Wayland) the compositor does the drag, and nothing is stored
/// or snapped.
class CaptionDrag : public QObject
{
    Q_OBJECT

public:
    struct Hooks
    {
        /// Receives the place of the drop in twips, before any snap; may be empty.
        std::function<void(double leftTwips, double topTwips)> store;
        /// Asked at each drop.
        std::function<bool()> snaps;
        /// The work area as read at the drop; may be empty.
        std::function<void(const WorkArea&)> keepWorkArea;
    };

    CaptionDrag(QWidget& window, const Screen& screen, Hooks hooks);

    void addHandle(QWidget& label);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void drop();

    QWidget& m_window;
    const Screen& m_screen;
    Hooks m_hooks;
    QPoint m_grip; ///< from the window's corner to the press, so that no rounding adds up
    bool m_dragging = false;
};

} // namespace varnhold
