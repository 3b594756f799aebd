#pragma once

#include <QStringView>

namespace varnhold {

/// The number that a text begins with: leading blanks, tabs and line feeds skipped, then sign, digits,
/// fraction and exponent as far as they go. 0 for a text that begins with none.
double numericValue(QStringView text);

/// Nearest whole number, ties to even. RunTimeError 6 when it does not fit into 32 bits.
qint32 roundToLong(double value);

} // namespace varnhold
