#include "controls/CTooltip/TipMetrics.h"

#include <algorithm>

namespace varnhold {

namespace {

constexpr int tailLength = 14;
constexpr int tailBase = 14;
/// How far the tail's point stands from the body's left edge where there is room.
constexpr int tailOffset = 22;
/// Below the pointer a tip must clear the arrow.
constexpr int arrowHeight = 20;
constexpr int gap = 2;

} // namespace

QSize tipPadding(bool balloon)
{
    return balloon ? QSize(11, 9) : QSize(6, 4);
}

TipPlace placeTip(const TipRequest& request)
{
    TipPlace place;
    place.hasTail = request.balloon;
    const int tail = request.balloon ? tailLength : 0;
    const int height = request.body.height() + tail;

    // The points that a tip above and a tip below would touch.
    QPoint above = request.pointer - QPoint(0, gap);
    QPoint below = request.pointer + QPoint(0, arrowHeight);
    if (request.centered) {
        above = QPoint(request.owner.center().x(), request.owner.top() - gap);
        below = QPoint(request.owner.center().x(), request.owner.bottom() + 1 + gap);
    }
    const bool fitsAbove = above.y() - height >= request.screen.top();
    const bool fitsBelow = below.y() + height <= request.screen.bottom() + 1;
    const bool wantsAbove = request.balloon && !request.centered;
    const bool isAbove = wantsAbove ? fitsAbove || !fitsBelow : fitsAbove && !fitsBelow;
    const QPoint point = isAbove ? above : below;

    int left = point.x();
    if (request.centered)
        left -= request.body.width() / 2;
    else if (request.balloon)
        left -= tailOffset;
    const int lastLeft = request.screen.right() + 1 - request.body.width();
    left = std::max(request.screen.left(), std::min(left, lastLeft));
    const int lastTop = request.screen.bottom() + 1 - height;
    int top = isAbove ? point.y() - height : point.y();
    top = std::max(request.screen.top(), std::min(top, lastTop));

    place.window = QRect(left, top, request.body.width(), height);
    place.body = QRect(QPoint(0, isAbove ? 0 : tail), request.body);
    if (request.balloon) {
        const int firstBase = balloonRadius;
        const int lastBase = std::max(firstBase, request.body.width() - balloonRadius - tailBase);
        const int tip = std::clamp(point.x() - left, 0, std::max(0, request.body.width() - 1));
        const int base = std::clamp(tip, firstBase, lastBase);
        const int edge = isAbove ? place.body.bottom() : place.body.top();
        place.tail = {QPoint(base, edge), QPoint(tip, isAbove ? height - 1 : 0),
                      QPoint(base + tailBase, edge)};
    }
    return place;
}

} // namespace varnhold
