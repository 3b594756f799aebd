#pragma once

#include <QString>

namespace varnhold {

/// Text to number as the settings and documents need it: strict, unlike a reader that takes what it can.
/// Blanks round the number, a sign, grouping commas before the point, an exponent and the prefixes &H and &O
/// are taken; always "." as the decimal sign. Throws RunTimeError 13 for any other text (the empty one too),
/// 6 for what does not fit.
double doubleFromText(const QString& text);

/// The same, rounded to a 16-bit whole number with ties to even.
qint16 integerFromText(const QString& text);

/// "True" or "False" in any case, or a number, of which 0 is false. Throws RunTimeError 13.
bool booleanFromText(const QString& text);

} // namespace varnhold
