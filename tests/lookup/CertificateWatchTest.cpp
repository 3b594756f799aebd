#include "lookup/CertificateWatch.h"

#include "LookupWorld.h"

#include <gtest/gtest.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class FakeHost : public CertificateWatchHost
{
public:
    bool pressYes() override
    {
        if (whilePressing)
            whilePressing();
        if (windows == 0)
            return false;
        --windows;
        return true;
    }
    [[nodiscard]] QString caption() const override { return text; }
    void setCaption(const QString& caption) override { text = caption; }
    void setTimer1(bool on) override { timer1 = on; }
    void setTimer2(bool on) override { timer2 = on; }

    int windows = 0;
    QString text = u"§Varnhold"_s;
    bool timer1 = false;
    bool timer2 = false;
    std::function<void()> whilePressing;
};

class CertificateWatchTest : public testing::Test, protected LookupWorld
{
protected:
    FakeHost host;
    CertificateWatch watch{settings, host};
};

} // namespace

TEST_F(CertificateWatchTest, AcceptsOnceInARun)
{
    setCheck(Check::AutoSSL0, true);
    watch.start();
    EXPECT_TRUE(host.timer1);
    watch.Timer1_Timer();
    EXPECT_TRUE(host.timer1) << "no window: it goes on ticking";
    host.windows = 1;
    watch.Timer1_Timer();
    EXPECT_FALSE(host.timer1);
    EXPECT_EQ(host.text, u"§Varnhold - [SSL Certificate Accepted]"_s);
    watch.start();
    EXPECT_FALSE(host.timer1);
}

TEST_F(CertificateWatchTest, ATickNeverRunsInsideATick)
{
    setCheck(Check::AutoSSL0, true);
    int presses = 0;
    host.whilePressing = [&] {
        ++presses;
        watch.Timer1_Timer();
    };
    watch.Timer1_Timer();
    EXPECT_EQ(presses, 1);
    setCheck(Check::AutoSSL0, false);
    watch.Timer1_Timer();
    EXPECT_EQ(presses, 1) << "with neither option on nothing is pressed";
}

} // namespace varnhold::test
