#include "app/settings/AboutPage.h"

#include "platform/Twips.h"

#include <QCoreApplication>
#include <QLabel>
#include <QTimer>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int startTwips = 1415; // the window's lower edge
constexpr int twipsPerSecond = 640;
constexpr int stepMilliseconds = 24; // a pixel each
constexpr QRect creditsWindow{8, 104, 268, 94};

QString credits()
{
    return u"It looks up game updates, tells what they\n"
           "hold, and downloads their packages.\n\n"
           "It stands on\n\n"
           "Qt 6, windows, network and pictures\n"
           "GNU Lesser General Public License 3\n\n"
           "SQLite, the game database\n"
           "public domain\n\n"
           "SDL 2 and SDL_mixer, sounds\n"
           "zlib License\n\n"
           "OpenSSL, safe connections\n"
           "Apache License 2.0\n\n"
           "DejaVu, letters where no others are\n"
           "Bitstream Vera License\n"_s;
}

QString noWarranty()
{
    return u"This program comes with no warranty,\n"
           "to the extent that the law permits.\n"
           "Whoever uses it does so at their own risk."_s;
}

} // namespace

AboutPage::AboutPage(Settings& settings, QTimer& tmr_Scroll)
    : SettingsPage({"frm_About", u"About"_s, u"Settings: About "_s}, settings), m_timer(tmr_Scroll)
{
    QLabel* const name = addLabel({}, QCoreApplication::applicationName(), {column, 28, controlWidth, 32});
    name->setAlignment(Qt::AlignCenter);
    QFont large = name->font();
    large.setPixelSize(22);
    name->setFont(large);
    QLabel* const version = addQuietLabel(tr("Version %1").arg(QCoreApplication::applicationVersion()),
                                          {column, 62, controlWidth, rowHeight});
    version->setAlignment(Qt::AlignCenter);
    auto* const window = new QWidget(this);
    window->setGeometry(creditsWindow);
    m_scroll = addCredits(*window, "lblScroll", credits());
    m_endUser = addCredits(*window, "lblEndUser", noWarranty());
    place(startTwips);
    m_timer.setInterval(stepMilliseconds);
    m_timer.setTimerType(Qt::PreciseTimer);
    connect(&m_timer, &QTimer::timeout, this, &AboutPage::scroll);
}

QLabel* AboutPage::addCredits(QWidget& window, const char* name, const QString& text)
{
    auto* const label = new QLabel(text, &window);
    label->setObjectName(QLatin1StringView(name));
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    return label;
}

void AboutPage::showEvent(QShowEvent* event)
{
    SettingsPage::showEvent(event);
    if (event->spontaneous() || !window()->isVisible())
        return;
    for (QLabel* const label : {m_scroll, m_endUser})
        label->setFixedSize(creditsWindow.width(), label->sizeHint().height());
    scroll();
    m_shown.start();
    m_timer.start();
}

void AboutPage::hideEvent(QHideEvent* event)
{
    SettingsPage::hideEvent(event);
    if (!m_timer.isActive())
        return;
    m_timer.stop();
    m_passed += m_shown.elapsed();
}

void AboutPage::scroll()
{
    // Both labels leave the window before they come again.
    const qint64 passed = m_passed + (m_timer.isActive() ? m_shown.elapsed() : 0);
    const int way = startTwips + twipsPerPixel * (m_scroll->height() + m_endUser->height());
    place(startTwips - static_cast<int>(passed * twipsPerSecond / 1000 % way));
}

void AboutPage::place(int topTwips)
{
    m_scroll->move(0, pixelsFromTwips(topTwips));
    m_endUser->move(0, m_scroll->y() + m_scroll->height());
}

} // namespace varnhold
