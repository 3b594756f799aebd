#include "platform/MessagePump.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>

namespace varnhold {

bool EventLoopPump::pump()
{
    if (!m_ending)
        QCoreApplication::processEvents(QEventLoop::AllEvents);
    return !m_ending;
}

bool EventLoopPump::pumpNext()
{
    if (!m_ending)
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    return !m_ending;
}

void EventLoopPump::end()
{
    m_ending = true;
    // Wakes a pumpNext() that sleeps in an outer frame.
    QTimer::singleShot(0, [] {});
}

} // namespace varnhold
