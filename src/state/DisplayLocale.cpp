#include "state/DisplayLocale.h"

#include <QLocale>

#include <array>
#include <cmath>

namespace varnhold {

namespace {

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

QString fixedNumber(double value, int decimals, Grouping grouping)
{
    const double factor = std::pow(10, decimals);
    const double scaled = std::round(value * factor);
    const QLocale locale;
    // Too small to group: put together from whole digits, at a fraction of the general conversion's time. A
    // long update list is formatted row by row.
    if (scaled >= 0 && scaled < 1000 * factor && decimals <= 9 && locale.zeroDigit() == u"0") {
        const QString point = locale.decimalPoint();
        std::array<QChar, 32> digits;
        std::size_t first = digits.size();
        auto left = static_cast<quint64>(scaled);
        for (int place = 0; place <= decimals || left > 0; ++place, left /= 10) {
            if (place == decimals && decimals > 0)
                for (qsizetype i = point.size(); i > 0; --i)
                    digits.at(--first) = point.at(i - 1);
            digits.at(--first) = QChar(u'0' + static_cast<char16_t>(left % 10));
        }
        return QString(digits.data() + first, static_cast<qsizetype>(digits.size() - first));
    }
    const double rounded = withoutNegativeZero(scaled / factor);
    return displayLocale(grouping).toString(rounded, 'f', decimals);
}

QString shortNumber(double value, int decimals)
{
    const double factor = std::pow(10, decimals);
    const double rounded = withoutNegativeZero(std::nearbyint(value * factor) / factor);
    return displayLocale(Grouping::Off).toString(rounded, 'f', QLocale::FloatingPointShortest);
}

} // namespace varnhold
