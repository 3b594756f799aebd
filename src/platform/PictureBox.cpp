#include "platform/PictureBox.h"

#include <QPainter>

namespace varnhold {

void PictureBox::setPicture(const QPixmap& picture)
{
    m_picture = picture;
    update();
}

void PictureBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_picture);
}

} // namespace varnhold
