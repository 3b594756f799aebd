#include "lookup/Lookup.h"

#include "LookupWorld.h"
#include "platform/RunTimeError.h"
#include "state/Hosts.h"
#include "state/Sounds.h"
#include "support/FakeBrowser.h"
#include "support/FakePump.h"
#include "support/FakeSoundPlayer.h"

#include <gtest/gtest.h>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

QString pageOf(const QString& id, const QString& title)
{
    return u"  <?xml version=\"1.0\"?>\r\n<titlepatch titleid=\"%1\"><package version=\"1\" url=\"u\" /><TITLE>%2</TITLE>"_s
        .arg(id, title);
}

class LookupTest : public testing::Test, protected LookupWorld
{
protected:
    LookupTest()
    {
        for (HostEntry& entry : hosts.servers)
            entry.authority = u"h:1"_s;
        values().server = 2;
        view.games = {u"BLES00001 one"_s, u"bles00002 two"_s};
        view.titles = {u"One: Update"_s, u""_s};
    }

    /// The page comes while the routine pumps for the nth time.
    void showAt(int count, const std::optional<QString>& text)
    {
        pump.at(count, [this, text] { browser.show(text); });
    }

    Hosts hosts;
    FakeBrowser browser;
    FakeSoundPlayer player;
    Sounds sounds{settings, player, state};
    FakePump pump;
    Lookup lookup{{state, settings, hosts, list, view, browser, sounds, boxes, pump}};
};

} // namespace

TEST_F(LookupTest, LooksUpWhatTheBoxHolds)
{
    view.gameId = u"blus30443"_s;
    view.infoText = view.blank = u"old"_s;
    list.addRow(u"old"_s);
    pump.at(1, [this] {
        EXPECT_EQ(list.count(), 0);
        EXPECT_EQ(view.infoText, u""_s);
        EXPECT_EQ(view.blank, u"old"_s) << "a manual lookup leaves the count";
        EXPECT_EQ(view.journal, QStringList{u"views"_s});
    });
    showAt(3, pageOf(u"blus30443"_s, u"Game"_s));
    lookup.btnFetch_Click();
    EXPECT_EQ(browser.urls, QStringList{u"http://h:1/tppkg/np/'BLUS30443/BLUS30443-ver.xml"_s});
    EXPECT_EQ(state.LookupID, u"blus30443"_s);
    EXPECT_EQ(pump.count, 3);
    EXPECT_EQ(view.infoText, u"Game"_s);
    EXPECT_EQ(view.blank, u"[1 Updates]"_s);
    EXPECT_EQ(view.status, u"Done"_s);
    EXPECT_EQ(view.autosized, 2);
    EXPECT_EQ(view.titles.value(0), u"Game"_s)
        << "the row of the last list lookup, which is the first at first";
    EXPECT_EQ(lookup.title(), u"Game"_s);
}

TEST_F(LookupTest, LooksUpTheRowOfTheGameList)
{
    view.selected = 1;
    view.titles[1] = u"Two  (bles00002)"_s;
    pump.at(1, [this] {
        EXPECT_EQ(lookup.listRow(), 1);
        EXPECT_EQ(view.infoText, u"Two"_s);
    });
    showAt(2, pageOf(u"bles00002"_s, u"Second"_s));
    lookup.MorphListBox1_DblClick();
    EXPECT_EQ(browser.urls, QStringList{u"http://h:1/tppkg/np/'bles00002/bles00002-ver.xml"_s});
    EXPECT_EQ(view.gameId, u"bles00002"_s);
    EXPECT_EQ(view.titles, (QStringList{u"One: Update"_s, u"Second"_s}));

    // A manual lookup writes into that row; one through the search loads the entry and leaves the id box.
    view.gameId = u"BLUS30443"_s;
    showAt(3, pageOf(u"BLUS30443"_s, u"Game"_s));
    lookup.btnFetch_Click();
    EXPECT_EQ(view.titles.value(1), u"Game"_s);

    view.selected = 0;
    bool loaded = false;
    lookup.setEntryLoader([&] {
        EXPECT_EQ(list.count(), 0);
        loaded = true;
        throw RunTimeError(errors::objectNotSet);
    });
    showAt(4, u""_s);
    lookup.ID_Click();
    EXPECT_TRUE(loaded);
    EXPECT_EQ(state.LookupID, u"BLUS30443"_s) << "the box counts, whatever is selected";
    EXPECT_EQ(view.infoText, u"One"_s);
    EXPECT_EQ(view.blank, u""_s);
}

TEST_F(LookupTest, StartsNothingWithoutAnIdOrAServer)
{
    values().checks.at(static_cast<std::size_t>(Check::SoundsClick)) = true;
    view.gameId.clear();
    list.addRow(u"old"_s);
    lookup.btnFetch_Click();
    lookup.MorphListBox1_DblClick();
    EXPECT_EQ(list.count(), 1);
    EXPECT_EQ(player.played.size(), 2) << "the click is heard all the same";
    view.gameId = u"BLUS30443"_s;
    values().server = 7;
    lookup.btnFetch_Click();
    EXPECT_TRUE(browser.urls.isEmpty());
    EXPECT_EQ(list.count(), 0);
}

TEST_F(LookupTest, ReadsOnlyThePageOfTheLookup)
{
    const struct
    {
        const char* name;
        QString id;
        std::optional<QString> page;
        int rows;
        QString status;
    } cases[] = {
        {"its page", u"BLUS30443"_s, pageOf(u"BLUS30443"_s, u"G"_s), 1, u"Done"_s},
        {"a late page of another", u"BLUS30443"_s, pageOf(u"BLES00001"_s, u"G"_s), 0, u"Done"_s},
        {"an id in another case", u"blus30443"_s, pageOf(u"BLUS30443"_s, u"G"_s), 0, u"Done"_s},
        {"no id matches nothing", u""_s, pageOf(u"BLUS30443"_s, u"G"_s), 0, u"Done"_s},
        {"no XML", u"BLUS30443"_s, u"BLUS30443 The XML page cannot be displayed"_s, 0,
         u"No Update Info is Available"_s},
    };
    for (const auto& one : cases) {
        SCOPED_TRACE(one.name);
        list.clear();
        state.LookupID = one.id;
        const int autosized = view.autosized;
        browser.show(one.page);
        EXPECT_EQ(list.count(), one.rows);
        EXPECT_EQ(view.status, one.status);
        EXPECT_EQ(view.autosized > autosized, one.status == u"Done"_s);
    }
    // No body: the last text stays and counts.
    state.LookupID = u"BLUS30443"_s;
    state.XMLText = pageOf(u"BLUS30443"_s, u"Kept"_s);
    browser.show(std::nullopt);
    EXPECT_EQ(view.infoText, u"Kept"_s);
}

TEST_F(LookupTest, TellsNavigationErrorsThatItKnows)
{
    pump.at(1, [this] { browser.refuse(404); });
    lookup.btnFetch_Click();
    EXPECT_EQ(view.status, u"404 - Requested Data Is Not available"_s);
    browser.refuse(-2146697212);
    EXPECT_EQ(view.status, u"Unable to connect to server"_s);
    browser.refuse(500);
    EXPECT_EQ(view.status, u"Unable to connect to server"_s) << "an unknown code leaves the text";
}

TEST_F(LookupTest, ShowsProgressAsFarAsItCanBeReckoned)
{
    const struct
    {
        int progress;
        int maximum;
        QStringList journal;
    } cases[] = {
        {-1, 0, {u"100"_s, u"hide"_s}},
        {0, 100, {u"hide"_s}},
        {50, 0, {u"hide"_s}},
        {1, 3, {u"hide"_s, u"show"_s, u"33"_s}},
        {1, 200, {u"hide"_s, u"show"_s, u"0"_s}},
        {3, 200, {u"hide"_s, u"show"_s, u"2"_s}},
        {21474836, 21474836, {u"hide"_s, u"show"_s, u"100"_s}},
        {21474837, 21474837, {u"hide"_s, u"show"_s}}, // runs over: the old value stays
    };
    for (const auto& one : cases) {
        view.journal.clear();
        Q_EMIT browser.progressChanged(one.progress, one.maximum);
        EXPECT_EQ(view.journal, one.journal) << one.progress << " of " << one.maximum;
    }
}

TEST_F(LookupTest, LeavesTheWaitWhenTheProgramEnds)
{
    pump.at(2, [this] { pump.ending = true; });
    lookup.btnFetch_Click();
    EXPECT_TRUE(browser.busy());
}

TEST_F(LookupTest, TakesDroppedPackagesOnly)
{
    QStringList taken;
    const DropTarget target = [&](const QString& url) { taken.append(url); };
    lookup.dropText(u"http://H/Some.PKG"_s, target);
    EXPECT_EQ(taken, QStringList{u"http://H/Some.PKG"_s});

    const QString text = u"This Extension is not supported\r\n\r\nExtension: \t"_s;
    boxes.expect(text + u"pkg?x"_s, u"Varnhold"_s);
    lookup.dropText(u"http://h/a.pkg?X"_s, target);
    boxes.expect(text, u"Varnhold"_s);
    lookup.dropText(u"http://h.com/name"_s, target);
    EXPECT_EQ(boxes.shown.value(0).icon, BoxIcon::Critical);
    EXPECT_EQ(taken.size(), 1);

    boxes.expect(reportText(381, u"Invalid property array index"_s, u"Err Description:"_s),
                 u"ErrorException"_s);
    lookup.dropText(u"a.pkg"_s, [](const QString&) { throw RunTimeError(381); });
}

} // namespace varnhold::test
