#include "controls/CTooltip/TipWindow.h"

#include "platform/Wayland.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QBitmap>
#include <QCursor>
#include <QEvent>
#include <QFontInfo>
#include <QPainter>
#include <QScreen>
#include <QTimerEvent>
#include <QToolTip>

namespace varnhold {

namespace {

constexpr int pollInterval = 40;
constexpr int leastTextPixels = 11;
constexpr int widestBody = 520;

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* tip = qobject_cast<TipWindow*>(object);
    return tip ? new QAccessibleWidget(tip, QAccessible::ToolTip, tip->wholeText()) : nullptr;
}

QFont tipFont()
{
    QFont font = QToolTip::font();
    if (QFontInfo(font).pixelSize() < leastTextPixels)
        font.setPixelSize(leastTextPixels);
    return font;
}

} // namespace

TipWindow::TipWindow(QWidget* owner, bool balloon)
    : QWidget(owner, Qt::ToolTip | Qt::WindowTransparentForInput), m_owner(*owner)
{
    static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(installed)
    setAttribute(Qt::WA_ShowWithoutActivating);
    if (balloon && onWayland())
        setAttribute(Qt::WA_TranslucentBackground);
    setFocusPolicy(Qt::NoFocus);
    m_content.font = tipFont();
    m_content.balloon = balloon;
    owner->installEventFilter(this);
}

void TipWindow::setCentered(bool centered)
{
    m_centered = centered;
}

void TipWindow::setText(const QString& text)
{
    m_content.text = text;
    refresh();
}

void TipWindow::setTitle(int icon, const QString& title)
{
    m_content.icon = icon;
    m_content.title = title;
    refresh();
}

void TipWindow::setTextColor(ColorValue color)
{
    m_content.textColor = color;
    update();
}

void TipWindow::setBackColor(ColorValue color)
{
    m_content.backColor = color;
    update();
}

void TipWindow::start(int visible, int initial)
{
    m_rest.setTimes(initial, visible);
    poll();
}

void TipWindow::retire()
{
    m_poll.stop();
    m_owner.removeEventFilter(this);
    qApp->removeEventFilter(this);
    hide();
    deleteLater();
}

QString TipWindow::wholeText() const
{
    return m_content.title.isEmpty() ? m_content.text : m_content.title + u'\n' + m_content.text;
}

bool TipWindow::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Enter:
        if (watched == &m_owner && !m_poll.isActive())
            poll();
        break;
    case QEvent::Leave:
    case QEvent::Hide:
        // The pointer's last place may stay known as one on the owner.
        if (watched == &m_owner) {
            act(m_rest.pointerAt(QPoint(), false, m_clock.tickCount()));
            m_poll.stop();
        }
        break;
    case QEvent::MouseButtonPress:
    case QEvent::KeyPress:
    case QEvent::Wheel:
        if (isVisible())
            act(m_rest.dismiss());
        break;
    default:
        break;
    }
    return QWidget::eventFilter(watched, event);
}

void TipWindow::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_poll.timerId())
        poll();
    else
        QWidget::timerEvent(event);
}

void TipWindow::poll()
{
    const QPoint pointer = QCursor::pos();
    const bool over = m_owner.isVisible() && QGuiApplication::mouseButtons() == Qt::NoButton &&
                      m_owner.rect().contains(m_owner.mapFromGlobal(pointer));
    m_pointer = isVisible() ? m_pointer : pointer;
    act(m_rest.pointerAt(pointer, over, m_clock.tickCount()));
    if (!m_rest.isWatching())
        m_poll.stop();
    else if (!m_poll.isActive())
        m_poll.start(pollInterval, this);
}

void TipWindow::act(TipRest::Act what)
{
    if (what == TipRest::Act::Hide) {
        qApp->removeEventFilter(this);
        hide();
    } else if (what == TipRest::Act::Show && !m_content.text.isEmpty()) {
        place();
        show();
        qApp->installEventFilter(this);
    }
}

void TipWindow::refresh()
{
    setAccessibleName(wholeText());
    if (isVisible())
        place();
}

void TipWindow::place()
{
    const QScreen* screen = QGuiApplication::screenAt(m_pointer);
    TipRequest request;
    request.screen = (screen ? screen : m_owner.screen())->availableGeometry();
    request.balloon = m_content.balloon;
    request.centered = m_centered;
    request.pointer = m_pointer;
    request.owner = QRect(m_owner.mapToGlobal(QPoint(0, 0)), m_owner.size());
    request.body =
        tipBodySize(m_content, QSize(qMin(widestBody, request.screen.width()), request.screen.height() / 2));
    m_place = placeTip(request);
    m_shape = tipShape(m_place, m_content.balloon);
    setGeometry(m_place.window);
    if (m_content.balloon)
        setMask(QBitmap::fromImage(m_shape.createAlphaMask()));
    update();
}

void TipWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    paintTip(painter, m_content, m_place, m_shape);
}

} // namespace varnhold
