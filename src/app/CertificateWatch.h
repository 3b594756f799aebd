#pragma once

#include "platform/NetworkBrowser.h"

#include <QTimer>

#include <functional>

namespace varnhold {

class Settings;

/// Answers the "Security Alert" window for the user while one of the Auto options is on.
///
/// The two timers are states here: the clock behind them runs only while an alert is open, so that a program
/// that waits for nothing does not wake up a thousand times a second.
class CertificateWatch : public SecurityAlert
{
public:
    struct Hooks
    {
        std::function<bool()> pressYes;                  ///< false when no alert is open
        std::function<void(const QString&)> showCaption; ///< lblCaption
    };

    CertificateWatch(SecurityAlert& window, const Settings& settings, Hooks hooks);

    /// Turns Timer1 on, unless the caption shows that a certificate was accepted.
    void start();
    [[nodiscard]] bool timer1() const { return m_timer1; }
    [[nodiscard]] bool timer2() const { return m_timer2; }

    bool accept(const QString& host, const QStringList& problems) override;
    void cancel() override;

private:
    void tick();
    bool press();
    void showAccepted();

    SecurityAlert& m_window;
    const Settings& m_settings;
    Hooks m_hooks;
    QTimer m_clock;
    bool m_timer1 = false;
    bool m_timer2 = false;
    bool m_pressed = false; ///< the open alert was answered; the next one is another window
    bool m_accepted = false;
};

} // namespace varnhold
