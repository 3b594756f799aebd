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
         u"<Zero #ff>a<Zero>b<>c<3276 #30201>d<>e"_s},
        {"raised and lowered, and the own size", "a\\super b\\nosupersub\\sub c\\up0\\fs17 d\\dn6 e\\plain f",
         u"a<super>b<sub>c<own>d<sub own>e<>f"_s},
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
        {"two raw bytes, the second one a sign",
         "\\f2\x83\x5c\x94\x7d\x83\x7b\x83\x83\\b\x83\\'5c\\u8213\\'81?{\\*\\x \x83\x7d}",
         u"<Two>\u30BD\u5A92\u30DC\u30E3<b Two>\u30BD\u2015?[{\\*\\x \\'83\\'7d}]"_s},
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

TEST(RtfReader, ReadsListsOfBothKinds)
{
    const QByteArray tables =
        "{\\*\\listtable{\\list{\\listlevel\\levelnfc23{\\leveltext\\'01\\u-3913 ?;}}{\\listlevel\\levelnfc0}"
        "\\listid7}}{\\*\\listoverridetable{\\listoverride\\listid7\\listoverridecount0\\ls1}}";
    expectCases({
        {"an old bullet lasts to the paragraph's defaults",
         "\\pard{\\pntext\\f3\\'B7\\tab}{\\*\\pn\\pnlvlblt\\pnf3\\pnindent200{\\pntxtb\\'B7}}\\fi-200\\li200 "
         "a\\par"
         "{\\pntext\\f3\\'B7\\tab}b\\par\\pard c",
         u"(li200 fi-200 bullet200)a\n(li200 fi-200 bullet200)b\nc"_s},
        {"an old number",
         "\\pard{\\pntext\\f0 1.\\tab}{\\*\\pn\\pnlvlbody\\pndec\\pnindent200{\\pntxta .}}\\f0 a",
         u"({\\*\\pn\\pnlvlbody\\pndec\\pnindent200{\\pntxta .}})<Zero>{1.~}<Zero>a"_s},
        {"a level of the tables",
         tables + "{\\listtext\\f3\\'b7\\tab}\\ls1\\ilvl0 a\\par{\\listtext 1.\\tab}\\ilvl1 b\\par"
                  "\\pard c",
         u"(bullet0 ls1)a\n(ls1 ilvl1){1.~}<>b\nc"_s},
        {"levels of the tables whose text is not there", tables + "\\ls1\\ilvl0 a\\par\\ilvl1 b",
         u"(bullet0 ls1)a\n(ls1 ilvl1)b"_s},
        {"a heading in a list that counts nothing", "{\\listtext\\tab}\\ls3\\ilvl0 a", u"(ls3)a"_s},
        {"a bullet that no table tells of", "{\\listtext\\u8226?\\tab}a\\par{\\listtext i.\\tab}b",
         u"(bullet0)a\ni.~b"_s},
    });
}

TEST(RtfReader, KeepsWhatItDoesNotUnderstand)
{
    expectCases({
        {"at its place", "\\pard a{\\*\\unheard b{c}}d{\\pict 00ff}{\\footnote \\pard n\\par}",
         u"a[{\\*\\unheard b{c}}]d[{\\pict 00ff}][{\\footnote \\pard n\\par}]"_s},
        {"from the word on, behind text of the group", "\\pard{\\b a\\*\\unheard b}c",
         u"<b>a<>[{\\*\\unheard b}]c"_s},
        {"the rest of the document is no such group", "\\pard a\\pict b\\*\\unheard c", u"abc"_s},
        {"binary data in hexadecimal, whatever it holds", "\\pard{\\pict\\bin4 }{\\\xff}a",
         u"[{\\pict 7d7b5cff}]a"_s},
        {"bytes and control characters", "\\pard{\\*\\x \xe9" + QByteArray(1, '\0') + "\\\xff}",
         u"[{\\*\\x \\'e9\n\\'ff}]"_s},
        {"with the fallback's length that it stood in", "\\pard\\uc0{\\*\\x \\u65 b}",
         u"[{\\*\\x \\uc0 \\u65 b}]"_s},
        {"a field's code before its result",
         "\\pard a{\\field\\flddirty{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt\\b b\\par c}}d",
         u"a[{\\field\\flddirty{\\*\\fldinst HYPERLINK \"x\"}}]<b>b\n<b>c[{\\fldrslt}]<>d"_s},
        {"hidden and deleted text", "\\pard a\\v b\\u1055?\\v0 c{\\deleted d}",
         u"a[{\\v b\\u1055?}]c[{\\deleted d}]"_s},
        {"behind the last paragraph", "a\\par{\\*\\unheard b}", u"a[{\\*\\unheard b}]"_s},
    });
    const RichText text = readRtf(
        "{\\rtf1\\ansicpg1251{\\fonttbl{\\f4\\fcharset204 A Cyr;}{\\f5 B;}}{\\colortbl;\\red1;\\blue2;}"
        "{\\stylesheet{\\s1\\f4\\cf2 H\\'e9;}}{\\info{\\title t}}{\\footer\\pard f\\par}\\pard "
        "a{\\*\\themedata 0}}");
    const std::vector<QByteArray> header = {"{\\ansicpg1251}",
                                            "{\\fonttbl{\\f4\\fnil\\fcharset204 A;}}",
                                            "{\\colortbl;;\\red0\\green0\\blue2;}",
                                            "{\\stylesheet{\\s1\\f4\\cf2 H\\'e9;}}",
                                            "{\\info{\\title t}}",
                                            "{\\footer\\pard f\\par}",
                                            "{\\*\\themedata 0}"};
    EXPECT_EQ(text.header, header);
}

TEST(RtfReader, ShowsWhatDamageLeaves)
{
    expectCases({
        {"half escapes", "a\\'zb\\'8!", u"azb8!"_s},
        {"numbers of any size", "\\fs99999999999\\li-99999999999999999999 a\\u99999999 ?b",
         u"(li-31680)<3276>ab"_s},
        {"braces too many", "{\\b a}} b} c", u"<b>a<> b c"_s},
        {"data that ends early", "a{\\pict\\bin99 xy", u"a[{\\pict 78797d}]"_s},
        {"nothing behind it", "a", u"a"_s},
    });
    EXPECT_EQ(readRtf("{\\rtf1 a}\r\n\0{\\rtf1 b}").plainText(), u"a"_s);
    EXPECT_EQ(readRtf("{\\rtf1 {\\b{\\i a").plainText(), u"a"_s);
    EXPECT_EQ(readRtf("{\\rtf1").plainText(), u""_s);

    constexpr qsizetype deep = 200000;
    const QByteArray nested = "{\\rtf1\\pard " + QByteArray("{\\b0").repeated(deep) + " a" +
                              QByteArray(deep, '}') + "b{\\*\\x " + QByteArray(deep, '{');
    const RichText text = readRtf(nested);
    EXPECT_EQ(text.plainText(), u"ab"_s);
    EXPECT_EQ(text.paragraphs.at(0).runs.back().verbatim.size(), 6 + 2 * deep + 1);
}

TEST(RtfReader, ReadsOtherNotesAsPlainText)
{
    const struct
    {
        QByteArray note;
        QString shown;
    } cases[] = {
        {"", u""_s},
        {"a {b}\\par\r\n\tc\rd\n", u"<own>a {b}\\par\n<own>~c\n<own>d\n"_s},
        {" \r\n\t{\\rtf1 a}", u"a"_s},
        {" {\\rt", u"<own> {\\rt"_s},
        {"\xEF\xBB\xBF\xC3\xA9", u"<own>\u00E9"_s},
        {"\xEF\xBB\xBF {\\rtf1 a}", u"a"_s},
        {"caf\xE9", u"<own>caf\u00E9"_s},
        {QByteArray("a\0b\0", 4), u"<own>ab"_s},
        {QByteArray("\xFF\xFE\x16\x04", 4), u"<own>\u0416"_s},
    };
    for (const auto& one : cases)
        EXPECT_EQ(shown(readRtf(one.note)), one.shown) << one.note.toPercentEncoding().constData();
}

} // namespace varnhold::test
