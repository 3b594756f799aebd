// Cutting damaged addresses and finding links in damaged text.

#include "download/SplitUrl.h"
#include "fuzz/FuzzTarget.h"
#include "gamedb/LinkMarks.h"
#include "gamedb/LinkText.h"
#include "platform/richtext/RtfReader.h"

#include <algorithm>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

bool isOneWord(QStringView link)
{
    return std::ranges::none_of(link, [](QChar c) { return c == u' ' || c == u'\r' || c == u'\n'; }) &&
           !u".,!?"_s.contains(link.back());
}

void checkUrl(const QString& url, const QByteArray& input)
{
    const UrlParts parts = Split_Url(url);
    require(!parts.host.contains(u'/') && !parts.host.contains(u':') && !parts.port.contains(u'/'),
            "a part that reaches into the next", input);
    require(parts.path.startsWith(u'/'), "a path without its slash", input);
    require(parts.path == u"/"_s || url.endsWith(parts.path), "a path from nowhere", input);
    require(url.contains(parts.host) && (parts.port == u"80"_s || url.contains(u':' + parts.port)),
            "a part from nowhere", input);
}

void checkLinks(const QString& text, const QByteArray& input)
{
    for (const TextRange& range : findLinks(text)) {
        require(range.start >= 0 && range.length > 4 && range.start + range.length <= text.size(),
                "a link out of the text", input);
        const QString link = text.mid(range.start, range.length);
        require(isOneWord(link), "a link over a border", input);
        const QString around = linkAround(text, range.start + 1);
        require(around.isEmpty() || around.endsWith(link), "another link at the same place", input);
    }
    for (qsizetype at = 0; at <= std::min<qsizetype>(text.size(), 300); ++at) {
        const QString link = linkAround(text, at);
        require(link.isEmpty() || (link.size() >= 4 && isOneWord(link)), "an odd link", input);
    }
}

} // namespace

void check(const QByteArray& input)
{
    const QString text = QString::fromUtf8(input);
    checkUrl(text, input);
    checkLinks(text, input);
    RichText notes = readRtf(input);
    const QString before = notes.plainText();
    markLinks(notes);
    require(notes.plainText() == before, "marks change the text", input);
    require(!markLinks(notes), "marks twice", input);
}

const std::vector<QByteArray>& pieces()
{
    static const std::vector<QByteArray> all =
        piecesOf("http://|HTTP://|https://|ftp://|www.|WwW.|mailto:|/|:|:80|//|.|,!?| |\r|\n|\r\n|\\par |"
                 "\\line |\\b |\\b0 |{\\pict 00}|\\cf1\\ul |\\u8232 ?|\xc3\xa9|\xf0\x9f\x8e\xae|\xff|"
                 "127.0.0.1:8080",
                 {QByteArray(1, '\0')});
    return all;
}

} // namespace varnhold::test
