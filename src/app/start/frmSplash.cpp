#include "app/start/frmSplash.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QGuiApplication>
#include <QLabel>
#include <QScreen>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr QSize splashSize{320, 160};
constexpr int splashOpacity = 220;

} // namespace

frmSplash::frmSplash() : ShapedWindow(nullptr)
{
    setObjectName("frmSplash"_L1);
    setWindowTitle(QCoreApplication::applicationName());
    setFixedSize(splashSize);
    addLabel("lblProductName", {20, 28, 200, 28}, QCoreApplication::applicationName());
    QFont large = font();
    large.setPixelSize(22);
    findChild<QLabel*>("lblProductName"_L1)->setFont(large);
    addLabel("lblVersion", {20, 56, 200, 16}, u"Version "_s + QCoreApplication::applicationVersion());
    addLabel("lblPlatform", {220, 34, 80, 16}, u"Linux"_s)->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    addLabel("lblCompanyProduct", {220, 56, 80, 16}, u"Brackwater"_s)
        ->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_warning = addLabel("lblWarning", {20, 84, 280, 18}, u"Please wait!"_s);
    m_warning->setCursor(Qt::PointingHandCursor);
    m_warning->installEventFilter(this);
    m_news = addLabel("lblstat", {20, 70, 280, 15}, {});
    m_news->hide();
    m_message = addLabel("lblMessage", {20, 102, 280, 30}, {});
    m_message->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    m_loading = addLabel("lblLoading", {20, 136, 280, 16}, {});
    if (const QScreen* screen = QGuiApplication::primaryScreen())
        move(screen->availableGeometry().center() - rect().center());
    SetOpacity(splashOpacity, *this);
}

QLabel* frmSplash::addLabel(const char* name, const QRect& place, const QString& text)
{
    auto* label = new QLabel(text, this);
    label->setObjectName(QLatin1StringView(name));
    label->setTextFormat(Qt::PlainText);
    label->setGeometry(place);
    return label;
}

void frmSplash::setStatus(const QString& text)
{
    m_loading->setText(text);
    m_loading->repaint(); // what follows may take long, and handles no events
}

void frmSplash::setNews(const QString& text)
{
    m_news->setText(text);
    m_news->setVisible(!text.isEmpty());
}

bool frmSplash::hasNews() const
{
    return !m_news->text().isEmpty();
}

void frmSplash::setMessage(const QString& text)
{
    m_message->setText(QString(text).replace(u"\r\n"_s, u"\n"_s).replace(u'\r', u'\n'));
    m_message->repaint();
}

bool frmSplash::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_warning && event->type() == QEvent::MouseButtonDblClick) {
        m_abandoned = true;
        Q_EMIT abandoned();
        return true;
    }
    return ShapedWindow::eventFilter(watched, event);
}

void frmSplash::closeEvent(QCloseEvent* event)
{
    // While loading there is no other way out than the double click.
    if (event->spontaneous())
        event->ignore();
}

} // namespace varnhold
