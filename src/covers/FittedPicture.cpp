#include "covers/FittedPicture.h"

#include "covers/FitPreviewImage.h"

#include <QPainter>

namespace varnhold {

void FittedPicture::setPicture(const QPixmap& picture)
{
    m_picture = picture;
    m_shown = {};
}

void FittedPicture::paint(QPainter& painter, const QRect& area)
{
    const QSize own = m_picture.size();
    const bool fits = own.width() <= area.width() && own.height() <= area.height();
    QRect place = fitPreviewImage(own, area.size());
    if (m_larger == Larger::No && fits)
        place = {QPoint((area.width() - own.width()) / 2, (area.height() - own.height()) / 2), own};
    if (place.isEmpty())
        return;
    const qreal ratio = painter.device()->devicePixelRatioF();
    const QSize pixels = (QSizeF(place.size()) * ratio).toSize();
    if (m_shown.size() != pixels) {
        m_shown = m_picture.scaled(pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        m_shown.setDevicePixelRatio(ratio);
    }
    painter.drawPixmap(area.topLeft() + place.topLeft(), m_shown);
}

} // namespace varnhold
