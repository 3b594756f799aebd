#pragma once

#include <QIcon>
#include <QString>

namespace varnhold {

/// Small icon of an update list row by its key: "pkg", "pkg-plus", "pkg-red", "plus", "pkg-dl", "n/a". An
/// empty icon for any other key.
QIcon packageIcon(const QString& key);

} // namespace varnhold
