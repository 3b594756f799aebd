#include "controls/MorphListBox/MorphListCompare.h"

#include <QString>

#include <algorithm>
#include <charconv>

namespace varnhold {

namespace {

constexpr char16_t asciiLower(char16_t c)
{
    return c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c;
}

} // namespace

int compareLowered(QStringView left, QStringView right)
{
    const qsizetype common = std::min(left.size(), right.size());
    for (qsizetype i = 0; i < common; ++i) {
        const char16_t a = left[i].unicode();
        const char16_t b = right[i].unicode();
        if (a == b && a < 0x80)
            continue;
        if (a >= 0x80 || b >= 0x80)
            return QString::compare(left.mid(i).toString().toLower(), right.mid(i).toString().toLower());
        const int difference = int(asciiLower(a)) - int(asciiLower(b));
        if (difference != 0)
            return difference;
    }
    // A rest that lower-cases to nothing does not exist, so the longer text comes behind.
    return left.size() < right.size() ? -1 : int(left.size() > right.size());
}

double leadingNumber(QStringView text)
{
    char digits[64];
    size_t length = 0;
    for (const QChar c : text.trimmed()) {
        const char16_t unit = c.unicode();
        const bool numeral = (unit >= u'0' && unit <= u'9') || unit == u'.' || unit == u'-' || unit == u'e' ||
                             unit == u'E' || (unit == u'+' && length > 0);
        if (!numeral && !(unit == u'+' && length == 0))
            break;
        if (unit == u'+' && length == 0)
            continue; // from_chars knows no plus in front
        if (length == sizeof digits)
            break;
        digits[length++] = char(unit);
    }
    double value = 0;
    std::from_chars(digits, digits + length, value);
    return value;
}

int compareItems(QStringView left, QStringView right, bool numeric)
{
    if (numeric) {
        const double a = leadingNumber(left);
        const double b = leadingNumber(right);
        return a < b ? -1 : int(a > b);
    }
    const int lowered = compareLowered(left, right);
    return lowered != 0 ? lowered : left.compare(right);
}

} // namespace varnhold
