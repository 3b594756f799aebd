#pragma once

#include "platform/richtext/RichText.h"

namespace varnhold {

/// Writes Rich Text Format in 7-bit bytes: what Windows-1252 lacks goes as \u with "?" behind it. Reading it
/// back gives the same value, for a value as readRtf gives it: no empty runs, none of the same format side by
/// side, lengths within 22 inches, tabs in rising order and at most 32, verbatim groups whole. Of a field one
/// of whose two runs is gone, the other is written on its own.
QByteArray writeRtf(const RichText& text);

} // namespace varnhold
