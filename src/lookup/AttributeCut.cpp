#include "lookup/AttributeCut.h"

#include <algorithm>
#include <cstring>
#include <limits>

namespace varnhold {

namespace {

// Every marker ends in ="; what stands before that tells them apart by its last character.
constexpr std::array<QStringView, static_cast<std::size_t>(PackageAttribute::Count)> names = {
    u"<package version", u"ps3_system_ver", u"size", u"sha1sum", u"url"};

std::size_t attributeByLastCharacter(QChar last)
{
    for (std::size_t attribute = 0; attribute < names.size(); ++attribute)
        if (names[attribute].back() == last)
            return attribute;
    return names.size();
}

constexpr std::size_t mostPieces = std::size_t{std::numeric_limits<qint16>::max()} + 2;

/// Removes every occurrence that `find` tells (-1: none from there on), moving each stretch between them
/// once.
template <typename Find> void removeAll(QString& text, qsizetype length, Find&& find)
{
    qsizetype next = find(text, 0);
    if (next < 0)
        return;
    QChar* const characters = text.data();
    qsizetype kept = next;
    while (next >= 0) {
        const qsizetype start = next + length;
        next = find(text, start);
        const qsizetype end = next < 0 ? text.size() : next;
        std::memmove(characters + kept, characters + start,
                     static_cast<std::size_t>(end - start) * sizeof(QChar));
        kept += end - start;
    }
    text.truncate(kept);
}

constexpr QStringView opening = u"  <?xml version=";

// A search for a single character, and a rare one, runs several times as fast as one for the whole.

qsizetype findOpening(QStringView text, qsizetype from)
{
    constexpr qsizetype mark = 3;
    static_assert(opening[mark] == u'?');
    for (qsizetype at = text.indexOf(u'?', from + mark); at >= 0; at = text.indexOf(u'?', at + 1))
        if (text.sliced(at - mark).startsWith(opening))
            return at - mark;
    return -1;
}

qsizetype findLineEnd(QStringView text, qsizetype from)
{
    for (qsizetype at = text.indexOf(u'\r', from); at >= 0; at = text.indexOf(u'\r', at + 1))
        if (at + 1 < text.size() && text.at(at + 1) == u'\n')
            return at;
    return -1;
}

} // namespace

AttributeCut::AttributeCut(QStringView text)
{
    for (std::size_t attribute = 0; attribute < names.size(); ++attribute)
        addPiece(text, attribute, 0, 0);
    for (qsizetype sign = text.indexOf(u'='); sign >= 0; sign = text.indexOf(u'=', sign + 1)) {
        if (sign == 0 || sign + 1 >= text.size() || text.at(sign + 1) != u'"')
            continue;
        const std::size_t attribute = attributeByLastCharacter(text.at(sign - 1));
        if (attribute < names.size() && text.first(sign).endsWith(names.at(attribute)))
            addPiece(text, attribute, sign - names.at(attribute).size(), sign + 2);
    }
}

void AttributeCut::addPiece(QStringView text, std::size_t attribute, qsizetype markerStart,
                            qsizetype valueStart)
{
    std::vector<QStringView>& values = m_values.at(attribute);
    if (!values.empty()) {
        // A piece ends where the next marker begins, though its first quote may be that marker's own.
        QStringView& last = values.back();
        const qsizetype room = text.data() + markerStart - last.data();
        if (values.size() < mostPieces)
            last = last.first(std::min(last.size(), room));
    }
    if (values.size() == mostPieces)
        return;
    const qsizetype quote = text.indexOf(u'"', valueStart);
    values.push_back(text.sliced(valueStart, (quote < 0 ? text.size() : quote) - valueStart));
}

void stripViewerMarks(QString& text)
{
    removeAll(text, opening.size(), findOpening);
    removeAll(text, 2, findLineEnd);
}

} // namespace varnhold
