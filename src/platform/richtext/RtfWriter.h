#pragma once

#include "platform/richtext/RichText.h"

namespace varnhold {

/// Writes Rich Text Format in 7-bit bytes: what Windows-1252 lacks goes as \u with "?" behind it. Reading it
/// back gives the same value.
QByteArray writeRtf(const RichText& text);

} // namespace varnhold
