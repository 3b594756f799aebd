#pragma once

#include <QSize>

namespace varnhold {

/// The largest size of a picture that fits in `area` with its proportions kept, scaled up or down: rounded,
/// and at least a pixel, or a very long picture would vanish. Empty for an empty picture or area.
QSize fittedSize(const QSize& picture, const QSize& area);

} // namespace varnhold
