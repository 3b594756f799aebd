#pragma once

#include <QString>
#include <QStringView>

#include <array>

namespace varnhold {

/// The image strip of the game list: file names in a skin folder, each with its leading "/", in the order of
/// their indexes.
extern const std::array<QString, 7> regionImageFiles;

/// Index of an id's region in the strip, 0 to 6, by its leading letters in upper case.
int regionImage(QStringView gameId);

} // namespace varnhold
