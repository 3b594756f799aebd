#pragma once

#include "state/SettingsValues.h"

#include <optional>

namespace varnhold {

/// Names of sections and keys of Settings.ini, and the defaults of check boxes.
namespace settingsKeys {

QString section();     ///< of all keys below but the skin's
QString skinSection(); ///< of skinPath() and skinName()

QString check(Check check);
/// What an empty key means; no value: the box stays as it was designed.
std::optional<int> checkDefault(Check check);
QString order(Order which);
QString opacity(OpacityOf window);
QString certOption(int index);
QString soundFile(int index);
QString soundPath(int index);

} // namespace settingsKeys

} // namespace varnhold
