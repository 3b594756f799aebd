#include "download/NumericValue.h"

#include "platform/RunTimeError.h"

#include <QString>

#include <cmath>
#include <limits>

namespace varnhold {

namespace {

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

} // namespace

double numericValue(QStringView text)
{
    qsizetype at = 0;
    const auto skipDigits = [&] {
        while (at < text.size() && isDigit(text[at]))
            ++at;
    };
    const auto skipSign = [&] {
        if (at < text.size() && (text[at] == u'+' || text[at] == u'-'))
            ++at;
    };

    while (at < text.size() && (text[at] == u' ' || text[at] == u'\t' || text[at] == u'\n'))
        ++at;
    const qsizetype start = at;
    skipSign();
    skipDigits();
    if (at < text.size() && text[at] == u'.') {
        ++at;
        skipDigits();
    }
    qsizetype end = at;
    if (at < text.size() && (text[at] == u'e' || text[at] == u'E')) {
        ++at;
        skipSign();
        const qsizetype exponent = at;
        skipDigits();
        if (at > exponent)
            end = at;
    }

    // 0 as well for a sign or a point alone; infinity for an exponent out of range, which overflows later on.
    return text.sliced(start, end - start).toDouble();
}

qint32 roundToLong(double value)
{
    const double rounded = std::nearbyint(value);
    if (!(rounded >= std::numeric_limits<qint32>::min() && rounded <= std::numeric_limits<qint32>::max()))
        throw RunTimeError(errors::overflow);
    return static_cast<qint32>(rounded);
}

} // namespace varnhold
