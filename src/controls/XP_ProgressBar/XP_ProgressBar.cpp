#include "controls/XP_ProgressBar/XP_ProgressBar.h"

#include "controls/SystemColorsUi.h"

#include <QAccessible>
#include <QPainter>

namespace varnhold {

XP_ProgressBar::XP_ProgressBar(QWidget* parent) : QWidget(parent)
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

void XP_ProgressBar::setColor(ColorValue color)
{
    m_state.color = color;
    update();
}

void XP_ProgressBar::setBrushStyle(int style)
{
    m_state.brushStyle = style;
    update();
}

void XP_ProgressBar::setImage(const QPixmap& image)
{
    m_image = image;
    update();
}

void XP_ProgressBar::setMax(int max)
{
    m_state.max = max;
}

void XP_ProgressBar::setMin(int min)
{
    m_state.min = min;
}

void XP_ProgressBar::setOrientation(int orientation)
{
    if (orientation != 0 && orientation != 1)
        return;
    m_state.vertical = orientation == 1;
    updateGeometry();
    update();
}

void XP_ProgressBar::setScrolling(int look)
{
    m_state.scrolling = look;
    update();
}

void XP_ProgressBar::setShowText(bool show)
{
    m_state.showText = show;
    update();
}

void XP_ProgressBar::setValue(int percent)
{
    m_state.setValue(percent);
    m_state.clampForDrawing();
    update();
}

QSize XP_ProgressBar::sizeHint() const
{
    return m_state.vertical ? QSize(16, 160) : QSize(160, 16);
}

QSize XP_ProgressBar::minimumSizeHint() const
{
    return {8, 8};
}

void XP_ProgressBar::paintEvent(QPaintEvent* /*event*/)
{
    m_state.clampForDrawing();
    const qreal ratio = devicePixelRatioF();
    const QSize pixels(qRound(width() * ratio), qRound(height() * ratio));
    if (m_surface.size() != pixels)
        m_surface = QImage(pixels, QImage::Format_RGB32);
    m_surface.setDevicePixelRatio(ratio);
    {
        QPainter painter(&m_surface);
        painter.fillRect(rect(), Qt::white);
        QRect bar = rect();
        if (m_state.vertical)
            bar.setTop(height() - height() * this->percent() / 100);
        else
            bar.setWidth(width() * this->percent() / 100);
        painter.fillRect(bar, toQColor(m_state.color));
    }
    QPainter(this).drawImage(0, 0, m_surface);
}

} // namespace varnhold
