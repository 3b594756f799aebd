#include "platform/Conversion.h"

#include "platform/RunTimeError.h"

#include <QRegularExpression>

#include <cmath>
#include <limits>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

double fromPrefixed(QStringView digits, int base)
{
    bool ok = false;
    const quint32 bits = digits.toUInt(&ok, base);
    if (!ok)
        throw RunTimeError(errors::typeMismatch);
    // Four digits or fewer are a 16-bit pattern: &HFFFF is -1.
    return bits <= 0xFFFFU ? static_cast<qint16>(bits) : static_cast<qint32>(bits);
}

} // namespace

double doubleFromText(const QString& text)
{
    static const QRegularExpression form(
        uR"(\A([+-]?)(?:(\d[\d,]*)(\.\d*)?|(\.\d+))(?:[eEdD]([+-]?\d+))?\z)"_s);
    const QString trimmed = text.trimmed();
    if (trimmed.startsWith(u"&h"_s, Qt::CaseInsensitive))
        return fromPrefixed(QStringView(trimmed).mid(2), 16);
    if (trimmed.startsWith(u"&o"_s, Qt::CaseInsensitive))
        return fromPrefixed(QStringView(trimmed).mid(2), 8);
    const QRegularExpressionMatch match = form.match(trimmed);
    if (!match.hasMatch())
        throw RunTimeError(errors::typeMismatch);
    const QString exponent = match.captured(5);
    const QString plain = match.captured(1) + match.captured(2).remove(u',') + match.captured(3) +
                          match.captured(4) + (exponent.isEmpty() ? QString() : u'e' + exponent);
    const double value = plain.toDouble();
    if (!std::isfinite(value))
        throw RunTimeError(errors::overflow);
    return value;
}

qint16 integerFromText(const QString& text)
{
    const double rounded = std::nearbyint(doubleFromText(text));
    if (rounded < std::numeric_limits<qint16>::min() || rounded > std::numeric_limits<qint16>::max())
        throw RunTimeError(errors::overflow);
    return static_cast<qint16>(rounded);
}

bool booleanFromText(const QString& text)
{
    if (text.compare(u"true"_s, Qt::CaseInsensitive) == 0)
        return true;
    if (text.compare(u"false"_s, Qt::CaseInsensitive) == 0)
        return false;
    return doubleFromText(text) != 0;
}

} // namespace varnhold
