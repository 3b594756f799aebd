#include "state/DisplayLocale.h"

#include <QLocale>

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
    const double rounded = withoutNegativeZero(std::round(value * factor) / factor);
    return displayLocale(grouping).toString(rounded, 'f', decimals);
}

QString shortNumber(double value, int decimals)
{
    const double factor = std::pow(10, decimals);
    const double rounded = withoutNegativeZero(std::nearbyint(value * factor) / factor);
    return displayLocale(Grouping::Off).toString(rounded, 'f', QLocale::FloatingPointShortest);
}

} // namespace varnhold
