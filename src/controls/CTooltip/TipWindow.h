#pragma once

#include "controls/CTooltip/TipPainter.h"
#include "controls/CTooltip/TipRest.h"
#include "platform/Clock.h"

#include <QBasicTimer>
#include <QWidget>

namespace varnhold {

/// The tip's own window, a child of its owner that ends with it. It watches its owner: shows when the pointer
/// has rested there for the delay, hides after its time, when the pointer leaves, or at a press or a key.
class TipWindow : public QWidget
{
    Q_OBJECT

public:
    TipWindow(QWidget* owner, bool balloon);

    void setCentered(bool centered);
    void setText(const QString& text);
    void setTitle(int icon, const QString& title);
    /// 0 is the platform's colour.
    void setTextColor(ColorValue color);
    void setBackColor(ColorValue color);
    /// Milliseconds. Starts to wait when the pointer is on the owner already.
    void start(int visible, int initial);

    /// Hides for good and deletes itself when its own events are over.
    void retire();

    /// Title and text, for assistive tools.
    [[nodiscard]] QString wholeText() const;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void poll();
    void act(TipRest::Act what);
    void refresh();
    void place();

    QWidget& m_owner;
    MonotonicClock m_clock;
    QBasicTimer m_poll;
    TipRest m_rest;
    TipContent m_content;
    TipPlace m_place;
    QImage m_shape;
    QPoint m_pointer; ///< where it was when the tip came
    bool m_centered = false;
};

} // namespace varnhold
