#pragma once

#include <QString>

namespace varnhold {

/// The one source of how numbers are shown: digits, grouping and decimal sign of the default QLocale, which
/// is the system's. Files never use it: their numbers are plain.

enum class Grouping { Off, On };

/// Rounded half away from zero, with exactly that many decimals; never "-0".
QString fixedNumber(double value, int decimals, Grouping grouping);

/// Rounded to at most that many decimals with ties to even, no trailing zeros, no grouping; never "-0".
QString shortNumber(double value, int decimals);

} // namespace varnhold
