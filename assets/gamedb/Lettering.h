#pragma once

#include "CoverCanvas.h"

#include <QStringList>

namespace varnhold::assets {

/// Capital letters of our own, drawn as strokes: as large as the area's width allows, lines left-aligned from
/// its top. Returns the y below the last line. Throws std::runtime_error for a character that has no shape.
int drawLettering(CoverCanvas& canvas, const QStringList& lines, const Area& area, Color color);

/// The text in capital letters, without what has no shape; empty where next to nothing has one.
QString drawableText(const QString& text);

} // namespace varnhold::assets
