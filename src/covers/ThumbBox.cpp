#include "covers/ThumbBox.h"

#include <QMouseEvent>
#include <QPainter>

namespace varnhold {

ThumbBox::ThumbBox(QWidget* parent) : QWidget(parent) {}

void ThumbBox::setPicture(const QPixmap& picture)
{
    if (picture.cacheKey() == m_picture.picture().cacheKey())
        return;
    m_picture.setPicture(picture);
    update();
}

void ThumbBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    m_picture.paint(painter, rect());
}

void ThumbBox::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT doubleClicked();
}

} // namespace varnhold
