#include "gamedb/LinkMarks.h"

#include "support/PrintText.h"

#include <gtest/gtest.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

TEST(LinkMarks, MarksLinksAcrossRunsAndKeepsTheRest)
{
    RichText::CharacterFormat plain;
    RichText::CharacterFormat bold;
    bold.bold = true;
    RichText::CharacterFormat blue;
    blue.underline = true;
    blue.color = 0xFF0000;
    RichText::CharacterFormat boldBlue = blue;
    boldBlue.bold = true;
    const RichText::Run picture{plain, {}, "{\\pict}"};

    RichText text;
    text.paragraphs = {{{}, {{plain, u"at http://a"_s, {}}, {bold, u".b/c, or"_s, {}}}},
                       {},
                       {{}, {{plain, u"www.x"_s, {}}, picture, {plain, u"y\u2028ftp://www.z!"_s, {}}}},
                       {{}, {{plain, u"nothing"_s, {}}}}};
    RichText expected = text;
    expected.paragraphs[0].runs = {
        {plain, u"at "_s, {}}, {blue, u"http://a"_s, {}}, {boldBlue, u".b/c"_s, {}}, {bold, u", or"_s, {}}};
    expected.paragraphs[2].runs = {{blue, u"www.x"_s, {}},
                                   picture,
                                   {plain, u"y\u2028"_s, {}},
                                   {blue, u"ftp://www.z"_s, {}},
                                   {plain, u"!"_s, {}}};
    EXPECT_TRUE(markLinks(text));
    EXPECT_TRUE(text == expected);
    EXPECT_FALSE(markLinks(text)) << "all is marked";
    EXPECT_TRUE(text == expected);
}

} // namespace varnhold::test
