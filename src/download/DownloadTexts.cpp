#include "download/DownloadTexts.h"

#include "platform/RunTimeError.h"
#include "state/SizeText.h"

#include <QLocale>
#include <QTime>

#include <cmath>
#include <cstdlib>

namespace varnhold {

using namespace Qt::StringLiterals;

QString sizeWithBytes(qint32 bytes)
{
    return Size_Text(bytes) + u" ("_s + QString::number(bytes) + u" bytes)"_s;
}

QString kiloBytes(qint32 bytes)
{
    // + 0.0 makes a rounded -0 a plain 0.
    const double value = std::nearbyint(bytes / 1024.0 * 100) / 100 + 0.0;
    QLocale locale;
    locale.setNumberOptions(locale.numberOptions() | QLocale::OmitGroupSeparator);
    return locale.toString(value, 'f', QLocale::FloatingPointShortest) + u" kB"_s;
}

QString timeOfDay(qint32 seconds)
{
    return QTime::fromMSecsSinceStartOfDay(std::abs(seconds % 86400) * 1000).toString(u"hh:mm:ss"_s);
}

QString wholeNumber(double value)
{
    return QString::number(std::round(value) + 0.0, 'f', 0);
}

double quotient(double dividend, qint32 divisor)
{
    if (divisor == 0)
        throw RunTimeError(dividend == 0 ? errors::overflow : errors::divisionByZero);
    return dividend / divisor;
}

} // namespace varnhold
