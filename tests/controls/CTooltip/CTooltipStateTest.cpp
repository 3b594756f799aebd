#include "controls/CTooltip/CTooltipState.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <functional>
#include <utility>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;

/// Writes down what is sent.
class RecordingPlatform : public TipPlatform
{
public:
    bool refuses = false;
    QStringList sent;

    QString taken() { return std::exchange(sent, {}).join(u", "_s); }

    bool createWindow(bool balloon) override
    {
        sent += balloon ? u"create balloon"_s : u"create"_s;
        return !refuses;
    }
    void destroyWindow() override { sent += u"destroy"_s; }
    void addTool(bool centered, const QString& text) override
    {
        sent += (centered ? u"add centred "_s : u"add "_s) + text;
    }
    void sendTitle(int icon, const QString& title) override { sent += u"title %1 %2"_s.arg(icon).arg(title); }
    void sendTextColor(ColorValue color) override { sent += u"fore %1"_s.arg(color); }
    void sendBackColor(ColorValue color) override { sent += u"back %1"_s.arg(color); }
    void sendDelays(int visible, int initial) override
    {
        sent += u"delays %1 %2"_s.arg(visible).arg(initial);
    }
    void sendText(const QString& text) override { sent += u"text "_s + text; }
};

TEST(CTooltipState, CreateSendsWhatWasStored)
{
    const auto sent = [](const std::function<void(CTooltipState&)>& set) {
        RecordingPlatform platform;
        CTooltipState tip(platform);
        set(tip);
        EXPECT_EQ(platform.taken(), QString()) << "before Create";
        EXPECT_TRUE(tip.Create());
        return platform.taken();
    };
    EXPECT_EQ(sent([](CTooltipState&) {}), u"create, add , delays 5000 500");
    EXPECT_EQ(sent([](CTooltipState& tip) {
                  tip.setStyle(1);
                  tip.setCentered(true);
                  tip.setTipText(u"t"_s);
                  tip.setForeColor(7);
                  tip.setBackColor(8);
                  tip.setVisibleTime(10);
                  tip.setDelayTime(0);
              }),
              u"create balloon, add centred t, fore 7, back 8, delays 10 0");
    EXPECT_EQ(sent([](CTooltipState& tip) { tip.setIcon(1); }), u"create, add , title 1 , delays 5000 500");
    EXPECT_EQ(sent([](CTooltipState& tip) { tip.setTitle(u"T"_s); }),
              u"create, add , title 0 T, delays 5000 500");
}

TEST(CTooltipState, SettersSendAtOnceUnderTheirConditions)
{
    RecordingPlatform platform;
    CTooltipState tip(platform);
    tip.Create();
    platform.taken();
    tip.setTitle(u"T"_s);
    EXPECT_EQ(platform.taken(), QString()) << "no icon yet";
    tip.setIcon(2);
    EXPECT_EQ(platform.taken(), u"title 2 T");
    tip.setTitle(QString());
    tip.setIcon(3);
    EXPECT_EQ(platform.taken(), QString()) << "no title: the old one stays";
    tip.setForeColor(9);
    tip.setBackColor(0);
    tip.setTipText(u"new"_s);
    EXPECT_EQ(platform.taken(), u"fore 9, back 0, text new");
    tip.setVisibleTime(1);
    tip.setDelayTime(2);
    tip.setStyle(1);
    tip.setCentered(true);
    EXPECT_EQ(platform.taken(), QString());
    EXPECT_EQ(tip.TipText(), u"new");
}

TEST(CTooltipState, CreateTwiceReplacesAndDestroyEndsOnce)
{
    RecordingPlatform platform;
    CTooltipState tip(platform);
    tip.Create();
    platform.taken();
    tip.Create();
    EXPECT_EQ(platform.taken(), u"destroy, create, add , delays 5000 500");
    tip.Destroy();
    tip.Destroy();
    EXPECT_EQ(platform.taken(), u"destroy");
    platform.refuses = true;
    EXPECT_FALSE(tip.Create());
    tip.setTipText(u"x"_s);
    EXPECT_EQ(platform.taken(), u"create");
}

} // namespace
} // namespace varnhold
