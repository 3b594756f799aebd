#include "lookup/TitleCleaner.h"

#include "LookupWorld.h"

#include <gtest/gtest.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

TEST(TitleCleaner, TakesPiecesOutInTheirOrder)
{
    const QString keep = u"\x01"_s; // the delivered list
    const struct
    {
        const char* name;
        QString title;
        QString clean;
        QString list;
        bool doubles = true;
        bool colons = true;
        bool on = true;
    } cases[] = {
        {"everything on", u"Game: Update (BLUS30443)"_s, u"Game"_s, keep},
        {"off: nothing at all", u"Game: Update (BLUS30443)"_s, u"Game: Update (BLUS30443)"_s, keep, true,
         true, false},
        {"colon becomes a dash", u"Game: Sequel"_s, u"Game - Sequel"_s, keep},
        {"colon goes by the list", u"Game: Sequel"_s, u"Game Sequel"_s, keep, true, false},
        {"double blanks in one pass", u"  A    B  "_s, u"A  B"_s, u""_s},
        {"double blanks stay", u"A  B"_s, u"A  B"_s, u""_s, false},
        {"only blanks are trimmed", u" \tA\u00A0 "_s, u"\tA\u00A0"_s, u""_s},
        {"id without brackets", u"Game BLUS30443"_s, u"Game"_s, keep},
        {"the literal word stays without its entries", u"Game BLUS30443"_s, u"Game GAMEID"_s, u"x"_s},
        {"trade mark", u"Game™ 2"_s, u"Game 2"_s, keep},
        {"case matters", u"Game dlc DLC"_s, u"Game dlc"_s, keep},
        {"entries keep their blanks, empty ones do nothing", u"aXb X"_s, u"aXb"_s, u",, X,"_s},
        {"list runs left to right", u"abc"_s, u"c"_s, u"ab,bc"_s},
        {"removal is one pass", u"aabb"_s, u"ab"_s, u"ab"_s},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        LookupWorld world;
        if (one.list != keep)
            world.values().unwantedStrings = one.list;
        world.setCheck(Check::Double, one.doubles);
        world.setCheck(Check::Colon, one.colons);
        world.setCheck(Check::RemoveUnw, one.on);
        EXPECT_EQ(cleanTitle(one.title, world.settings, u"BLUS30443"_s), one.clean);
    }
}

} // namespace varnhold::test
