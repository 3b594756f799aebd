#pragma once

#include "controls/CTooltip/TipMetrics.h"
#include "controls/SystemColors.h"

#include <QColor>
#include <QFont>
#include <QImage>
#include <QString>

class QPainter;

namespace varnhold {

/// What a tip shows. The icon stands beside the title and goes without one.
struct TipContent
{
    int icon = 0; ///< 0 none, 1 information, 2 warning, 3 error; 4 to 6 the same, large
    QString title;
    QString text; ///< lines, tabs and runs of blanks are kept; long lines wrap
    QFont font;   ///< the title is set in its bold
    bool balloon = false;
    ColorValue textColor = 0; ///< 0 is the platform's, or what can be read on the back colour
    ColorValue backColor = 0; ///< 0 is the platform's
};

[[nodiscard]] QColor tipTextColor(const TipContent& content);
[[nodiscard]] QColor tipBackColor(const TipContent& content);

/// Size of the body with its padding, at most `most` large: longer lines wrap, and lines that are too many
/// are cut off.
[[nodiscard]] QSize tipBodySize(const TipContent& content, const QSize& most);

/// The tip's outline as a picture: opaque inside, transparent outside, nothing between.
[[nodiscard]] QImage tipShape(const TipPlace& place, bool balloon);

/// Draws the tip into its window's coordinates. `shape` is that of the same place.
void paintTip(QPainter& painter, const TipContent& content, const TipPlace& place, const QImage& shape);

} // namespace varnhold
