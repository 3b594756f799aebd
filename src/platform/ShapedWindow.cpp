#include "platform/ShapedWindow.h"

#include <QGuiApplication>
#include <QPainter>

#include <algorithm>

namespace varnhold {

ShapedWindow::ShapedWindow(QWidget* owner, Qt::WindowFlags extra)
    : QWidget(owner, Qt::Window | Qt::FramelessWindowHint | Qt::WindowSystemMenuHint |
                         Qt::WindowMinimizeButtonHint | extra)
{
}

void ShapedWindow::setPicture(const QPixmap& picture)
{
    m_picture = picture;
    update();
}

void ShapedWindow::paintEvent(QPaintEvent*)
{
    if (m_picture.isNull())
        return;
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_picture);
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
