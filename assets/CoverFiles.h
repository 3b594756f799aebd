#pragma once

#include "TitleList.h"

#include <QString>

#include <vector>

namespace varnhold::assets {

/// Writes what the sample service shows as covers: `folder`/covers/ID.jpg, 298 x 344, and
/// `folder`/scans/ID.jpg, 1190 x 1376 and progressive, for every title but those that the service has no
/// cover of. Throws std::runtime_error for a file that cannot be written.
void writeCoverFiles(const std::vector<Title>& titles, const QString& folder);

} // namespace varnhold::assets
