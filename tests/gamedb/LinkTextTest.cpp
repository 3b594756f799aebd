#include "gamedb/LinkText.h"

#include "support/PrintText.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

QStringList linksIn(const QString& text)
{
    QStringList links;
    for (const TextRange& range : findLinks(text))
        links += QString::number(range.start) + u':' + text.mid(range.start, range.length);
    return links;
}

struct Case
{
    const char* name;
    QString text;
    QStringList links;
};

} // namespace

TEST(LinkText, FindsLinksPatternByPattern)
{
    const Case cases[] = {
        {"nothing", u""_s, {}},
        {"order of the patterns, not of the text",
         u"www.a.b http://c.d ftp://e mailto:f@g"_s,
         {u"27:mailto:f@g"_s, u"19:ftp://e"_s, u"8:http://c.d"_s, u"0:www.a.b"_s}},
        {"trailing marks do not belong", u"see http://a.b/x?y.!,? end"_s, {u"4:http://a.b/x?y"_s}},
        {"a bare pattern is no link", u"http:// www. ftp://... mailto:"_s, {}},
        {"one character more is", u"http://x www.y"_s, {u"0:http://x"_s, u"9:www.y"_s}},
        {"lines end links",
         u"ftp://a\nftp://b\rftp://c"_s,
         {u"0:ftp://a"_s, u"8:ftp://b"_s, u"16:ftp://c"_s}},
        {"inside a word and inside a link", u"(http://www.a.b)"_s, {u"1:http://www.a.b)"_s, u"8:www.a.b)"_s}},
        {"behind the first address the mail pass goes on with ftp, its length still 7",
         u"mailto:a@b mailto:c@d ftp://efg ftp://h"_s,
         {u"0:mailto:a@b"_s, u"22:ftp://efg"_s, u"22:ftp://efg"_s, u"32:ftp://h"_s}},
        {"capitals", u"HTTP://A.B Www.c"_s, {u"0:HTTP://A.B"_s, u"11:Www.c"_s}},
    };
    for (const Case& each : cases) {
        SCOPED_TRACE(each.name);
        EXPECT_EQ(linksIn(each.text), each.links);
    }
}

TEST(LinkText, TellsTheLinkOfACharacter)
{
    const QString text = u"at http://a.b/c, or\rwww.x!\rhttp://end"_s;
    const QString first = u"http://a.b/c"_s;
    const auto at = [&text](qsizetype position) { return linkAround(text, position); };
    EXPECT_EQ(at(2), QString());
    EXPECT_EQ(at(3), first);
    EXPECT_EQ(at(9), first);
    EXPECT_EQ(at(15), first) << "the comma is part of the word";
    EXPECT_EQ(at(16), QString());
    EXPECT_EQ(at(19), QString()) << "behind a line";
    EXPECT_EQ(at(25), u"www.x"_s);
    EXPECT_EQ(at(text.size() - 1), u"http://end"_s);
    for (const qsizetype outside : {qsizetype(-1), text.size(), text.size() + 5})
        EXPECT_EQ(at(outside), QString());
    EXPECT_EQ(linkAround(u"http://a", 0), QString()) << "never at the first character";
    EXPECT_EQ(linkAround(u"http://a", 1), u"http://a"_s);
    EXPECT_EQ(linkAround(u" (http://a)", 4), QString()) << "the word begins otherwise";
    EXPECT_EQ(linkAround(u"www.", 2), u""_s) << "three characters are too few";
    EXPECT_EQ(linkAround(u"ftp://", 2), u"ftp://"_s);
}

} // namespace varnhold::test
