#include "covers/FitPreviewImage.h"

#include "platform/pictures/FittedSize.h"

namespace varnhold {

QRect fitPreviewImage(const QSize& picture, const QSize& area)
{
    const QSize fitted = fittedSize(picture, area);
    if (fitted.isEmpty())
        return {};
    const QSize spare = area - fitted;
    return {QPoint(spare.width() / 2, spare.height() / 2), fitted};
}

} // namespace varnhold
