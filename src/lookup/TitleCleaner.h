#pragma once

#include <QString>

namespace varnhold {

class Settings;

/// Takes the unwanted pieces out of a title, in their fixed order, while "Remove Unwanted" is on; otherwise
/// the title as it is. `gameIdText` is what the id box holds.
QString cleanTitle(QString title, const Settings& settings, const QString& gameIdText);

} // namespace varnhold
