#pragma once

#include <QRect>
#include <QSize>
#include <QtGlobal>

#include <vector>

namespace varnhold {

/// Pixels of a picture as 0xAARRGGBB; alpha is ignored. Rows lie `stride` pixels apart.
struct PixelView
{
    const quint32* pixels;
    int width;
    int height;
    qsizetype stride;
};

/// What of a window of `size` stays when the runs of one colour (0x00RRGGBB) are cut away: rectangles in rows
/// from top to bottom and from left to right, equal rows joined, as QRegion::setRects() takes them. Outside
/// the picture nothing is cut.
///
/// The scan goes x in rows y whatever `horizontal` says, and one step past the window each way: a false
/// `horizontal` only swaps the two limits, and a run that is open at a row's end goes on in the next row and
/// counts there. This is meant.
std::vector<QRect> rectanglesLeft(const PixelView& picture, const QSize& window, quint32 color,
                                  bool horizontal);

} // namespace varnhold
