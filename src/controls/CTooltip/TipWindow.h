#pragma once

#include "controls/SystemColors.h"

#include <QBasicTimer>
#include <QPointer>
#include <QWidget>

namespace varnhold {

/// Milliseconds.
struct TipTimes
{
    int delay = 500;
    int visible = 5000;
};

/// The tip's own window. It watches its owner: shows when the pointer has rested there for the delay, hides
/// after its time, or when the pointer leaves, a button or key goes down, or the owner goes away.
class TipWindow : public QWidget
{
public:
    TipWindow(QWidget* owner, bool balloon, bool centered, TipTimes times);

    void setText(const QString& text);
    void setTitle(int icon, const QString& title);
    /// 0 is the platform's colour.
    void setTextColor(ColorValue color);
    void setBackColor(ColorValue color);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void relayout();

    QPointer<QWidget> m_owner;
    TipTimes m_times;
    QBasicTimer m_delayTimer;
    QBasicTimer m_visibleTimer;
    QString m_text;
    QString m_title;
    int m_icon = 0;
    ColorValue m_textColor = 0;
    ColorValue m_backColor = 0;
    bool m_balloon;
    bool m_centered;
};

} // namespace varnhold
