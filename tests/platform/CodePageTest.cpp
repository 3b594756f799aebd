#include "platform/CodePage.h"

#include "support/PrintText.h"

#include <gtest/gtest.h>

#include <QStringDecoder>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

TEST(CodePage, EveryByteComesBack)
{
    QByteArray all;
    for (int byte = 0; byte < 256; ++byte)
        all.append(static_cast<char>(byte));
    const QString text = fromCodePage(all);
    EXPECT_EQ(toCodePage(text), all);
    EXPECT_EQ(text.mid(0x80, 5), u"\u20AC\u0081\u201A\u0192\u201E"_s);
    EXPECT_EQ(text.at(0x99), u'\u2122');
    EXPECT_EQ(text.at(0xA7), u'\u00A7');
}

TEST(CodePage, TellsWhatItCannotHold)
{
    EXPECT_FALSE(toCodePage(u"a\u4E2Db"));
    EXPECT_FALSE(toCodePage(u"\U0001F600"));
    EXPECT_FALSE(toCodePage(u"\u0080")) << "the euro sign's byte has no second meaning";
}

} // namespace
} // namespace varnhold
