#pragma once

#include "controls/SystemColors.h"
#include "controls/SystemEdge.h"

#include <QPoint>
#include <QSize>
#include <QString>

namespace varnhold {

/// A rectangle in logical pixels whose right and bottom lie just outside it. Empty when either is not past
/// its opposite.
struct BarRect
{
    int left = 0;
    int top = 0;
    int right = 0;
    int bottom = 0;

    [[nodiscard]] constexpr int width() const { return right - left; }
    [[nodiscard]] constexpr int height() const { return bottom - top; }
    [[nodiscard]] constexpr bool isEmpty() const { return right <= left || bottom <= top; }
    friend constexpr bool operator==(const BarRect&, const BarRect&) = default;
};

/// What a bar is drawn on. Rectangles may be empty or reach outside: nothing is drawn then, or the part
/// inside. Colours are plain or system colours.
class ProgressSurface
{
public:
    virtual ~ProgressSurface() = default;

    [[nodiscard]] virtual QSize clientSize() const = 0;
    virtual void fillRect(const BarRect& rect, ColorValue color) = 0;
    /// A one-pixel line, horizontal or vertical; its last pixel is left out.
    virtual void drawLine(QPoint from, QPoint to, ColorValue color) = 0;
    virtual void drawEdge(const BarRect& rect, EdgeKind kind) = 0;
    /// Hatch by the platform's number (0 to 5, others solid) on a background.
    virtual void fillHatch(const BarRect& rect, int style, ColorValue color, ColorValue background) = 0;
    /// Tiles the control's picture from the client's corner; nothing when there is none.
    virtual void fillPicture(const BarRect& rect) = 0;
    /// Mean colour of the picture, white when there is none.
    [[nodiscard]] virtual ColorValue pictureColor() const = 0;
    [[nodiscard]] virtual QSize textSize(const QString& text) const = 0;
    /// Text with a transparent background whose top left is at the rectangle's, cut off at `clip`.
    virtual void drawText(const BarRect& rect, const BarRect& clip, const QString& text,
                          ColorValue color) = 0;
};

} // namespace varnhold
