#pragma once

#include "controls/SystemColors.h"

class QWidget;

namespace varnhold {

/// What a broken-off skin leaves behind: each label and button of the window whose text cannot be told from
/// what lies under it takes a colour that can; `fore` where that does.
void makeTextsReadable(const QWidget& window, ColorValue fore);

} // namespace varnhold
