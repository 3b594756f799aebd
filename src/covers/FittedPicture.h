#pragma once

#include <QPixmap>
#include <QRect>

class QPainter;

namespace varnhold {

/// A picture that is drawn in the middle of an area with its proportions kept, sharp in the device's own
/// pixels. It is scaled once for the size that was painted last.
class FittedPicture
{
public:
    enum class Larger {
        Yes, ///< a small picture grows to the area
        No   ///< it keeps its own size in logical pixels
    };

    explicit FittedPicture(Larger larger) : m_larger(larger) {}

    [[nodiscard]] const QPixmap& picture() const { return m_picture; }
    void setPicture(const QPixmap& picture);
    void paint(QPainter& painter, const QRect& area);

private:
    Larger m_larger;
    QPixmap m_picture;
    QPixmap m_shown;
};

} // namespace varnhold
