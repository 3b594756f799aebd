#include "state/DisplayLocale.h"

#include <array>
#include <cmath>

namespace varnhold {

namespace {

constexpr std::array powersOfTen = {1., 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9};

QLocale displayLocale(Grouping grouping)
{
    QLocale locale;
    if (grouping == Grouping::Off)
        locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    return locale;
}

double withoutNegativeZero(double value)
{
    return value + 0.0;
}

} // namespace

NumberFormat::NumberFormat(Grouping grouping)
    : m_locale(displayLocale(grouping)),
      m_point(m_locale.decimalPoint()),
      m_hasPlainDigits(m_locale.zeroDigit() == u"0")
{
}

void NumberFormat::appendFixed(QString& text, double value, int decimals) const
{
    const bool known = decimals >= 0 && static_cast<std::size_t>(decimals) < powersOfTen.size();
    const double factor = known ? powersOfTen.at(static_cast<std::size_t>(decimals)) : std::pow(10, decimals);
    const double scaled = std::round(value * factor);
    if (!known || !m_hasPlainDigits || !(scaled >= 0 && scaled < 1000 * factor)) {
        text.append(m_locale.toString(withoutNegativeZero(scaled / factor), 'f', decimals));
        return;
    }
    // Too small to group: whole digits, last one first, at a fraction of the general conversion's time.
    std::array<char16_t, 16> digits;
    auto first = digits.end();
    auto left = static_cast<quint64>(scaled);
    for (int place = 0; place < decimals; ++place, left /= 10)
        *--first = static_cast<char16_t>(u'0' + left % 10);
    const auto fraction = first;
    do
        *--first = static_cast<char16_t>(u'0' + left % 10);
    while ((left /= 10) > 0);
    text.append(QStringView(first, fraction));
    if (decimals > 0)
        text.append(m_point).append(QStringView(fraction, digits.end()));
}

QString fixedNumber(double value, int decimals, Grouping grouping)
{
    QString text;
    NumberFormat(grouping).appendFixed(text, value, decimals);
    return text;
}

QString shortNumber(double value, int decimals)
{
    const double factor = std::pow(10, decimals);
    const double rounded = withoutNegativeZero(std::nearbyint(value * factor) / factor);
    return displayLocale(Grouping::Off).toString(rounded, 'f', QLocale::FloatingPointShortest);
}

} // namespace varnhold
