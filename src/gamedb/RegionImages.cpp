#include "gamedb/RegionImages.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

struct Region
{
    QStringView prefix;
    int image;
};

constexpr Region regions[] = {
    {u"BCUS", 0}, {u"BLUS", 0},                                           //
    {u"BCES", 1}, {u"BLES", 1},                                           //
    {u"BCJN", 2}, {u"BCJS", 2}, {u"BLJM", 2}, {u"BLJS", 2}, {u"BLJX", 2}, //
    {u"BLMJ", 2}, {u"CEJH", 2}, {u"CPCS", 2}, {u"KTGS", 2},               //
    {u"BCAS", 3}, {u"BLAS", 3}, {u"MRTC", 3},                             //
    {u"BCKS", 4}, {u"BLKS", 4}, {u"KOEI", 4},                             //
    {u"NP", 5},
};

constexpr int unknownRegion = 6;

} // namespace

const std::array<QString, 7> regionImageFiles = {
    u"/flag-us.ico"_s,  u"/flag-uk.ico"_s, u"/flag-jp.ico"_s, u"/flag-asia.ico"_s,
    u"/flag-kor.ico"_s, u"/psn.ico"_s,     u"/unknown.ico"_s,
};

int regionImage(QStringView gameId)
{
    for (const Region& region : regions) {
        if (gameId.startsWith(region.prefix))
            return region.image;
    }
    return unknownRegion;
}

} // namespace varnhold
