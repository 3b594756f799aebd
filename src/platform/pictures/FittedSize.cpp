#include "platform/pictures/FittedSize.h"

#include <algorithm>

namespace varnhold {

namespace {

/// `length` times `numerator` / `denominator`, rounded; at least a pixel.
int inProportion(int length, int numerator, int denominator)
{
    const qint64 product = qint64{length} * numerator;
    return static_cast<int>(std::max<qint64>(1, (product + denominator / 2) / denominator));
}

} // namespace

QSize fittedSize(const QSize& picture, const QSize& area)
{
    if (picture.isEmpty() || area.isEmpty())
        return {};
    const QSize fitted(area.width(), inProportion(area.width(), picture.height(), picture.width()));
    if (fitted.height() <= area.height())
        return fitted;
    return {inProportion(area.height(), picture.width(), picture.height()), area.height()};
}

} // namespace varnhold
