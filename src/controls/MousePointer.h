#pragma once

class QPixmap;
class QWidget;

namespace varnhold {

/// Gives the widget the pointer of that number: 0 default, 1 arrow, 2 cross, 3 I-beam, 5 size all,
/// 6 size NE SW, 7 size N S, 8 size NW SE, 9 size W E, 10 up arrow, 11 busy, 12 no drop, 13 busy arrow,
/// 14 question arrow, 15 size all, 99 the icon (its middle points). Any other number, or 99 without an icon,
/// is the default.
void applyMousePointer(QWidget& widget, int pointer, const QPixmap& icon);

} // namespace varnhold
