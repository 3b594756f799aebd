#include "lookup/CertificateWatch.h"

#include "state/Settings.h"

#include <QScopedValueRollback>

namespace varnhold {

using namespace Qt::StringLiterals;

CertificateWatch::CertificateWatch(const Settings& settings, CertificateWatchHost& host)
    : m_settings(settings), m_host(host)
{
}

QString CertificateWatch::acceptedCaption()
{
    return u"§Varnhold - [SSL Certificate Accepted]"_s;
}

void CertificateWatch::start()
{
    if (m_host.caption() != acceptedCaption())
        m_host.setTimer1(true);
}

void CertificateWatch::Timer1_Timer()
{
    if (m_ticking)
        return;
    const QScopedValueRollback<bool> running(m_ticking, true);
    tick1();
}

void CertificateWatch::Timer2_Timer()
{
    if (m_ticking)
        return;
    const QScopedValueRollback<bool> running(m_ticking, true);
    tick2();
}

void CertificateWatch::tick1()
{
    // optCert tells how the button is pressed, key or click; here both are the same press.
    if (m_settings.isChecked(Check::AutoSSL0)) {
        if (m_host.pressYes()) {
            m_host.setCaption(acceptedCaption());
            m_host.setTimer1(false);
        }
    } else if (m_settings.isChecked(Check::AutoSSL1) && m_host.pressYes()) {
        // The older kind asks twice in a row: Timer2 waits for the second window.
        m_host.setTimer1(false);
        m_host.setTimer2(true);
    }
}

void CertificateWatch::tick2()
{
    if (m_host.pressYes()) {
        m_host.setCaption(acceptedCaption());
        m_host.setTimer2(false);
    }
}

} // namespace varnhold
