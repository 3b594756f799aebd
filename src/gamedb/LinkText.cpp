#include "gamedb/LinkText.h"

#include <algorithm>
#include <array>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

struct Pattern
{
    QLatin1StringView first;
    QLatin1StringView next;
};

// The pass for mail addresses goes on with "ftp://" after its first hit; meant so.
constexpr std::array passes = {
    Pattern{"mailto:"_L1, "ftp://"_L1},
    Pattern{"ftp://"_L1, "ftp://"_L1},
    Pattern{"http://"_L1, "http://"_L1},
    Pattern{"www."_L1, "www."_L1},
};

constexpr qsizetype shortestLiveLink = 4;

bool endsWord(QChar character)
{
    return character == u' ' || character == u'\n' || character == u'\r';
}

qsizetype wordEnd(QStringView text, qsizetype from)
{
    return std::distance(text.begin(), std::find_if(text.begin() + from, text.end(), endsWord));
}

QStringView withoutClosingMarks(QStringView word)
{
    while (!word.isEmpty() && QStringView(u".,!?").contains(word.back()))
        word.chop(1);
    return word;
}

void findPass(QStringView text, const Pattern& pattern, std::vector<TextRange>& links)
{
    qsizetype start = text.indexOf(pattern.first, 0, Qt::CaseInsensitive);
    while (start >= 0) {
        const qsizetype end = wordEnd(text, start);
        const QStringView link = withoutClosingMarks(text.sliced(start, end - start));
        if (link.size() > pattern.first.size())
            links.push_back({start, link.size()});
        start = end < text.size() ? text.indexOf(pattern.next, end + 1, Qt::CaseInsensitive) : -1;
    }
}

} // namespace

std::vector<TextRange> findLinks(QStringView text)
{
    std::vector<TextRange> links;
    for (const Pattern& pattern : passes)
        findPass(text, pattern, links);
    return links;
}

QString linkAround(QStringView text, qsizetype position)
{
    // A return at the position itself is the empty place behind a line.
    if (position < 1 || position >= text.size() || endsWord(text[position]))
        return {};
    qsizetype start = position;
    while (start > 0 && !endsWord(text[start - 1]))
        --start;
    const QStringView word = text.sliced(start, wordEnd(text, position) - start);
    if (std::ranges::none_of(passes, [word](const Pattern& pattern) {
            return word.startsWith(pattern.first, Qt::CaseInsensitive);
        }))
        return {};
    const QStringView link = withoutClosingMarks(word);
    return link.size() >= shortestLiveLink ? link.toString() : QString();
}

} // namespace varnhold
