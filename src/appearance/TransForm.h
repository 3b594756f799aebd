#pragma once

#include "controls/SystemColors.h"

#include <QImage>
#include <QRegion>

class QWidget;

namespace varnhold {

class MessageBoxes;

/// Magenta: the colour that is cut away from every window's picture.
inline constexpr ColorValue cutAwayColor = 0xFF00FF;

/// What of `size` stays of a window with this picture: exact to the pixel, equal to the region that
/// subtracting run by run gives. See rectanglesLeft() for `horizontal`.
[[nodiscard]] QRegion regionLeft(const QImage& picture, const QSize& size, ColorValue color,
                                 bool horizontal = true);

/// Cuts a widget to a shape; an empty one leaves it whole.
void cutTo(QWidget& widget, const QRegion& shape);

/// Cuts windows to the shape of their pictures. One object serves all windows.
class clsTransForm
{
public:
    explicit clsTransForm(MessageBoxes& boxes) : m_boxes(boxes) {}

    /// Shapes a window or a picture box by its property `Picture`; exactly one of the two is given. The mask
    /// comes from the picture's own pixels, one a logical pixel, whatever the device's ratio.
    void ShapeMe(ColorValue color, bool HorizontalScan, QWidget* Name1, QWidget* Name2 = nullptr);

private:
    MessageBoxes& m_boxes;
};

} // namespace varnhold
