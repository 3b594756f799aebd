#include "download/DownloadPlanner.h"
#include "PlannerWorld.h"
#include "download/SkinDownloads.h"
#include "state/Hosts.h"
#include "support/FakeShell.h"
#include "support/PrintText.h"

#include <functional>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

class DownloadPlannerTest : public testing::Test, public PlannerWorld
{
};

} // namespace

TEST_F(DownloadPlannerTest, startsEachRouteInItsOwnWay)
{
    struct Case
    {
        const char* name;
        std::function<void()> start;
        QString tag, path, toolTip, icon;
        qint16 slotIndex;
    };
    const Case cases[] = {
        {"menu", [&] { planner.mnuDLoad_Click(); }, u"/dl/b.pkg"_s, u"/dl"_s, u"b.pkg"_s, u"pkg-dl"_s, 1},
        {"double click", [&] { planner.ListView1_DblClick(); }, u"/else/x.pkg"_s, u"/else/"_s, u"x.pkg"_s,
         u"pkg-dl"_s, 0},
        {"dropped", [&] { planner.DownloadUrl(u"http://host/B.PKG?q=1"_s); }, u"/dl/B.PKG?q=1"_s, u"/dl"_s,
         u"B.PKG?q=1"_s, u"pkg"_s, 1},
        {"report",
         [&] { planner.mnuLstVwDL_Click(u"http://host/"_s, u"ID"_s, u"N"_s); },
         u"/dl/"_s,
         u"/dl"_s,
         {},
         u"pkg"_s,
         1},
        {"batch",
         [&] { planner.Execute_Multiple(u"http://host/b.pkg"_s, u"n.pkg"_s); },
         u"/batch/n.pkg"_s,
         u"/batch"_s,
         {},
         u"pkg"_s,
         1},
    };
    state.DLFolder = u"/batch"_s;
    selected = 2;
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        state.DLCount = 2;
        planner.downloadSlots() = DownloadSlots();
        planner.downloadSlots().lstFrm[0] = u"0"_s;
        list.setIcon(2, u"pkg"_s);
        log.clear();
        player.played.clear();
        windows.clear();
        dialogs.asked.clear();
        if (QByteArrayView(c.name) == "double click")
            dialogs.answer(u"/else/x.pkg"_s);

        c.start();
        ASSERT_EQ(windows.size(), 1U);
        EXPECT_EQ(labels().nameTag, c.tag);
        EXPECT_EQ(labels().path, c.path);
        EXPECT_EQ(labels().nameToolTip, c.toolTip);
        EXPECT_EQ(labels().name, c.tag.section(u'/', -1).remove(u".pkg"_s));
        EXPECT_EQ(list.icon(2), c.icon);
        EXPECT_EQ(windows.back()->client().SlotIndex, c.slotIndex);
        EXPECT_EQ(log, (QStringList{u"place 1640 2640"_s, u"skin"_s, u"show"_s}));
        EXPECT_EQ(player.played.isEmpty(), c.path == u"/batch"_s);
        EXPECT_EQ(shownCount, 3);
        EXPECT_EQ(cascade(), u"0 1 99 99 99"_s);
        EXPECT_EQ(sockets.last->connects, QStringList{u"host:80"_s});
    }
}

TEST_F(DownloadPlannerTest, findsTheFolderByTheOptions)
{
    struct Case
    {
        bool useFolder, titleFolder;
        QString startFolder, tag;
    };
    const Case cases[] = {
        {true, true, u"/dl/BLUS30443-[Game]"_s, u"/dl/BLUS30443-[Game]/a.pkg"_s},
        {true, false, u"/dl"_s, u"/dl/a.pkg"_s},
        {false, true, u""_s, u"/chosen.pkg"_s},
    };
    for (const Case& c : cases) {
        settings.setChecked(Check::UseDLD, c.useFolder);
        settings.setChecked(Check::CGNFolder, c.titleFolder);
        files.folders.clear();
        dialogs.asked.clear();
        if (!c.useFolder)
            dialogs.answer(u"/chosen.pkg"_s);
        planner.mnuDLoad_Click();
        EXPECT_EQ(labels().nameTag, c.tag);
        EXPECT_EQ(files.folders, c.useFolder && c.titleFolder ? QStringList{c.startFolder} : QStringList());

        dialogs.answer(u"/other.pkg"_s);
        planner.ListView1_DblClick();
        EXPECT_EQ(dialogs.asked.last().startFolder, c.startFolder);
        EXPECT_EQ(labels().nameTag, u"/other.pkg"_s);
        planner.downloadSlots() = DownloadSlots();
        state.DLCount = 0;
    }
    const FileDialogRequest& request = dialogs.asked.last();
    EXPECT_EQ(request.title, u"Choose a location to Save:"_s);
    EXPECT_EQ(request.filter, u"Packages (*.pkg)|*.pkg|All Files (*.*)|*.*"_s);
    EXPECT_EQ(request.defaultExtension, u"*.pkg"_s);
    EXPECT_EQ(request.fileName, u"a.pkg"_s);

    // No folder, no download, and no slot yet.
    settings.setChecked(Check::UseDLD, true);
    settings.setChecked(Check::CGNFolder, true);
    files.failure = errors::pathNotFound;
    files.failingCall = files.calls + 1;
    boxes.expect(u"76 Path not found"_s, u"Title"_s);
    const std::size_t before = windows.size();
    planner.mnuDLoad_Click();
    EXPECT_EQ(windows.size(), before);
    EXPECT_EQ(shownCount, 2);
}

TEST_F(DownloadPlannerTest, asksBeforeItOverwrites)
{
    // Answering No keeps the slot; a sixth download has none.
    files.contents.insert(u"/dl/a.pkg"_s, "old");
    const QString question = u"a.pkg\r\nThis file Exist's, Are you sure you want to over write?"_s;
    for (int i = 0; i < 5; ++i) {
        boxes.expect(question, u"Over Write?"_s, BoxAnswer::No);
        planner.mnuDLoad_Click();
    }
    EXPECT_TRUE(windows.empty());
    EXPECT_EQ(cascade(), u"0 1 2 3 4"_s);
    boxes.expect(question, u"Over Write?"_s, BoxAnswer::Yes);
    boxes.expect(u"381 Invalid property array index"_s, u"Title"_s);
    planner.mnuDLoad_Click();
    EXPECT_TRUE(windows.empty());
    EXPECT_EQ(state.LoopIndex, 5);
    EXPECT_EQ(state.DLCount, 1); // raised and not corrected
    EXPECT_EQ(log, QStringList());
    EXPECT_EQ(files.contents.value(u"/dl/a.pkg"_s), "old");
}

TEST_F(DownloadPlannerTest, losesThePathOfAnOverwrittenFileExceptOnADoubleClick)
{
    settings.setChecked(Check::UseDLD, false);
    files.contents.insert(u"/to/x.pkg"_s, "old");
    const QString question = u"Over write this file?\r\n\r\nx.pkg"_s;

    dialogs.answer(u"/to/x.pkg"_s);
    boxes.expect(question, u"Over Write?"_s, BoxAnswer::No);
    planner.DownloadUrl(u"http://host/a.pkg"_s);
    EXPECT_TRUE(windows.empty());
    dialogs.cancelNext();
    planner.DownloadUrl(u"http://host/a.pkg"_s);
    EXPECT_TRUE(windows.empty());
    EXPECT_EQ(shownCount, -1);

    dialogs.answer(u"/to/x.pkg"_s);
    boxes.expect(question, u"Over Write?"_s, BoxAnswer::Yes);
    planner.DownloadUrl(u"http://host/a.pkg"_s);
    EXPECT_EQ(labels().nameTag, u"/to/"_s);
    EXPECT_EQ(labels().path, QString());

    dialogs.answer(u"/to/x.pkg"_s);
    boxes.expect(question, u"Over Write?"_s, BoxAnswer::Yes);
    planner.ListView1_DblClick();
    EXPECT_EQ(labels().nameTag, u"/to/x.pkg"_s);
    EXPECT_EQ(labels().path, u"/to/"_s);
    EXPECT_EQ(cascade(), u"0 1 2 3 99"_s);

    // The batch asks nobody: it leaves the file, or deletes it at once.
    state.DLFolder = u"/to"_s;
    files.contents.insert(u"/to/x.pkg"_s, "old");
    settings.setChecked(Check::OWrite, false);
    planner.Execute_Multiple(u"http://host/a.pkg"_s, u"x.pkg"_s);
    EXPECT_EQ(windows.size(), 2U);
    EXPECT_EQ(cascade(), u"0 1 2 3 4"_s);
    planner.downloadSlots().free(4);
    settings.setChecked(Check::OWrite, true);
    planner.Execute_Multiple(u"http://host/a.pkg"_s, u"x.pkg"_s);
    EXPECT_EQ(windows.size(), 3U);
    EXPECT_FALSE(files.contents.contains(u"/to/x.pkg"_s));
}

TEST_F(DownloadPlannerTest, keepsALimitThatDrifts)
{
    settings.setDownloadMax(3);
    for (selected = 1; selected <= 3; ++selected)
        planner.mnuDLoad_Click();
    selected = 1;
    expectLimitBox();
    planner.mnuDLoad_Click();
    EXPECT_EQ(state.DLCount, 3);
    planner.ListView1_DblClick(); // silent, and before it looks at the row
    planner.Execute_Multiple(u"u"_s, u"n"_s);

    settings.setDownloadMax(1);
    expectLimitBox();
    planner.mnuDLoad_Click();
    EXPECT_EQ(state.DLCount, 1);
    EXPECT_EQ(cascade(), u"0 1 2 99 99"_s);
    for (int i = 0; i < 3; ++i)
        unload(0);
    EXPECT_EQ(shownCount, -2);
    EXPECT_EQ(cascade(), u"99 99 99 99 99"_s);

    // Nothing selected, no url, no text: nothing happens.
    selected = 0;
    planner.mnuDLoad_Click();
    selected = 4;
    list.addRow(QString());
    planner.mnuDLoad_Click();
    list.setSubItem(4, UpdateList::Url, u"http://host/d.pkg"_s);
    planner.ListView1_DblClick();
    EXPECT_TRUE(windows.empty());
    EXPECT_EQ(cascade(), u"99 99 99 99 99"_s);
}

TEST_F(DownloadPlannerTest, readsTheSharedSlotIndexAfterTheStartHasPumped)
{
    pump.at(1, [&] { state.LoopIndex = 3; });
    planner.mnuDLoad_Click();
    EXPECT_EQ(log.first(), u"place 1320 2320"_s);
    EXPECT_EQ(windows.back()->client().SlotIndex, 3);
    unload(0);
    EXPECT_EQ(cascade(), u"0 99 99 99 99"_s); // its own slot stays taken

    // The window ends in the very pump of its start, and its row is gone: only the slot is told.
    list.clear();
    pump.at(pump.count + 1, [&] { unload(0); });
    planner.DownloadUrl(u"http://host/z.pkg"_s);
    EXPECT_TRUE(windows.empty());
    EXPECT_EQ(cascade(), u"99 1 99 99 99"_s);
}

TEST_F(DownloadPlannerTest, marksTheRowAtTheEnd)
{
    struct Case
    {
        QByteArray header, content;
        bool removes;
        QString icon;
    };
    const Case cases[] = {
        {"HTTP/1.0 200 OK\r\nContent-Length: 5\r\n\r\n", "12345", false, u"pkg-plus"_s},
        {"HTTP/1.0 200 OK\r\nContent-Length: 6\r\n\r\n", "12345", false, u"pkg-red"_s},
        {"HTTP/1.0 200 OK\r\nContent-Length: 5\r\n\r\n12345", "", false, u"pkg-red"_s}, // no size was shown
        {"HTTP/1.0 404 Gone\r\n\r\n", "", false, u"pkg-red"_s},
        {"HTTP/1.0 404 Gone\r\n\r\n", "", true, u"pkg"_s},
    };
    for (const Case& c : cases) {
        files.contents.clear();
        list.setChecked(1, true);
        planner.mnuDLoad_Click();
        sockets.last->arriveConnected();
        sockets.last->arrive(c.header);
        for (const char byte : c.content) {
            sockets.last->arrive(QByteArray(1, byte));
            clock.advance(100);
        }
        sockets.last->peerCloses();
        if (c.removes)
            files.contents.clear();
        unload(0);
        EXPECT_EQ(list.icon(1), c.icon) << c.header.toStdString();
        EXPECT_FALSE(list.isChecked(1));
    }
}

TEST_F(DownloadPlannerTest, opensTheForumForSkins)
{
    FakeShell shell;
    Hosts hosts;
    hosts.forum.authority = u"forum.test:81"_s;
    mnuSkinDL_Click(sounds, shell, hosts);
    EXPECT_EQ(shell.opened, QStringList{u"http://forum.test:81/forum/viewtopic.php?p=943#943"_s});
    EXPECT_EQ(player.played, QStringList{u"/menu.wav"_s});
}

} // namespace varnhold::test
