#include "AppWorld.h"

#include "app/DownloadWindows.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/XP_ProgressBar/XP_ProgressBar.h"
#include "download/frm_Winsock.h"
#include "support/FakeClock.h"
#include "support/FakeDownloadFiles.h"
#include "support/FakePump.h"
#include "support/FakeSocket.h"

#include <QApplication>
#include <QCloseEvent>
#include <QLabel>
#include <QPointer>
#include <QSignalSpy>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class FrmWinsock : public testing::Test, protected AppWorld
{
protected:
    FrmWinsock()
    {
        settings.unwrittenValues().opacities.at(2) = 180;
        window = new frm_Winsock(services(), nullptr);
        DownloadClient& client = window->client();
        client.setName(u"title.pkg"_s);
        client.setNameTag(u"/folder/title.pkg"_s);
        client.setNameToolTip(u"title.pkg"_s);
        client.setUrl(u"http://host/a/title.pkg"_s);
        client.setPath(u"/folder"_s);
        window->place(4800, 3000);
        window->loadSkin();
        window->show();
    }
    ~FrmWinsock() override { delete window; }

    [[nodiscard]] frm_Winsock::Services services()
    {
        return {.client = {sockets, files, clock, pump, boxes},
                .state = state,
                .settings = settings,
                .sounds = sounds,
                .screen = screen,
                .skin = [](QWidget&) {}};
    }
    void start()
    {
        window->client().Download1();
        sockets.last->arriveConnected();
        sockets.last->arrive("HTTP/1.0 200 OK\r\nContent-Length: 1805056\r\n\r\n");
    }
    [[nodiscard]] QString text(const char* name) { return child<QLabel>(*window, name).text(); }
    static void runDeletions() { QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete); }

    FakeSocketMaker sockets;
    FakeDownloadFiles files;
    FakeClock clock;
    FakePump pump;
    QPointer<frm_Winsock> window;
};

} // namespace

TEST_F(FrmWinsock, StaysAboveItsOwner)
{
    QWidget owner;
    const ShapedWindow owned(&owner);
    EXPECT_EQ(owned.windowType(), Qt::Dialog) << "of a plain window, managers take no notice of the owner";
}

TEST_F(FrmWinsock, FollowsItsOpacityOneWindowAfterTheOther)
{
    frmMain main({state, settings, list, boxes, sounds, screen, root.paths()});
    DownloadWindows windows(services(), main);
    frm_Winsock* open[3];
    for (frm_Winsock*& each : open) {
        each = &dynamic_cast<frm_Winsock&>(windows.makeWindow());
        each->loadSkin();
        each->show();
    }
    delete open[1];
    settings.setOpacity(OpacityOf::Download, 10);
    windows.followOpacity();
    EXPECT_NEAR(open[0]->windowOpacity(), 180 / 255.0, 0.01) << "not while the slider moves";
    for (int i = 0; i < 5; ++i)
        QCoreApplication::processEvents();
    EXPECT_NEAR(open[0]->windowOpacity(), 20 / 255.0, 0.01);
    EXPECT_NEAR(open[2]->windowOpacity(), 20 / 255.0, 0.01);
}

TEST_F(FrmWinsock, ShowsWhatItsClientSays)
{
    EXPECT_EQ(window->pos(), QPoint(320, 200));
    EXPECT_NEAR(window->windowOpacity(), 180 / 255.0, 0.01);
    EXPECT_EQ(text("lblName"), u"title"_s);
    EXPECT_EQ(child(*window, "lblName").toolTip(), u"title.pkg"_s);
    EXPECT_EQ(text("lblUrl"), u"http://host/a/title.pkg"_s);
    EXPECT_EQ(text("lblPath"), u"/folder"_s);
    EXPECT_EQ(text("lbl_Speed"), u"0 B/s"_s);
    start();
    sockets.last->arrive(QByteArray(1000, 'x'));
    clock.advance(1000);
    sockets.last->arrive(QByteArray(901528, 'x'));
    EXPECT_EQ(text("lblFileSize"), u"1.72 MB (1805056 bytes)"_s);
    EXPECT_EQ(text("lbl_Done"), u"50%"_s);
    EXPECT_EQ(child<XP_ProgressBar>(*window, "PB").percent(), 50);
    EXPECT_TRUE(text("lblCaption").startsWith(u"Downloading - Remaining: "_s))
        << text("lblCaption").toStdString();
}

TEST_F(FrmWinsock, SaysWhereTheFileIsOnAClickOfItsName)
{
    start();
    boxes.expect(u"/folder/title.temp"_s, u"title"_s);
    QTest::mouseClick(&child(*window, "lblName"), Qt::LeftButton);
}

TEST_F(FrmWinsock, CancelsWithASoundAndGoes)
{
    start();
    const QSignalSpy unloads(window.get(), &frm_Winsock::unloaded);
    QTest::keyClick(window.get(), Qt::Key_Escape);
    EXPECT_EQ(player.played, QStringList{u"0"_s});
    EXPECT_EQ(unloads.count(), 1);
    EXPECT_FALSE(window->isVisible());
    EXPECT_FALSE(files.exists(u"/folder/title.temp"_s));
    runDeletions();
    EXPECT_TRUE(window.isNull());
}

TEST_F(FrmWinsock, UnloadsOnceByItsButtonTheDesktopAndTheProgram)
{
    start();
    const QSignalSpy unloads(window.get(), &frm_Winsock::unloaded);
    QCloseEvent event;
    QSpontaneKeyEvent::setSpontaneous(&event);
    qApp->notify(window.get(), &event);
    EXPECT_EQ(unloads.count(), 1);
    window->unload();
    child<ButtonEx>(*window, "btnExit").click();
    EXPECT_EQ(unloads.count(), 1);
    EXPECT_TRUE(files.exists(u"/folder/title.temp"_s)) << "what has arrived stays";
}

TEST_F(FrmWinsock, OutlivesTheWaitThatItsClientStandsIn)
{
    start();
    sockets.last->arrive(QByteArray(1000, 'x'));
    const QSignalSpy unloads(window.get(), &frm_Winsock::unloaded);
    const int before = pump.count;
    pump.at(before + 100, [this] {
        child<ButtonEx>(*window, "btnExit").click();
        runDeletions();
        EXPECT_FALSE(window.isNull()) << "the client still stands in its wait";
    });
    sockets.last->peerCloses();
    EXPECT_EQ(unloads.count(), 1);
    EXPECT_LE(pump.count, before + 102) << "a window that is gone has nothing to wait for";
    runDeletions();
    EXPECT_TRUE(window.isNull());
}

TEST_F(FrmWinsock, SnapsButStoresNoPlace)
{
    setCheck(Check::Edge, true);
    drag(child(*window, "lblCaption"), {-316, 0});
    EXPECT_EQ(window->pos(), QPoint(0, 200));
    EXPECT_EQ(stored(u"Varnhold X"_s), u"(missing)"_s);
}

} // namespace varnhold::test
