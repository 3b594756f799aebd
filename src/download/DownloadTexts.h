#pragma once

#include <QString>

namespace varnhold {

/// Texts of a download window's labels.

/// "1.72 MB (1805056 bytes)"
QString sizeWithBytes(qint32 bytes);

/// Two decimals at most, ties to even: "1762.75 kB"
QString kiloBytes(qint32 bytes);

/// "hh:mm:ss". Hours wrap at 24, and a negative time shows as the same time after midnight.
QString timeOfDay(qint32 seconds);

/// Without decimals, half away from zero.
QString wholeNumber(double value);

/// RunTimeError 11 for a divisor of 0, 6 when both are 0.
double quotient(double dividend, qint32 divisor);

} // namespace varnhold
