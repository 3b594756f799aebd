#include "app/start/SplashEars.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>
#include <QWindow>

namespace varnhold {

namespace {

bool isAct(QEvent::Type type)
{
    switch (type) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
    case QEvent::Shortcut:
    case QEvent::ShortcutOverride:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::TabletRelease:
    case QEvent::DragEnter:
    case QEvent::DragMove:
    case QEvent::Drop:
    case QEvent::Close:
        return true;
    default:
        return false;
    }
}

} // namespace

void SplashEars::listen()
{
    QCoreApplication::instance()->installEventFilter(this);
    QCoreApplication::processEvents(QEventLoop::ExcludeSocketNotifiers);
    QCoreApplication::instance()->removeEventFilter(this);
}

bool SplashEars::eventFilter(QObject* watched, QEvent* event)
{
    // A timer whose event is dropped fires again.
    if (event->type() == QEvent::Timer)
        return true;
    if (!isAct(event->type()))
        return false;
    const auto* const widget = qobject_cast<const QWidget*>(watched);
    return watched != m_splash.windowHandle() && (widget == nullptr || widget->window() != &m_splash);
}

} // namespace varnhold
