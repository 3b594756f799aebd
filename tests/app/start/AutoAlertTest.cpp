#include "../AppWorld.h"

#include "app/start/AutoAlert.h"
#include "support/PumpUntil.h"
#include "support/ScriptedAlert.h"

#include <QElapsedTimer>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class AutoAlertTest : public testing::Test, protected AppWorld
{
protected:
    /// The window stays open until it was pressed, or a while.
    void openWindow()
    {
        presses = 0;
        window.whileOpen = [] {
            QElapsedTimer open;
            open.start();
            while (open.elapsed() < 40)
                QCoreApplication::processEvents(QEventLoop::AllEvents, 5);
        };
        alert.accept(u"host"_s, {});
    }

    int presses = 0;
    QString caption = u"Varnhold"_s;
    ScriptedAlert window;
    AutoAlert alert{window,
                    settings,
                    {.pressYes =
                         [this] {
                             ++presses;
                             return true;
                         },
                     .caption = [this] { return caption; },
                     .setCaption = [this](const QString& text) { caption = text; }}};
};

} // namespace

TEST_F(AutoAlertTest, PressesEachWindowOnceAndTheSecondOneTellsOfIt)
{
    setCheck(Check::AutoSSL1, true);
    alert.watch().start();
    openWindow();
    EXPECT_EQ(presses, 1) << "the window that is still open is no second one";
    EXPECT_EQ(caption, u"Varnhold"_s);
    openWindow();
    EXPECT_EQ(presses, 1);
    EXPECT_EQ(caption, CertificateWatch::acceptedCaption());
    openWindow();
    EXPECT_EQ(presses, 0) << "a run of the program accepts once";
}

TEST_F(AutoAlertTest, LeavesTheQuestionToTheUserWhileNoOptionIsOn)
{
    openWindow();
    EXPECT_EQ(presses, 0);
}

} // namespace varnhold::test
