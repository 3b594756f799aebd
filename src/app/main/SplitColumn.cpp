#include "app/main/SplitColumn.h"

#include "app/main/MainLayout.h"
#include "platform/Twips.h"

#include <QMouseEvent>
#include <QWidget>

namespace varnhold {

SplitColumn::SplitColumn(QWidget& upper, QWidget& bar, QWidget& lower, int floorTwips)
    : m_upper(upper), m_bar(bar), m_lower(lower), m_floor(floorTwips)
{
    bar.setCursor(Qt::SplitVCursor);
    bar.installEventFilter(this);
}

void SplitColumn::setSize(int widthPixels, int heightTwips)
{
    m_width = widthPixels;
    m_height = heightTwips;
}

void SplitColumn::lay()
{
    const SplitPlaces places = splitColumn(m_barTop, m_floor, 0, m_height);
    m_barTop = places.barTop;
    // Edges are rounded, not lengths, so that no gap opens between the three.
    const int barTop = pixelsFromTwips(places.barTop);
    const int lowerTop = pixelsFromTwips(places.lowerTop);
    m_upper.setGeometry(0, 0, m_width, barTop);
    m_bar.setGeometry(0, barTop, m_width, lowerTop - barTop);
    m_lower.setGeometry(0, lowerTop, m_width, pixelsFromTwips(m_height) - lowerTop);
}

bool SplitColumn::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::MouseMove) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if ((mouse->buttons() & Qt::LeftButton) != 0)
            m_barTop += twipsFromPixels(mouse->position().y());
    } else if (event->type() != QEvent::MouseButtonRelease) {
        return false;
    }
    Q_EMIT barMoved();
    return true;
}

} // namespace varnhold
