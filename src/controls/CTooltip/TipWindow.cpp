#include "controls/CTooltip/TipWindow.h"

#include "controls/SystemColorsUi.h"

#include <QCursor>
#include <QEvent>
#include <QFontMetrics>
#include <QPainter>
#include <QTimerEvent>

namespace varnhold {

namespace {
constexpr int margin = 8;
} // namespace

TipWindow::TipWindow(QWidget* owner, bool balloon, bool centered, TipTimes times)
    : QWidget(nullptr, Qt::ToolTip), m_owner(owner), m_times(times), m_balloon(balloon), m_centered(centered)
{
    setAttribute(Qt::WA_ShowWithoutActivating);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    owner->installEventFilter(this);
    if (owner->isVisible() && owner->rect().contains(owner->mapFromGlobal(QCursor::pos())))
        m_delayTimer.start(qMax(0, m_times.delay), this);
}

void TipWindow::setText(const QString& text)
{
    m_text = text;
    relayout();
}

void TipWindow::setTitle(int icon, const QString& title)
{
    m_icon = icon;
    m_title = title;
    relayout();
}

void TipWindow::setTextColor(ColorValue color)
{
    m_textColor = color;
    update();
}

void TipWindow::setBackColor(ColorValue color)
{
    m_backColor = color;
    update();
}

void TipWindow::relayout()
{
    const QString all = m_title.isEmpty() ? m_text : m_title + u'\n' + m_text;
    resize(QFontMetrics(font()).size(Qt::TextExpandTabs, all) + QSize(2 * margin, 2 * margin));
    update();
}

bool TipWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_owner) {
        switch (event->type()) {
        case QEvent::MouseMove:
        case QEvent::Enter:
            if (!isVisible())
                m_delayTimer.start(qMax(0, m_times.delay), this);
            break;
        case QEvent::Leave:
        case QEvent::Hide:
        case QEvent::MouseButtonPress:
        case QEvent::KeyPress:
            m_delayTimer.stop();
            hide();
            break;
        default:
            break;
        }
    }
    return QWidget::eventFilter(watched, event);
}

void TipWindow::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_delayTimer.timerId()) {
        m_delayTimer.stop();
        if (!m_owner || m_text.isEmpty())
            return;
        move(m_centered ? m_owner->mapToGlobal(QPoint((m_owner->width() - width()) / 2, m_owner->height()))
                        : QCursor::pos() + QPoint(8, 20));
        show();
        m_visibleTimer.start(qMax(0, m_times.visible), this);
    } else if (event->timerId() == m_visibleTimer.timerId()) {
        m_visibleTimer.stop();
        hide();
    }
}

void TipWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const QColor text = m_textColor == 0 ? toQColor(systemcolors::infoText) : toQColor(m_textColor);
    const QColor back = m_backColor == 0 ? toQColor(systemcolors::infoBackground) : toQColor(m_backColor);
    painter.fillRect(rect(), back);
    painter.setPen(text);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    const QString all = m_title.isEmpty() ? m_text : m_title + u'\n' + m_text;
    painter.drawText(rect().adjusted(margin, margin, 0, 0), Qt::TextExpandTabs, all);
}

} // namespace varnhold
