#pragma once

#include <QImage>

namespace varnhold::assets {

/// Every skin's pictures side by side, `zoom` times as large, the windows on a light and on a dark desktop.
QImage contactSheet(int zoom);

} // namespace varnhold::assets
