#include "app/CertificateWatch.h"

#include "state/Settings.h"

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int interval = 1; // ms

} // namespace

CertificateWatch::CertificateWatch(SecurityAlert& window, const Settings& settings, Hooks hooks)
    : m_window(window), m_settings(settings), m_hooks(std::move(hooks))
{
    m_clock.setInterval(interval);
    QObject::connect(&m_clock, &QTimer::timeout, &m_clock, [this] { tick(); });
}

void CertificateWatch::start()
{
    if (!m_accepted)
        m_timer1 = true;
}

bool CertificateWatch::accept(const QString& host, const QStringList& problems)
{
    m_pressed = false;
    m_clock.start();
    const bool yes = m_window.accept(host, problems);
    m_clock.stop();
    return yes;
}

void CertificateWatch::cancel()
{
    m_window.cancel();
}

void CertificateWatch::tick()
{
    if (m_timer2 && press()) {
        m_timer2 = false;
        showAccepted();
    }
    if (!m_timer1)
        return;
    // Both ways of pressing, by keys and by a click, come to the same here.
    if (m_settings.isChecked(Check::AutoSSL0)) {
        if (press()) {
            m_timer1 = false;
            showAccepted();
        }
    } else if (m_settings.isChecked(Check::AutoSSL1)) {
        // The first of two windows leaves the caption alone.
        if (press()) {
            m_timer1 = false;
            m_timer2 = true;
        }
    }
}

bool CertificateWatch::press()
{
    if (m_pressed || !m_hooks.pressYes())
        return false;
    m_pressed = true;
    return true;
}

void CertificateWatch::showAccepted()
{
    m_accepted = true;
    m_hooks.showCaption(u"§Varnhold - [SSL Certificate Accepted]"_s);
}

} // namespace varnhold
