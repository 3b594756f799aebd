#include "lookup/GameIdFilter.h"
#include "lookup/UpdateServers.h"
#include "state/Hosts.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

TEST(GameIdFilter, TypingAndPastingDiffer)
{
    const struct
    {
        QChar typed;
        TypedCharacter outcome;
        QChar inserted;
    } keys[] = {
        {u'a', TypedCharacter::Accepted, u'A'},        {u'Z', TypedCharacter::Accepted, u'Z'},
        {u'0', TypedCharacter::Accepted, u'0'},        {QChar(8), TypedCharacter::Accepted, QChar(8)},
        {QChar(13), TypedCharacter::Fetch, QChar(13)}, {u'-', TypedCharacter::Refused, u'-'},
        {u' ', TypedCharacter::Refused, u' '},         {u'[', TypedCharacter::Refused, u'['},
        {u'é', TypedCharacter::Refused, u'É'},         {u'٣', TypedCharacter::Refused, u'٣'},
    };
    for (const auto& key : keys) {
        const FilteredKey filtered = filterTypedCharacter(key.typed);
        EXPECT_EQ(filtered.outcome, key.outcome) << int{key.typed.unicode()};
        EXPECT_EQ(filtered.character, key.inserted) << int{key.typed.unicode()};
    }
    EXPECT_EQ(filterGameIdText(u"BLUS-30443"_s), u"BLUS30443"_s);
    EXPECT_EQ(filterGameIdText(u" - blus 304-43 x%"_s), u"blus30443"_s);
    EXPECT_EQ(invalidCharacterText(), u"Invalid Character.\rPlease enter 0-9, or A-Z"_s);
}

TEST(UpdateServers, MakeAddressesByTheTable)
{
    Hosts hosts;
    for (std::size_t i = 0; i < hosts.servers.size(); ++i)
        hosts.servers[i].authority = u"h%1"_s.arg(i + 1);
    const QString fronts[] = {u"https://h1/tpl/np/"_s,        u"http://h2/tppkg/np/'"_s,
                              u"http://h3/tppkg/prod-qa/'"_s, u"https://h4/tpl/sp-int/'"_s,
                              u"http://h5/tppkg/sp-int/'"_s,  u"https://h6/tpl/prod-qa/"_s};
    for (int value = 1; value <= 6; ++value)
        EXPECT_EQ(Document_Url(hosts, value, u"bLUS30443"_s),
                  fronts[value - 1] + u"bLUS30443/bLUS30443-ver.xml"_s);
    for (const int value : {0, 7, -1}) {
        EXPECT_EQ(updateServer(value), nullptr);
        EXPECT_EQ(Document_Url(hosts, value, u"BLUS30443"_s), u""_s);
    }
}

} // namespace varnhold::test
