#include "platform/ShapedWindow.h"

#include "platform/Accessible.h"
#include "platform/Wayland.h"

#include <QGuiApplication>
#include <QPainter>
#include <QWindow>

#include <algorithm>

namespace varnhold {

ShapedWindow::ShapedWindow(QWidget* owner, Qt::WindowFlags extra)
    // Window managers keep a dialog above its owner, and a plain window not.
    : QWidget(owner, (owner == nullptr ? Qt::Window : Qt::Dialog) | Qt::FramelessWindowHint |
                         Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint | extra)
{
    tellAssistiveTools(*this, {.role = owner == nullptr ? QAccessible::Window : QAccessible::Dialog});
    if (onWayland()) // what is cut away is left blank; on X11 that would be black without a compositor
        setAttribute(Qt::WA_TranslucentBackground);
}

void ShapedWindow::setPicture(const QPixmap& picture)
{
    m_picture = picture;
    update();
}

void ShapedWindow::setShape(const QRegion& shape)
{
    if (!testAttribute(Qt::WA_TranslucentBackground)) {
        setMask(shape);
        return;
    }
    m_shape = shape; // with a mask beside it, what was painted outside would stay
    update();
}

void ShapedWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (testAttribute(Qt::WA_TranslucentBackground)) {
        if (!m_shape.isEmpty()) {
            painter.setCompositionMode(QPainter::CompositionMode_Clear);
            painter.fillRect(rect(), Qt::transparent);
            painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
            painter.setClipRegion(m_shape);
        }
        painter.fillRect(rect(), palette().window());
    }
    if (!m_picture.isNull())
        painter.drawPixmap(0, 0, m_picture);
}

namespace {

void stayOnTop(QWidget& window, bool on)
{
    // Through the window handle where there is one: the widget's own way hides a window that is shown.
    window.overrideWindowFlags(window.windowFlags().setFlag(Qt::WindowStaysOnTopHint, on));
    if (QWindow* handle = window.windowHandle())
        handle->setFlag(Qt::WindowStaysOnTopHint, on);
}

} // namespace

void SetTopMost(QWidget& window)
{
    stayOnTop(window, true);
}

void ClearTopMost(QWidget& window)
{
    stayOnTop(window, false);
}

void SetOpacity(int value, QWidget& window)
{
    window.setWindowOpacity(std::clamp(value, 20, 255) / 255.0);
}

void SetFadeOpacity(int value, QWidget& window)
{
    window.setWindowOpacity(std::clamp(value, 0, 255) / 255.0);
    QGuiApplication::sync();
}

} // namespace varnhold
