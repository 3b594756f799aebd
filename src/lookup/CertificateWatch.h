#pragma once

#include <QString>

namespace varnhold {

class Settings;

/// What the watch sees and moves: the "Security Alert" window, the caption of the main window and the two
/// timers of 1 ms, whose ticks the owner hands to the watch.
class CertificateWatchHost
{
public:
    virtual ~CertificateWatchHost() = default;
    /// Presses "&Yes" of the window that is open now; false when there is none, or when the open one has
    /// been answered already.
    virtual bool pressYes() = 0;
    [[nodiscard]] virtual QString caption() const = 0; ///< lblCaption
    virtual void setCaption(const QString& text) = 0;
    virtual void setTimer1(bool on) = 0;
    virtual void setTimer2(bool on) = 0;
};

/// Answers certificate questions for the user, by the two "Auto Cert." options. The caption that tells of it
/// never goes back, so one run of the program accepts once.
class CertificateWatch
{
public:
    CertificateWatch(const Settings& settings, CertificateWatchHost& host);

    /// Turns Timer1 on unless the caption already tells of an accepted certificate: at the settings load when
    /// either option is on, and at a click on either.
    void start();

    void Timer1_Timer();
    void Timer2_Timer();

    static QString acceptedCaption();

private:
    void tick1();
    void tick2();

    const Settings& m_settings;
    CertificateWatchHost& m_host;
    bool m_ticking = false;
};

} // namespace varnhold
