#include "app/start/AutoAlert.h"

#include <utility>

namespace varnhold {

namespace {

constexpr int interval = 1; // ms

} // namespace

AutoAlert::AutoAlert(SecurityAlert& window, const Settings& settings, Hooks hooks)
    : m_window(window), m_hooks(std::move(hooks)), m_watch(settings, *this)
{
    m_clock.setInterval(interval);
    QObject::connect(&m_clock, &QTimer::timeout, &m_clock, [this] { tick(); });
}

bool AutoAlert::accept(const QString& host, const QStringList& problems)
{
    m_pressed = false;
    m_clock.start();
    const bool yes = m_window.accept(host, problems);
    m_clock.stop();
    return yes;
}

void AutoAlert::cancel()
{
    m_window.cancel();
}

void AutoAlert::tick()
{
    if (m_timer1)
        m_watch.Timer1_Timer();
    if (m_timer2)
        m_watch.Timer2_Timer();
}

bool AutoAlert::pressYes()
{
    if (m_pressed || !m_hooks.pressYes())
        return false;
    m_pressed = true;
    return true;
}

QString AutoAlert::caption() const
{
    return m_hooks.caption();
}

void AutoAlert::setCaption(const QString& text)
{
    m_hooks.setCaption(text);
}

void AutoAlert::setTimer1(bool on)
{
    m_timer1 = on;
}

void AutoAlert::setTimer2(bool on)
{
    m_timer2 = on;
}

} // namespace varnhold
