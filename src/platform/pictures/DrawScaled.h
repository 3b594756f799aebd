#pragma once

#include <QRect>
#include <QtGlobal>

namespace varnhold {

/// Pixels in memory, 0xAARRGGBB with the colours multiplied by alpha; `stride` in pixels from row to row.
template <typename Pixel> struct PixelRows
{
    Pixel* pixels = nullptr;
    int width = 0;
    int height = 0;
    qsizetype stride = 0;

    [[nodiscard]] Pixel* row(int y) const { return pixels + stride * y; }
};

/// Where a picture of that size is drawn: over all of the target or, with `aspect`, as large as it fits with
/// its proportions kept, in the middle. Halves round to even, and a side is at least a pixel.
QRect scaledPlace(const QSize& picture, const QSize& target, bool aspect);

/// Draws the picture over what the target shows, scaled into its place by bicubic interpolation (the cubic
/// that runs through its samples, a = -0.5), drawn out over all that falls together where it shrinks, the
/// edges' own pixels alone counting at the edges. Nothing for an empty picture or target.
void drawScaled(const PixelRows<const quint32>& picture, const PixelRows<quint32>& target, bool aspect);

} // namespace varnhold
