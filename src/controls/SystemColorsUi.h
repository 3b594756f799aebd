#pragma once

#include "controls/SystemColors.h"

#include <QColor>

namespace varnhold {

/// The opaque colour to paint with; system indexes are resolved.
[[nodiscard]] inline QColor toQColor(ColorValue color)
{
    const ColorValue resolved = GetLngColor(color);
    return QColor(redOf(resolved), greenOf(resolved), blueOf(resolved));
}

/// The plain colour value of a painted colour; its alpha is dropped.
[[nodiscard]] inline ColorValue toColorValue(const QColor& color)
{
    return colorOf(color.red(), color.green(), color.blue());
}

} // namespace varnhold
