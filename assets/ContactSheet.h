#pragma once

#include "TitleList.h"

#include <QImage>

namespace varnhold::assets {

/// Every skin's pictures side by side, `zoom` times as large, the windows on a light and on a dark desktop.
QImage contactSheet(int zoom);

/// All covers of the game database at their real size.
QImage coverSheet(const std::vector<Title>& titles);

} // namespace varnhold::assets
