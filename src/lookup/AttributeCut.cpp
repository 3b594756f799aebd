#include "lookup/AttributeCut.h"

#include "platform/CharacterSearch.h"

#include <algorithm>
#include <cstring>
#include <limits>
#include <string_view>
#include <utility>

namespace varnhold {

namespace {

// A marker is one of these and =". Longer attribute names that end alike are taken for it, which is meant.
constexpr std::array<std::u16string_view, static_cast<std::size_t>(PackageAttribute::Count)> names = {
    u"<package version", u"ps3_system_ver", u"size", u"sha1sum", u"url"};
constexpr std::u16string_view opening = u"  <?xml version=";
constexpr std::u16string_view titleTag = u"<TITLE>";

constexpr std::size_t mostPieces = std::size_t{std::numeric_limits<qint16>::max()} + 2;

/// Characters of rewritten text that are read at a time: few enough to be in the nearest cache still.
constexpr std::ptrdiff_t stretch = 4096;

bool startsWith(const char16_t* at, const char16_t* end, std::u16string_view expected)
{
    return static_cast<std::size_t>(end - at) >= expected.size() &&
           std::memcmp(at, expected.data(), expected.size() * sizeof(char16_t)) == 0;
}

/// The attribute whose name ends at a place; names.size() when there is none.
std::size_t attributeBefore(const char16_t* begin, const char16_t* place)
{
    for (std::size_t attribute = 0; attribute < names.size(); ++attribute) {
        const std::u16string_view name = names[attribute];
        if (static_cast<std::size_t>(place - begin) >= name.size() && place[-1] == name.back() &&
            startsWith(place - name.size(), place, name))
            return attribute;
    }
    return names.size();
}

/// Copies a text without the viewer's marks: first every opening goes, then every CR LF, also one that only
/// meets when an opening is gone. Tells `read` how far the copy has come, once a stretch and at the end.
template <typename Read> void copyWithoutMarks(std::u16string_view text, char16_t* out, const Read& read)
{
    constexpr std::ptrdiff_t mark = 3;
    static_assert(opening[mark] == u'?');
    const char16_t* at = text.data();
    const char16_t* const end = at + text.size();
    const char16_t* lastRead = out;
    for (;;) {
        const char16_t* const stop =
            findWhere(at, end, [](const auto& next) { return next(0) == u'\r' || next(0) == u'?'; });
        out = std::copy(at, stop, out);
        if (stop == end)
            break;
        at = stop + 1;
        if (*stop == u'\r') {
            const char16_t* feed = at;
            while (startsWith(feed, end, opening))
                feed += opening.size();
            if (feed < end && *feed == u'\n')
                at = feed + 1;
            else
                *out++ = u'\r';
        } else if (stop - text.data() >= mark && startsWith(stop - mark, end, opening)) {
            out -= mark; // the copy has its front already
            at = stop - mark + opening.size();
        } else {
            *out++ = u'?';
        }
        if (out - lastRead >= stretch) {
            read(out);
            lastRead = out;
        }
    }
    read(out);
}

} // namespace

AttributeCut::AttributeCut(QString& text)
{
    const QString source = std::exchange(text, QString(text.size(), Qt::Uninitialized));
    auto* const begin = reinterpret_cast<char16_t*>(text.data());
    m_begin = m_next = m_nextTitle = m_valueStart = begin;
    // Room for as many packages as such a text holds; what is not used is never touched.
    constexpr qsizetype shortestPackage = 128;
    for (std::vector<QStringView>& values : m_values)
        values.reserve(std::min(mostPieces, static_cast<std::size_t>(source.size() / shortestPackage) + 2));
    const char16_t* end = begin;
    copyWithoutMarks({QStringView(source).utf16(), static_cast<std::size_t>(source.size())}, begin,
                     [&](const char16_t* copied) {
                         end = copied;
                         findTitleUpTo(end);
                         cutUpTo(end);
                     });
    closeValue(end);
    text.truncate(end - begin);
}

void AttributeCut::findTitleUpTo(const char16_t* end)
{
    constexpr auto length = static_cast<std::ptrdiff_t>(titleTag.size());
    while (m_titleStart < 0 && end - m_nextTitle >= length) {
        const char16_t* const last = end - length + 1;
        const char16_t* const tag = findWhere(m_nextTitle, last, [](const auto& next) {
            return next(0) == titleTag[0] && next(1) == titleTag[1];
        });
        if (tag < last && startsWith(tag, end, titleTag))
            m_titleStart = tag - m_begin;
        m_nextTitle = std::min(tag + 1, last);
    }
}

/// Goes from a value's end to the next marker and back. Waits where the text at hand decides nothing yet.
void AttributeCut::cutUpTo(const char16_t* end)
{
    for (;;) {
        if (m_openValue != none) {
            m_next = findCharacter(m_next, end, u'"');
            if (m_next == end)
                return;
            closeValue(m_next);
            // The quote may be a marker's own, which counts though the rest of it stands inside the value.
            m_next = std::max(m_next - 1, m_begin);
        }
        if (end - m_next < 2)
            return;
        m_next =
            findWhere(m_next, end - 1, [](const auto& next) { return next(0) == u'=' && next(1) == u'"'; });
        if (m_next == end - 1)
            return;
        const std::size_t attribute = attributeBefore(m_begin, m_next);
        m_next += 2;
        if (attribute < attributes)
            openValue(attribute);
    }
}

void AttributeCut::openValue(std::size_t attribute)
{
    std::vector<QStringView>& values = m_values.at(attribute);
    if (values.size() == mostPieces)
        return;
    // A piece ends where the next marker begins, though its first quote may be that marker's own.
    constexpr qsizetype signAndQuote = 2;
    const qsizetype marker = m_next - signAndQuote - names.at(attribute).size() - values.back().utf16();
    values.back() = values.back().first(std::min(values.back().size(), marker));
    m_openValue = attribute;
    m_valueStart = m_next;
}

void AttributeCut::closeValue(const char16_t* end)
{
    const QStringView value(m_valueStart, end);
    if (m_openValue == front)
        for (std::vector<QStringView>& values : m_values)
            values.push_back(value);
    else if (m_openValue != none)
        m_values.at(m_openValue).push_back(value);
    m_openValue = none;
}

} // namespace varnhold
