#pragma once

#include <QIcon>
#include <QString>

namespace varnhold {

/// Small icon of a cell by its key: of the update list "pkg", "pkg-plus", "pkg-red", "plus", "pkg-dl", "n/a";
/// of saved links "psn", "cover", "pkg", "version", "size", "binary", "url". An empty icon for any other key.
QIcon packageIcon(const QString& key);

} // namespace varnhold
