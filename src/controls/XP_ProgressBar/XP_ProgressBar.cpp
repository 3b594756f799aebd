#include "controls/XP_ProgressBar/XP_ProgressBar.h"

#include "controls/XP_ProgressBar/ProgressBarAccessible.h"
#include "controls/XP_ProgressBar/ProgressLooks.h"
#include "controls/XP_ProgressBar/QtProgressSurface.h"

#include <QAccessible>
#include <QEvent>
#include <QPainter>

#include <cmath>

namespace varnhold {

XP_ProgressBar::XP_ProgressBar(QWidget* parent) : QWidget(parent)
{
    installProgressBarAccessible();
    setAttribute(Qt::WA_OpaquePaintEvent);
    setFocusPolicy(Qt::NoFocus);
}

void XP_ProgressBar::setColor(ColorValue color)
{
    m_state.color = color;
    redraw();
}

void XP_ProgressBar::setBrushStyle(int style)
{
    m_state.brushStyle = style;
    redraw();
}

void XP_ProgressBar::setImage(const QPixmap& image)
{
    m_image = image;
    redraw();
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
    redraw();
}

void XP_ProgressBar::setScrolling(int look)
{
    m_state.scrolling = look;
    redraw();
}

void XP_ProgressBar::setShowText(bool show)
{
    m_state.showText = show;
    redraw();
}

void XP_ProgressBar::setValue(int percent)
{
    const int before = m_state.percent();
    m_state.setValue(percent);
    m_state.clampForDrawing();
    if (m_state.percent() == before)
        return;
    m_drawn = false;
    // Shown now and not at the next turn of the event loop: long loops that show their progress here do
    // not return to it. That costs little, since there are no more than a hundred steps to show.
    if (isVisible())
        repaint();
    QAccessibleValueChangeEvent event(this, this->percent());
    QAccessible::updateAccessibility(&event);
}

QSize XP_ProgressBar::sizeHint() const
{
    return m_state.vertical ? QSize(16, 160) : QSize(160, 16);
}

QSize XP_ProgressBar::minimumSizeHint() const
{
    return {8, 8};
}

QImage XP_ProgressBar::hdc()
{
    pDraw();
    return m_surface;
}

void XP_ProgressBar::paintEvent(QPaintEvent* /*event*/)
{
    pDraw();
    QPainter(this).drawImage(0, 0, m_surface);
}

void XP_ProgressBar::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange)
        redraw();
    QWidget::changeEvent(event);
}

void XP_ProgressBar::redraw()
{
    m_drawn = false;
    update();
}

// Brings the surface up to date with state, size and ratio.
void XP_ProgressBar::pDraw()
{
    const qreal ratio = devicePixelRatioF();
    const QSize pixels(static_cast<int>(std::ceil(width() * ratio)),
                       static_cast<int>(std::ceil(height() * ratio)));
    if (m_drawn && m_surface.size() == pixels && qFuzzyCompare(m_surface.devicePixelRatio(), ratio))
        return;
    if (m_surface.size() != pixels)
        m_surface = QImage(pixels, QImage::Format_RGB32);
    if (m_surface.isNull())
        return;
    m_surface.setDevicePixelRatio(1);
    {
        QtProgressSurface surface(m_surface, size(), ratio, font(), m_image);
        PBarDraw(m_state, surface);
    }
    m_surface.setDevicePixelRatio(ratio);
    m_drawn = true;
}

} // namespace varnhold
