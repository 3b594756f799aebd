#pragma once

#include <QRect>
#include <QSize>

namespace varnhold {

/// Where a picture lies in `area`: as large as fits with its proportions kept, scaled up or down, in the
/// middle. Empty for an empty picture.
QRect fitPreviewImage(const QSize& picture, const QSize& area);

} // namespace varnhold
