#include "platform/Conversion.h"

#include "platform/Trim.h"
#include "support/ErrorNumber.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

TEST(Conversion, TextBecomesNumber)
{
    const struct
    {
        QString text;
        double value;
    } cases[] = {
        {u"0"_s, 0},           {u"1805056"_s, 1805056},
        {u" 12 "_s, 12},       {u"-3"_s, -3},
        {u"+3"_s, 3},          {u"3."_s, 3},
        {u".5"_s, 0.5},        {u"3285.5"_s, 3285.5},
        {u"1,234"_s, 1234},    {u"1e3"_s, 1000},
        {u"2D-1"_s, 0.2},      {u"&H10"_s, 16},
        {u"&hFFFF"_s, -1},     {u"&O17"_s, 15},
        {u"&HFFFFFFFF"_s, -1}, {u"&H10000"_s, 65536},
    };
    for (const auto& c : cases)
        EXPECT_EQ(doubleFromText(c.text), c.value) << qPrintable(c.text);
}

TEST(Conversion, RefusesWhatIsNoNumber)
{
    for (const QString& text :
         {u""_s, u" "_s, u"abc"_s, u"12abc"_s, u"1 2"_s, u"-"_s, u"."_s, u"1.2.3"_s, u"1e"_s, u",1"_s,
          u"&H"_s, u"&H-1"_s, u"&HXY"_s, u"0x10"_s, u"inf"_s, u"nan"_s, u"True"_s, u"\u0661"_s})
        EXPECT_EQ(test::errorNumberOf([&] { doubleFromText(text); }), errors::typeMismatch)
            << qPrintable(text);
    EXPECT_EQ(test::errorNumberOf([] { doubleFromText(u"1e400"_s); }), errors::overflow);
}

TEST(Conversion, WholeNumbersRoundTiesToEvenAndHaveSixteenBits)
{
    const struct
    {
        QString text;
        int value;
    } cases[] = {{u"0.5"_s, 0},  {u"1.5"_s, 2},         {u"2.5"_s, 2},
                 {u"-0.5"_s, 0}, {u"32767.4"_s, 32767}, {u"-32768"_s, -32768}};
    for (const auto& c : cases)
        EXPECT_EQ(integerFromText(c.text), c.value) << qPrintable(c.text);
    for (const QString& text : {u"32768"_s, u"32767.5"_s, u"-32769"_s, u"1e300"_s})
        EXPECT_EQ(test::errorNumberOf([&] { integerFromText(text); }), errors::overflow) << qPrintable(text);
}

TEST(Conversion, BooleanWords)
{
    for (const QString& text : {u"True"_s, u"TRUE"_s, u"1"_s, u"-1"_s, u"0.1"_s})
        EXPECT_TRUE(booleanFromText(text)) << qPrintable(text);
    for (const QString& text : {u"False"_s, u"fALSE"_s, u"0"_s, u"0.0"_s})
        EXPECT_FALSE(booleanFromText(text)) << qPrintable(text);
    for (const QString& text : {u"yes"_s, u"Wahr"_s, u""_s})
        EXPECT_EQ(test::errorNumberOf([&] { booleanFromText(text); }), errors::typeMismatch)
            << qPrintable(text);
}

TEST(Trim, CutsBlanksOnly)
{
    EXPECT_EQ(trimBlanks(u"  a b  "_s), u"a b"_s);
    EXPECT_EQ(trimBlanks(u" \ta\u00A0 "_s), u"\ta\u00A0"_s);
    EXPECT_EQ(trimBlanks(u"   "_s), u""_s);
}

} // namespace
} // namespace varnhold
