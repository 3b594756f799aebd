#include "controls/CTooltip/CTooltipState.h"

#include <gtest/gtest.h>

#include <QStringList>

#include <functional>
#include <utility>
#include <vector>

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
    struct Case
    {
        const char* name;
        std::function<void(CTooltipState&)> set;
        QString sent;
    };
    const std::vector<Case> cases = {
        {"defaults", [](CTooltipState&) {}, u"create, add , delays 5000 500"_s},
        {"balloon, centred",
         [](CTooltipState& tip) {
             tip.setStyle(1);
             tip.setCentered(true);
             tip.setTipText(u"t"_s);
         },
         u"create balloon, add centred t, delays 5000 500"_s},
        {"icon alone", [](CTooltipState& tip) { tip.setIcon(1); },
         u"create, add , title 1 , delays 5000 500"_s},
        {"title alone", [](CTooltipState& tip) { tip.setTitle(u"T"_s); },
         u"create, add , title 0 T, delays 5000 500"_s},
        {"colours",
         [](CTooltipState& tip) {
             tip.setForeColor(7);
             tip.setBackColor(8);
         },
         u"create, add , fore 7, back 8, delays 5000 500"_s},
        {"black is the platform's", [](CTooltipState& tip) { tip.setForeColor(0); },
         u"create, add , delays 5000 500"_s},
        {"times",
         [](CTooltipState& tip) {
             tip.setVisibleTime(10);
             tip.setDelayTime(0);
         },
         u"create, add , delays 10 0"_s},
        {"unknown style", [](CTooltipState& tip) { tip.setStyle(5); }, u"create, add , delays 5000 500"_s},
    };
    for (const Case& one : cases) {
        RecordingPlatform platform;
        CTooltipState tip(platform);
        one.set(tip);
        EXPECT_EQ(platform.taken(), QString()) << one.name << ": before Create";
        EXPECT_TRUE(tip.Create());
        EXPECT_EQ(platform.taken(), one.sent) << one.name;
    }
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
