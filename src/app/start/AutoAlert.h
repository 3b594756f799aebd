#pragma once

#include "lookup/CertificateWatch.h"
#include "platform/NetworkBrowser.h"

#include <QTimer>

#include <functional>

namespace varnhold {

/// The "Security Alert" question with the Auto options at work: while the window is open, the watch's timers
/// tick. They are states otherwise, so that an option which is on does not wake an idle program.
class AutoAlert : public SecurityAlert, private CertificateWatchHost
{
public:
    struct Hooks
    {
        std::function<bool()> pressYes; ///< of the open window; false when there is none
        std::function<QString()> caption;
        std::function<void(const QString&)> setCaption; ///< lblCaption
    };

    AutoAlert(SecurityAlert& window, const Settings& settings, Hooks hooks);

    CertificateWatch& watch() { return m_watch; }

    bool accept(const QString& host, const QStringList& problems) override;
    void cancel() override;

private:
    void tick();

    bool pressYes() override;
    [[nodiscard]] QString caption() const override;
    void setCaption(const QString& text) override;
    void setTimer1(bool on) override;
    void setTimer2(bool on) override;

    SecurityAlert& m_window;
    Hooks m_hooks;
    CertificateWatch m_watch;
    QTimer m_clock;
    bool m_timer1 = false;
    bool m_timer2 = false;
    bool m_pressed = false; ///< the open window was answered; the next one is another
};

} // namespace varnhold
