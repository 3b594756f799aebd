#include "../AppWorld.h"

#include "app/start/ExitPath.h"
#include "support/FakePump.h"

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class ExitPathTest : public testing::Test, protected AppWorld, private ExitHost
{
protected:
    FakePump pump;
    std::vector<int> opacities;
    QStringList steps;
    ExitPath path{{settings, boxes, sounds, pump}, *this};

private:
    void enableExitButton() override { steps.append(u"enable"_s); }
    void setFadeOpacity(int value) override
    {
        EXPECT_EQ(pump.count, 0);
        opacities.push_back(value);
    }
    void unloadOtherWindows() override { steps.append(u"others"_s); }
    void unloadMainWindow() override
    {
        EXPECT_EQ(pump.count, 320000);
        steps.append(u"main"_s);
    }
    void endProgram() override { steps.append(u"end"_s); }
};

const QString question = u"Are you sure you want to exit?"_s;

} // namespace

TEST_F(ExitPathTest, StaysAfterANo)
{
    setCheck(Check::Exit, true);
    boxes.expect(question, u"Exit?"_s, BoxAnswer::No);
    EXPECT_FALSE(path.run());
    EXPECT_EQ(steps, QStringList{u"enable"_s});
    EXPECT_TRUE(player.played.isEmpty());
    EXPECT_EQ(boxes.shown.front().icon, BoxIcon::Question);
}

TEST_F(ExitPathTest, AsksSoundsFadesAndEnds)
{
    setCheck(Check::Exit, true);
    setCheck(Check::Fade, true);
    boxes.expect(question, u"Exit?"_s, BoxAnswer::Yes);
    pump.at(1000, [this] { EXPECT_FALSE(path.run()) << "a second wish changes nothing"; });
    EXPECT_TRUE(path.run());
    EXPECT_EQ(player.played, QStringList{u"3"_s});
    ASSERT_EQ(opacities.size(), 255U);
    EXPECT_EQ(opacities.front(), 254);
    EXPECT_EQ(opacities.back(), 0);
    EXPECT_EQ(steps, (QStringList{u"others"_s, u"main"_s, u"end"_s}));
}

TEST_F(ExitPathTest, GoesWithoutQuestionAndFadeWhenBothAreOff)
{
    EXPECT_TRUE(path.run());
    EXPECT_TRUE(opacities.empty());
    EXPECT_EQ(player.played, QStringList{u"3"_s});
    EXPECT_EQ(steps, (QStringList{u"others"_s, u"main"_s, u"end"_s}));
}

} // namespace varnhold::test
