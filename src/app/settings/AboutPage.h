#pragma once

#include "app/settings/SettingsPage.h"

#include <QElapsedTimer>

class QTimer;

namespace varnhold {

/// The product's name and version, and the credits, which scroll while the page is on screen.
class AboutPage : public SettingsPage
{
    Q_OBJECT

public:
    /// `tmr_Scroll` runs exactly while this page shows.
    AboutPage(Settings& settings, QTimer& tmr_Scroll);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    QLabel* addCredits(QWidget& window, const char* name, const QString& text);
    void scroll();
    void place(int topTwips);

    QTimer& m_timer;
    QElapsedTimer m_shown; ///< runs while the timer does
    qint64 m_passed = 0;   ///< milliseconds on screen before
    QLabel* m_scroll;
    QLabel* m_endUser;
};

} // namespace varnhold
