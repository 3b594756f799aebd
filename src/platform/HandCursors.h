#pragma once

#include <QCursor>

namespace varnhold {

/// imgCurser: 0 open hand, 1 closed hand, 2 pointing hand.
QCursor imgCurser(int index);

} // namespace varnhold
