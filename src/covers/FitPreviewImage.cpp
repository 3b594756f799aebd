#include "covers/FitPreviewImage.h"

#include <algorithm>

namespace varnhold {

namespace {

/// `length` times `numerator` / `denominator`, rounded; at least a pixel, or a very long picture would
/// vanish.
int inProportion(int length, int numerator, int denominator)
{
    const qint64 product = qint64{length} * numerator;
    return static_cast<int>(std::max<qint64>(1, (product + denominator / 2) / denominator));
}

} // namespace

QRect fitPreviewImage(const QSize& picture, const QSize& area)
{
    if (picture.isEmpty() || area.isEmpty())
        return {};
    QSize fitted(area.width(), inProportion(area.width(), picture.height(), picture.width()));
    if (fitted.height() > area.height())
        fitted = {inProportion(area.height(), picture.width(), picture.height()), area.height()};
    const QSize spare = area - fitted;
    return {QPoint(spare.width() / 2, spare.height() / 2), fitted};
}

} // namespace varnhold
