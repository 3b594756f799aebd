#include "download/BatchDownload.h"

#include "PlannerWorld.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

namespace varnhold::test {

namespace {

class BatchDownloadTest : public testing::Test, public PlannerWorld, public BatchHost
{
protected:
    void lockLists(bool locked) override { told.append(locked ? u"lock"_s : u"unlock"_s); }
    void showCheckBoxEntries(bool shown) override { told.append(shown ? u"boxes"_s : u"no boxes"_s); }
    void fitColumns() override { told.append(u"fit"_s); }
    void showStatus(const QString& text) override { told.append(u"status "_s + text); }
    void bringIntoView(int row) override { told.append(u"row %1"_s.arg(row)); }
    void hideSearch() override { told.append(u"no search"_s); }
    void runTimer(bool on) override { told.append(on ? u"timer"_s : u"no timer"_s); }
    [[nodiscard]] bool isEnding() const override { return ending; }

    /// "x" for a row that waits, "-" for one that does not.
    QString queue() const
    {
        QString marks;
        for (int row = 1; row <= list.count(); ++row)
            marks += list.isChecked(row) ? u'x' : u'-';
        return marks;
    }
    void setQueue(const QString& marks)
    {
        for (int row = 1; row <= list.count(); ++row)
            list.setChecked(row, marks.at(row - 1) == u'x');
    }
    void begin(const QString& marks)
    {
        setQueue(marks);
        batch.mnuChkDLoad_Click();
        told.clear();
    }

    QStringList told;
    bool ending = false;
    BatchDownload batch{
        {state, settings, list, *this, *this, planner, files, dialogs, boxes, sounds, root.paths()}};
};

} // namespace

TEST_F(BatchDownloadTest, ChecksRowsAsTheMenuSays)
{
    setQueue(u"x-x"_s);
    batch.mnuLVCheckBxs_Click();
    EXPECT_EQ(queue(), u"---"_s);
    EXPECT_EQ(told.join(u", "_s), u"boxes, fit"_s);
    EXPECT_TRUE(list.flags(list.index(0, 0)).testFlag(Qt::ItemIsUserCheckable));
    batch.mnuLVSelectAll_Click();
    EXPECT_EQ(queue(), u"xxx"_s);
    told.clear();
    batch.mnuLVCheckBxs_Click();
    EXPECT_EQ(queue(), u"xxx"_s); // kept while the boxes are gone
    EXPECT_EQ(told.join(u", "_s), u"no boxes, fit"_s);
    EXPECT_FALSE(list.flags(list.index(0, 0)).testFlag(Qt::ItemIsUserCheckable));
}

TEST_F(BatchDownloadTest, ChoosesItsFolderOnce)
{
    struct Case
    {
        const char* name;
        QString saveDir;
        bool useDir, titleFolder;
        QString answer; ///< of the browser; null: not asked
        QString folder; ///< empty: nothing starts
    };
    const Case cases[] = {
        {"both options", u"/dl"_s, true, true, {}, u"/dl/BLUS30443-[Game]"_s},
        {"the folder alone", u"/dl"_s, true, false, {}, u"/dl"_s},
        {"asked without the option", u"/dl"_s, false, true, u"/asked"_s, u"/asked"_s},
        {"asked without a folder", {}, true, true, u"/asked"_s, u"/asked"_s},
        {"cancelled", {}, true, false, u""_s, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        settings.setSaveDir(c.saveDir);
        settings.setChecked(Check::UseDLD, c.useDir);
        settings.setChecked(Check::CGNFolder, c.titleFolder);
        state.DLFolder = u"/before"_s;
        if (c.answer.isEmpty() && !c.answer.isNull())
            dialogs.cancelNext();
        else if (!c.answer.isNull())
            dialogs.answer(c.answer);
        told.clear();
        batch.mnuChkDLoad_Click();
        EXPECT_EQ(state.DLFolder, c.folder.isEmpty() ? u"/before"_s : c.folder);
        EXPECT_EQ(told.join(u", "_s),
                  c.folder.isEmpty() ? QString() : u"status "_s + c.folder + u", lock, no search, timer"_s);
        batch.tmr_Auto_Timer(); // no row is checked, so it ends
    }
    EXPECT_EQ(dialogs.asked.constLast().title, u"Select Download Location"_s);
    EXPECT_EQ(dialogs.asked.constLast().startFolder, root.paths().root);

    settings.setSaveDir(u"/dl"_s);
    settings.setChecked(Check::CGNFolder, true);
    files.failingCall = files.calls + 1;
    files.failure = 76;
    told.clear();
    boxes.expect(reportText(76, u"Path not found"_s));
    batch.mnuChkDLoad_Click();
    EXPECT_TRUE(told.isEmpty());
    EXPECT_FALSE(batch.isRunning());
}

TEST_F(BatchDownloadTest, FeedsWhatTheLimitAllows)
{
    struct Case
    {
        const char* name;
        QString queue;
        int limit;
        qint16 count; ///< windows that are open
        QString left; ///< of the queue
        std::size_t started;
        qint16 countAfter;
        QString told;
    };
    const QString end = u"no timer, unlock"_s;
    const Case cases[] = {
        {"nothing checked", u"---"_s, 2, 0, u"---"_s, 0, 0, end},
        {"nothing checked, a window open", u"---"_s, 2, 1, u"---"_s, 0, 1, {}},
        {"all fit", u"x-x"_s, 5, 0, u"---"_s, 2, 2, u"row 1, row 3"_s},
        {"some wait", u"xxx"_s, 2, 0, u"--x"_s, 2, 2, u"row 1, row 2"_s},
        {"none fits", u"xxx"_s, 2, 2, u"xxx"_s, 0, 2, {}},
        {"a lowered limit pulls the count down", u"--x"_s, 1, 4, u"--x"_s, 0, 1, {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        state.DLCount = 0;
        settings.setDownloadMax(5);
        begin(c.queue);
        settings.setDownloadMax(c.limit);
        state.DLCount = c.count;
        batch.tmr_Auto_Timer();
        EXPECT_EQ(queue(), c.left);
        EXPECT_EQ(windows.size(), c.started);
        EXPECT_EQ(state.DLCount, c.countAfter);
        EXPECT_EQ(told.join(u", "_s), c.told);
        for (int row = 1; row <= 3; ++row)
            EXPECT_EQ(list.icon(row), told.contains(u"row %1"_s.arg(row)) ? u"pkg-dl"_s : u"pkg"_s);
        for (int row = 1; row <= 3; ++row)
            list.setIcon(row, u"pkg"_s);
        windows.clear();
        for (qint16 place = 0; place < 5; ++place)
            planner.downloadSlots().free(place);
        batch.tmr_Auto_Timer();
    }
}

TEST_F(BatchDownloadTest, RefusesTargetsThatAreThereOrBeingWritten)
{
    files.contents = {{u"/dl/a.pkg"_s, "old"}, {u"/dl/b.pkg"_s, "old"}};
    inUse = {u"/dl/b.temp"_s};
    settings.setChecked(Check::OWrite, true);
    begin(u"xx-"_s);
    batch.tmr_Auto_Timer();
    EXPECT_EQ(queue(), u"---"_s);
    EXPECT_EQ(windows.size(), 1U);
    EXPECT_FALSE(files.contents.contains(u"/dl/a.pkg"_s)); // before a byte came; meant
    EXPECT_TRUE(files.contents.contains(u"/dl/b.pkg"_s));
    EXPECT_EQ(list.icon(2), u"pkg-dl"_s); // also of a refused row; meant

    settings.setChecked(Check::OWrite, false);
    inUse.clear();
    setQueue(u"-x-"_s);
    batch.tmr_Auto_Timer();
    EXPECT_EQ(windows.size(), 1U);
    EXPECT_EQ(queue(), u"---"_s);
}

TEST_F(BatchDownloadTest, StopsWhereItsRowsAreGone)
{
    struct Case
    {
        const char* name;
        std::function<void()> meanwhile;
        QString icons;
    };
    const auto refill = [&](const QString& host) {
        list.clear();
        for (int i = 0; i < 2; ++i) {
            list.addRow(u"01.00"_s);
            list.setSubItem(i + 1, UpdateList::Url, host + QString::number(i) + u".pkg"_s);
        }
    };
    const Case cases[] = {
        {"cleared", [&] { list.clear(); }, {}},
        {"another title", [&] { refill(u"http://other/"_s); }, u"pkg pkg"_s},
        {"a tick within the tick", [&] { batch.tmr_Auto_Timer(); }, u"pkg-dl pkg-dl"_s},
        {"the program ends", [&] { ending = true; }, u"pkg pkg"_s},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        ending = false;
        state.DLCount = 0;
        refill(u"http://host/"_s);
        begin(u"xx"_s);
        pump.at(pump.count + 1, c.meanwhile);
        batch.tmr_Auto_Timer();
        QStringList icons;
        for (int row = 1; row <= list.count(); ++row)
            icons.append(list.icon(row));
        EXPECT_EQ(icons.join(u' '), c.icons);
        windows.clear();
        for (qint16 place = 0; place < 5; ++place)
            planner.downloadSlots().free(place);
    }
}

} // namespace varnhold::test
