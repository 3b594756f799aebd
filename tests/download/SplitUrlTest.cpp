#include "download/SplitUrl.h"
#include "download/NumericValue.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

TEST(SplitUrlTest, cutsHostPortAndPath)
{
    struct Case
    {
        QString url, host, port, path;
    };
    const Case cases[] = {
        {u"http://host/a/b.pkg"_s, u"host"_s, u"80"_s, u"/a/b.pkg"_s},
        {u"HTTP://WWW.Host:8080"_s, u"Host"_s, u"8080"_s, u"/"_s},
        {u"www.http://host/"_s, u"http"_s, u""_s, u"//host/"_s},
        {u"host/a:1"_s, u"host"_s, u"80"_s, u"/a:1"_s},
        {u"host:81:82/x"_s, u"host"_s, u"81:82"_s, u"/x"_s},
        {u"https://host/x"_s, u"https"_s, u""_s, u"//host/x"_s},
        {u""_s, u""_s, u"80"_s, u"/"_s},
    };
    for (const Case& c : cases) {
        const UrlParts parts = Split_Url(c.url);
        EXPECT_EQ(parts.host, c.host);
        EXPECT_EQ(parts.port, c.port);
        EXPECT_EQ(parts.path, c.path);
    }
}

TEST(NumericValueTest, readsAsFarAsANumberGoes)
{
    const std::pair<QString, double> cases[] = {
        {u" \t\n80"_s, 80}, {u"80x"_s, 80}, {u"81:82"_s, 81},  {u"-5.5.5"_s, -5.5},
        {u"+.5"_s, 0.5},    {u"5."_s, 5},   {u"1e3x"_s, 1000}, {u"1ex"_s, 1},
        {u"x1"_s, 0},       {u"-"_s, 0},    {u"."_s, 0},       {u""_s, 0},
    };
    for (const auto& [text, value] : cases)
        EXPECT_EQ(numericValue(text), value) << text.toStdString();
}

} // namespace

} // namespace varnhold::test
