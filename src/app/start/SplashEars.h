#pragma once

#include <QObject>

class QWidget;

namespace varnhold {

/// Lets the splash hear its double click in the middle of a long step of the start, and nothing else happen:
/// events for other windows are dropped, timers wait, sockets stay unread.
class SplashEars : public QObject
{
public:
    explicit SplashEars(const QWidget& splash) : m_splash(splash) {}
    void listen();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    const QWidget& m_splash;
};

} // namespace varnhold
