#include "state/ApplicationState.h"
#include "state/ErrorReport.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"
#include "state/Sounds.h"
#include "state/WaitLoop.h"
#include "support/FakeMessageBoxes.h"
#include "support/FakePump.h"
#include "support/FakeSoundPlayer.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"

#include <gtest/gtest.h>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

TEST(WaitLoop, RoundsItsUnitsToEven)
{
    const struct
    {
        double units;
        int pumps;
    } cases[] = {{0.6, 160000}, {0.5, 0}, {1.5, 320000}, {-1, 0}};
    for (const auto& c : cases) {
        test::FakePump pump;
        Wait_Loop(c.units, pump);
        EXPECT_EQ(pump.count, c.pumps) << c.units;
    }
}

TEST(WaitLoop, LeavesWhenTheProgramEnds)
{
    test::FakePump pump;
    pump.at(7, [&] { pump.ending = true; });
    Wait_Loop(2, pump);
    EXPECT_EQ(pump.count, 7);
}

TEST(SoundsTest, PlayOnlyWhileTheyAreOn)
{
    const test::TempRoot root;
    ApplicationState state;
    SettingsFile file(root.paths(), state);
    Settings settings(file);
    test::FakeSoundPlayer player;
    Sounds sounds(settings, player, state);
    settings.setSound(3, {u"c.wav"_s, u"/c.wav"_s});
    sounds.play(Sound::Close);
    EXPECT_EQ(state.SoundResult, 1);
    settings.setChecked(Check::SoundsClick, false);
    sounds.play(Sound::Close);
    player.result = 0;
    sounds.playAlways(Sound::Close);
    EXPECT_EQ(state.SoundResult, 0);
    EXPECT_EQ(player.played, (QStringList{u"/c.wav"_s, u"/c.wav"_s}));
}

TEST(ErrorReport, HasTwoForms)
{
    test::FakeMessageBoxes boxes;
    const QString head = u"Err Number:\t61\r\nErr Source:\tVarnhold\r\n"_s;
    boxes.expect(head + u"Err Description: \tDisk full\r\n"_s, u"ErrorException"_s);
    boxes.expect(head + u"Err Description:\tDisk full\r\n"_s, u"ErrorException"_s);
    EXPECT_FALSE(reporting(boxes, DescriptionLabel::WithBlank, [] { throw RunTimeError(errors::diskFull); }));
    EXPECT_FALSE(
        reporting(boxes, DescriptionLabel::WithoutBlank, [] { throw RunTimeError(errors::diskFull); }));
    EXPECT_FALSE(silently([] { throw RunTimeError(errors::diskFull); }));
    EXPECT_TRUE(reporting(boxes, DescriptionLabel::WithBlank, [] {}));
    ASSERT_EQ(boxes.shown.size(), 2);
    EXPECT_EQ(boxes.shown.first().icon, BoxIcon::Critical);
}

} // namespace
} // namespace varnhold
