#include "gamedb/RegionImages.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// The letters as a number, so that a long list is looked through quickly.
constexpr quint64 lettersOf(QStringView text)
{
    quint64 letters = 0;
    for (qsizetype i = 0; i < text.size() && i < 4; ++i)
        letters = letters << 16 | text[i].unicode();
    return letters;
}

struct Region
{
    quint64 letters;
    int image;
};

constexpr Region regions[] = {
    {lettersOf(u"BCUS"), 0}, {lettersOf(u"BLUS"), 0}, //
    {lettersOf(u"BCES"), 1}, {lettersOf(u"BLES"), 1}, //
    {lettersOf(u"BCJN"), 2}, {lettersOf(u"BCJS"), 2}, {lettersOf(u"BLJM"), 2},
    {lettersOf(u"BLJS"), 2}, {lettersOf(u"BLJX"), 2}, {lettersOf(u"BLMJ"), 2},
    {lettersOf(u"CEJH"), 2}, {lettersOf(u"CPCS"), 2}, {lettersOf(u"KTGS"), 2}, //
    {lettersOf(u"BCAS"), 3}, {lettersOf(u"BLAS"), 3}, {lettersOf(u"MRTC"), 3}, //
    {lettersOf(u"BCKS"), 4}, {lettersOf(u"BLKS"), 4}, {lettersOf(u"KOEI"), 4}, //
};

constexpr int onlineStore = 5; ///< ids that begin with "NP"
constexpr int unknownRegion = 6;

} // namespace

const std::array<QString, 7> regionImageFiles = {
    u"/flag-us.ico"_s,  u"/flag-uk.ico"_s, u"/flag-jp.ico"_s, u"/flag-asia.ico"_s,
    u"/flag-kor.ico"_s, u"/psn.ico"_s,     u"/unknown.ico"_s,
};

int regionImage(QStringView gameId)
{
    const quint64 letters = lettersOf(gameId);
    for (const Region& region : regions) {
        if (letters == region.letters)
            return region.image;
    }
    if (gameId.startsWith(u"NP"))
        return onlineStore;
    return unknownRegion;
}

} // namespace varnhold
