#include "app/main/SplitColumn.h"

#include "app/main/MainLayout.h"
#include "platform/Accessible.h"
#include "platform/Twips.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWidget>

namespace varnhold {

namespace {

constexpr int keyStep = 8; // pixels

} // namespace

SplitColumn::SplitColumn(QWidget& upper, QWidget& bar, QWidget& lower, int floorTwips)
    : m_upper(upper), m_bar(bar), m_lower(lower), m_floor(floorTwips)
{
    bar.setCursor(Qt::SplitVCursor);
    bar.setFocusPolicy(Qt::TabFocus);
    tellAssistiveTools(bar, {.role = QAccessible::Splitter,
                             .value = AccessibleTraits::Value{
                                 .current = [this] { return m_bar.y(); },
                                 .move = [this](int top) { moveBar(twipsFromPixels(top)); },
                                 .minimum = [this] { return pixelsFromTwips(m_floor); },
                                 .maximum = [this] { return pixelsFromTwips(m_height - splitBarHeight); }}});
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

void SplitColumn::moveBar(double twips)
{
    m_barTop = twips;
    Q_EMIT barMoved();
}

bool SplitColumn::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Up && key != Qt::Key_Down)
            return false;
        moveBar(m_barTop + twipsFromPixels(key == Qt::Key_Up ? -keyStep : keyStep));
        return true;
    }
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
