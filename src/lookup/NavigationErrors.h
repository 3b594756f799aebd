#pragma once

#include <QString>

#include <optional>

namespace varnhold {

/// Text for a navigation error; no value for a code that the table does not know.
std::optional<QString> navigationErrorText(int code);

} // namespace varnhold
