#include "platform/richtext/RtfReader.h"

#include "ShowRichText.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

struct Case
{
    const char* name;
    QByteArray body; ///< behind the fonts and colours
    QString shown;
};

const QByteArray head = "{\\rtf1\\ansi\\ansicpg1252{\\fonttbl{\\f0 Zero;}{\\f1\\fcharset204 One Cyr;}"
                        "{\\f2\\fcharset128 Two;}{\\f3\\fcharset2 Symbol;}}"
                        "{\\colortbl;\\red255\\green0\\blue0;\\red1\\green2\\blue3;}";

void expectCases(std::initializer_list<Case> cases)
{
    for (const Case& one : cases) {
        SCOPED_TRACE(one.name);
        EXPECT_EQ(shown(readRtf(head + one.body + '}')), one.shown);
    }
}

} // namespace

TEST(RtfReader, ReadsTextAndItsFormats)
{
    expectCases({
        {"line ends are not text, a word takes one blank", "a\r\nb\\b  c\\b0\nd", u"ab<b> c<>d"_s},
        {"groups end what was set in them", "a{\\b b{\\i c}d}e", u"a<b>b<b i>c<b>d<>e"_s},
        {"toggles", "\\ul a\\ulnone b\\uldb c\\uldb0 d\\ulwave e\\ul0\\striked1 f\\striked0\\strike g",
         u"<u>a<>b<u>c<>d<u>e<s>fg"_s},
        {"font, size, colour, plain", "\\f0\\fs24\\cf1 a\\cf0 b\\plain c\\cf2\\fs99999 d\\cf9\\f9\\fs0 e",
         u"<Zero 24 #ff>a<Zero 24>b<>c<3276 #30201>d<>e"_s},
        {"paragraphs end with their last format",
         "\\qc a\\par\\qr\\li720\\fi-360\\ri10 b\\par\\pard\\qj\\tx900\\tx300 c",
         u"(center)a\n(right li720 ri10 fi-360)b\n(justify tx300 tx900)c"_s},
        {"the last end of a paragraph begins no new one", "a\\par\\par b\\par", u"a\n\nb"_s},
        {"breaks and special characters", "a\\tab b\\line c\td\\~\\_\\-\\emdash\\bullet\\lquote \\\\\\{\\}",
         u"a~b|c~d\u00A0\u2011\u00AD\u2014\u2022\u2018\\{}"_s},
        {"escaped line ends are paragraphs", "a\\\nb\\\r\nc", u"a\nb\nc"_s},
        {"a table reads as lines with tabs", "\\intbl a\\cell\\cell b\\cell\\row c", u"a~~b\nc"_s},
        {"page breaks show only within a paragraph", "a\\par\\page b\\page c", u"a\nb|c"_s},
    });
}

TEST(RtfReader, ReadsCharactersOfAnyCodePage)
{
    expectCases({
        {"windows-1252", "\\'e9\\'80\xe9", u"\u00E9\u20AC\u00E9"_s},
        {"by the font", "\\f1\\'cf\\'f0", u"<One>\u041F\u0440"_s},
        {"two bytes, the second one a letter too", "\\f2\\'83\\'65\\'83X\\'b1a",
         u"<Two>\u30C6\u30B9\uFF71a"_s},
        {"unicode with what stands for it", "\\u1055?\\u-3913 ?\\uc2\\u20013\\'d6\\'d0{\\uc0\\u65}\\u66 xyz",
         u"\u041F\uF0B7\u4E2D"_s + u"AB"_s + u"z"_s},
        {"surrogates, apart and at once", "\\u-10179?\\u-8704?\\uc0\\u128512 !", u"\U0001F600\U0001F600!"_s},
        {"what stands for it may be a word or escape", "\\u8226\\bullet\\u123\\{a\\u65\\b b",
         u"\u2022{aA<b>b"_s},
        {"the unicode of two alternatives", "{\\upr{no\\par}{\\*\\ud{\\u1046?\\b b}}}c", u"\u0416<b>b<>c"_s},
    });
    EXPECT_EQ(readRtf("{\\rtf1\\ansi\\ansicpg1251\\deff1 \\'cf\\'f0}").plainText(), u"\u041F\u0440"_s);
    EXPECT_EQ(readRtf("{\\rtf1\\mac \\'8e}").plainText(), u"\u00E9"_s);
    EXPECT_EQ(readRtf("{\\rtf1\\ansicpg936 \\'d6\\'d0\xce\xc4}").plainText(), u"\u4E2D\u6587"_s);
    EXPECT_EQ(
        shown(readRtf("{\\rtf1\\deff4{\\fonttbl\\f4\\fnil Four{\\*\\falt no};\\f5 F\\'e9\\u1046?;}a\\f5 b}")),
        u"<Four>a<F\u00E9\u0416>b"_s);
}

} // namespace varnhold::test
