#include "StartUpWorld.h"

#include "controls/CTooltip/CTooltip.h"
#include "platform/RunTimeError.h"

#include <QLabel>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class StartUpTest : public testing::Test, protected StartUpWorld
{
protected:
    [[nodiscard]] bool topMost() const { return (main.windowFlags() & Qt::WindowStaysOnTopHint) != 0; }
};

} // namespace

TEST_F(StartUpTest, ReachesTheIdleWindow)
{
    root.write(u"wav/startup.wav"_s, "RIFF");
    bool splashSeen = false;
    pump.at(1, [&] {
        splashSeen = startUp.splash() != nullptr && startUp.splash()->isVisible() && topMost();
        EXPECT_FALSE(main.isVisible());
    });
    int loads = 0;
    loadGameList = [&] {
        ++loads;
        EXPECT_EQ(child<QLabel>(*splash, "lblLoading").text(), u"Loading: List"_s);
        EXPECT_EQ(settings.opacity(OpacityOf::Main), 220) << "after the settings";
        EXPECT_TRUE(topMost());
        EXPECT_TRUE(player.played.isEmpty());
    };
    EXPECT_EQ(startUp.run(), StartUp::Outcome::Running);
    EXPECT_TRUE(splashSeen);
    EXPECT_EQ(loads, 1);
    EXPECT_EQ(startUp.splash(), nullptr);
    EXPECT_TRUE(main.isVisible());
    EXPECT_FALSE(topMost());
    EXPECT_EQ(browser.urls, QStringList{u"about:blank"_s});
    EXPECT_EQ(main.pos(), QPoint(1920 - 447, 1040 - 289)) << "against the corner of the work area";
    EXPECT_EQ(player.played, QStringList{root.path(u"wav/startup.wav"_s)});
    EXPECT_NE(main.findChild<CTooltip*>(), nullptr);
    EXPECT_EQ(stored(u"Mainbar Top"_s), u"3285"_s);
    EXPECT_EQ(stored(u"Varnhold X"_s), u"(missing)"_s);
    EXPECT_NEAR(main.windowOpacity(), 220 / 255.0, 0.01);
    EXPECT_FALSE(certificateHost.timer1);
}

TEST_F(StartUpTest, TakesUpWhatWasStored)
{
    writeSettings("Varnhold X=1500.5\r\nMiximize=2\r\nMain Opacity=3\r\nLeftBar Top=100\r\nAuto SSL 1=1\r\n");
    EXPECT_EQ(startUp.run(), StartUp::Outcome::Running);
    EXPECT_EQ(main.size(), QSize(595, 385));
    EXPECT_EQ(main.pos(), QPoint(100, 1040 - 385)) << "within the work area";
    main.RestoreMainWindow();
    EXPECT_EQ(main.pos(), QPoint(100, 1040 - 289)) << "worked out with the height of the normal size";
    EXPECT_NEAR(main.windowOpacity(), 20 / 255.0, 0.01);
    EXPECT_EQ(settings.opacity(OpacityOf::Main), 3);
    EXPECT_EQ(stored(u"LeftBar Top"_s), u"540"_s);
    EXPECT_TRUE(certificateHost.timer1);
}

TEST_F(StartUpTest, StopsSilentlyAtAValueThatDoesNotFit)
{
    writeSettings("DL Max=3\r\nServer=7\r\nExit=0\r\n");
    EXPECT_EQ(startUp.run(), StartUp::Outcome::Running);
    EXPECT_TRUE(main.isVisible());
    ASSERT_NE(startUp.splash(), nullptr);
    EXPECT_TRUE(startUp.splash()->isVisible());
    EXPECT_TRUE(topMost());
    EXPECT_EQ(settings.downloadMax(), 3) << "keys before the bad one are in force";
    EXPECT_TRUE(player.played.isEmpty());
    QTest::mouseDClick(&child(*startUp.splash(), "lblWarning"), Qt::LeftButton);
    EXPECT_TRUE(pump.ending);
}

TEST_F(StartUpTest, GivesWayToTheInstanceThatRuns)
{
    first = false;
    boxes.expect(u"Already Open."_s, main.windowTitle());
    EXPECT_EQ(startUp.run(), StartUp::Outcome::Ended);
    EXPECT_EQ(boxes.shown.front().icon, BoxIcon::Critical);
    EXPECT_FALSE(main.isVisible());
    EXPECT_TRUE(browser.urls.isEmpty());

    previousAnswers = false;
    boxes.expect(u"Already Open."_s);
    EXPECT_EQ(startUp.run(), StartUp::Outcome::Running) << "nobody answered";
    EXPECT_TRUE(main.isVisible());
}

TEST_F(StartUpTest, EndsFromTheSplash)
{
    pump.at(1, [this] { QTest::mouseDClick(&child(*startUp.splash(), "lblWarning"), Qt::LeftButton); });
    EXPECT_EQ(startUp.run(), StartUp::Outcome::Ended);
    EXPECT_FALSE(main.isVisible());
}

TEST_F(StartUpTest, StartsWithoutHostsAndSaysSo)
{
    findHosts = []() -> Hosts { throw RunTimeError(errors::invalidCall, u"Line 3 names no host."_s); };
    boxes.expect(u"Line 3 names no host."_s);
    EXPECT_EQ(startUp.run(), StartUp::Outcome::Running);
    EXPECT_EQ(startUp.splash(), nullptr);
}

} // namespace varnhold::test
