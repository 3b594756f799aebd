#include "platform/HandCursors.h"

namespace varnhold {

QCursor imgCurser(int index)
{
    switch (index) {
    case 1:
        return Qt::ClosedHandCursor;
    case 2:
        return Qt::PointingHandCursor;
    default:
        return Qt::OpenHandCursor;
    }
}

} // namespace varnhold
