#include "platform/Conversion.h"

#include "platform/RunTimeError.h"

#include <QByteArray>

#include <cmath>
#include <limits>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

double fromPrefixed(QStringView digits, int base)
{
    const bool startsWithDigit = !digits.isEmpty() && digits.front().isLetterOrNumber();
    bool ok = false;
    const quint32 bits = digits.toUInt(&ok, base);
    if (!ok || !startsWithDigit)
        throw RunTimeError(errors::typeMismatch);
    // What fits 16 bits is a 16-bit pattern: &HFFFF is -1.
    return bits <= 0xFFFFU ? static_cast<qint16>(bits) : static_cast<qint32>(bits);
}

/// Reads one decimal number from a text from left to right, and keeps it in the form that the library reads.
class Scanner
{
public:
    explicit Scanner(QStringView text) : m_rest(text) { m_plain.reserve(text.size()); }

    double scan();

private:
    void takeSign();
    qsizetype takeDigits(bool grouped);
    bool take(char16_t small, char16_t large)
    {
        const bool is = !m_rest.isEmpty() && (m_rest.front() == small || m_rest.front() == large);
        if (is)
            m_rest = m_rest.mid(1);
        return is;
    }

    QStringView m_rest;
    QByteArray m_plain;
};

void Scanner::takeSign()
{
    if (take(u'-', u'-'))
        m_plain.append('-');
    else
        take(u'+', u'+');
}

/// The number of digits taken; grouping commas are passed over, but not before the first digit.
qsizetype Scanner::takeDigits(bool grouped)
{
    qsizetype taken = 0;
    for (; !m_rest.isEmpty(); m_rest = m_rest.mid(1)) {
        const QChar c = m_rest.front();
        if (isDigit(c)) {
            m_plain.append(static_cast<char>(c.unicode()));
            ++taken;
        } else if (!grouped || taken == 0 || c != u',') {
            break;
        }
    }
    return taken;
}

double Scanner::scan()
{
    takeSign();
    qsizetype digits = takeDigits(true);
    if (take(u'.', u'.')) {
        m_plain.append('.');
        digits += takeDigits(false);
    }
    bool complete = digits > 0;
    if (complete && (take(u'e', u'E') || take(u'd', u'D'))) {
        m_plain.append('e');
        takeSign();
        complete = takeDigits(false) > 0;
    }
    if (!complete || !m_rest.isEmpty())
        throw RunTimeError(errors::typeMismatch);
    bool fits = false;
    const double value = m_plain.toDouble(&fits);
    if (!fits || !std::isfinite(value))
        throw RunTimeError(errors::overflow);
    return value;
}

} // namespace

double doubleFromText(const QString& text)
{
    const QStringView trimmed = QStringView(text).trimmed();
    if (trimmed.startsWith(u"&h", Qt::CaseInsensitive))
        return fromPrefixed(trimmed.mid(2), 16);
    if (trimmed.startsWith(u"&o", Qt::CaseInsensitive))
        return fromPrefixed(trimmed.mid(2), 8);
    return Scanner(trimmed).scan();
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
