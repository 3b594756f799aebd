#include "covers/CoverBox.h"

#include "platform/HandCursors.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>

#include <cmath>
#include <utility>

namespace varnhold {

namespace {

constexpr int longestSide = 16384;

} // namespace

CoverBox::CoverBox(QWidget* parent) : QWidget(parent)
{
    setFocusPolicy(Qt::TabFocus);
    setCursor(imgCurser(0));
}

void CoverBox::setPicture(const QPixmap& picture)
{
    m_picture.setPicture(picture);
    m_read = {};
    update();
}

bool CoverBox::setPictureFrom(Reader read)
{
    const int pixelWidth = static_cast<int>(std::ceil(width() * devicePixelRatio()));
    const QImage picture = read({pixelWidth, longestSide});
    if (picture.isNull())
        return false;
    setPicture(QPixmap::fromImage(picture));
    m_read = std::move(read);
    return true;
}

QPixmap CoverBox::wholePicture() const
{
    const QImage whole = m_read ? m_read({}) : QImage();
    return whole.isNull() ? picture() : QPixmap::fromImage(whole);
}

void CoverBox::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    m_picture.paint(painter, rect());
    if (hasFocus()) {
        painter.setPen(palette().color(QPalette::Link));
        painter.drawRect(rect().adjusted(0, 0, -1, -1));
    }
}

void CoverBox::mousePressEvent(QMouseEvent*)
{
    setCursor(imgCurser(2));
}

void CoverBox::mouseReleaseEvent(QMouseEvent* event)
{
    setCursor(imgCurser(0));
    if (event->button() == Qt::LeftButton)
        Q_EMIT activated();
    else if (event->button() == Qt::RightButton)
        Q_EMIT menuWanted(event->globalPosition().toPoint());
}

void CoverBox::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    const bool activates = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
    event->setAccepted(activates);
    if (activates && !event->isAutoRepeat())
        Q_EMIT activated();
}

void CoverBox::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT menuWanted(mapToGlobal(rect().center()));
}

} // namespace varnhold
