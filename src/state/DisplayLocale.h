#pragma once

#include <QLocale>
#include <QString>

namespace varnhold {

/// The one source of how numbers are shown: digits, grouping and decimal sign of the default QLocale, which
/// is the system's. Files never use it: their numbers are plain.

enum class Grouping { Off, On };

/// The locale's signs, read once: asking for them takes longer than writing a number. For long lists.
class NumberFormat
{
public:
    explicit NumberFormat(Grouping grouping);

    /// Appends the value, rounded half away from zero, with exactly that many decimals; never "-0".
    void appendFixed(QString& text, double value, int decimals) const;

private:
    QLocale m_locale;
    QString m_point;
    bool m_hasPlainDigits;
};

/// A single number as NumberFormat appends it.
QString fixedNumber(double value, int decimals, Grouping grouping);

/// Rounded to at most that many decimals with ties to even, no trailing zeros, no grouping; never "-0".
QString shortNumber(double value, int decimals);

} // namespace varnhold
