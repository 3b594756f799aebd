#include "controls/MorphListBox/MorphListCompare.h"

#include <QString>

#include <algorithm>
#include <bit>
#include <charconv>

namespace varnhold {

namespace {

constexpr char16_t asciiLower(char16_t c)
{
    return c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c;
}

/// The front of a text as two numbers that compare as compareItems() does, so that few pairs of a sort need
/// their texts. Equal keys say nothing.
struct SortKey
{
    quint64 high = 0;
    quint64 low = 0;
    int index = 0;
};

SortKey keyOf(const QString& text, bool numeric, int index)
{
    SortKey key;
    key.index = index;
    if (numeric) {
        // The bits of a double ascend with it, once the sign is turned and negative ones are inverted. Adding
        // 0 makes one zero of both.
        const auto bits = std::bit_cast<quint64>(leadingNumber(text) + 0.0);
        key.high = (bits >> 63U) != 0 ? ~bits : bits | quint64(1) << 63U;
        return key;
    }
    constexpr qsizetype length = 16;
    const QStringView front = QStringView(text).left(length);
    const bool plain = std::all_of(front.begin(), front.end(), [](QChar c) { return c.unicode() < 0x80; });
    const QString lowered = plain ? QString() : front.toString().toLower();
    const QStringView shown = plain ? front : QStringView(lowered);
    bool foreign = false; // from the first such character on all keys are alike
    for (qsizetype i = 0; i < length; ++i) {
        const char16_t unit = i < shown.size() ? asciiLower(shown[i].unicode()) : u'\0';
        foreign = foreign || unit >= 0x80;
        quint64& half = i < length / 2 ? key.high : key.low;
        half = half << 8U | (foreign ? 0xFFU : unit);
    }
    return key;
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

std::vector<int> sortedOrder(const QStringList& texts, bool numeric, bool descending)
{
    std::vector<SortKey> keys;
    keys.reserve(size_t(texts.size()));
    for (const QString& text : texts)
        keys.push_back(keyOf(text, numeric, int(keys.size())));
    const auto before = [&](const SortKey& left, const SortKey& right) {
        if (left.high != right.high)
            return left.high < right.high;
        if (left.low != right.low)
            return left.low < right.low;
        return !numeric && compareItems(texts.at(left.index), texts.at(right.index), false) < 0;
    };
    if (descending) {
        std::stable_sort(keys.begin(), keys.end(),
                         [&](const SortKey& left, const SortKey& right) { return before(right, left); });
    } else {
        std::stable_sort(keys.begin(), keys.end(), before);
    }
    std::vector<int> order;
    order.reserve(keys.size());
    for (const SortKey& key : keys)
        order.push_back(key.index);
    return order;
}

} // namespace varnhold
