#include "search/Search.h"

#include "SearchWorld.h"
#include "platform/database/DatabaseErrors.h"
#include "search/LinkResults.h"

namespace varnhold::test {

using namespace Qt::StringLiterals;

class SearchTest : public SearchWorld, private LinkResults
{
protected:
    SearchTest()
    {
        database.addGames(u"PS3Games"_s, {{u"A1"_s, u"Harbour"_s},
                                          {u"A2"_s, u"the harbour"_s},
                                          {u"B1"_s, u"O'Neil"_s},
                                          {u"B2"_s, QString()}});
        database.execute(u"INSERT INTO PS3Links (GameID, GameName, PKG, FW, SIZE, SHA1, Link) VALUES "
                         "('A1', 'Harbour', '01.00', '3.55', '1 MB', 'ab', 'http://h/a')"_s);
    }

    void showLinks(const QList<FoundLink>& rows, const QString& title) override
    {
        for (const FoundLink& row : rows)
            links << row.gameId + u'|' + row.package + u'|' + row.size + u'|' + row.link;
        linksTitle = title;
    }

    QStringList links;
    QString linksTitle;
    Search search{{shared, view, results, *this, sounds}};
};

TEST_F(SearchTest, FindsByPlaceColumnAndOrder)
{
    using Match = SearchQuery::Match;
    const struct
    {
        QString text;
        QString column;
        Match match;
        bool descending;
        QStringList ids;
    } cases[] = {
        {u" HARBOUR "_s, u"GameName"_s, Match::Any, false, {u"A1"_s, u"A2"_s}},
        {u"harbour"_s, u"GameName"_s, Match::Start, false, {u"A1"_s}},
        {u"the"_s, u"GameName"_s, Match::Whole, false, {}},
        {u"%our"_s, u"GameName"_s, Match::Whole, false, {}},
        {u"h_rb"_s, u"GameName"_s, Match::Start, false, {u"A1"_s}},
        {u"2"_s, u"GameID"_s, Match::Any, true, {u"B2"_s, u"A2"_s}},
        {{},
         u"GameID"_s,
         Match::Any,
         false,
         {u"A1"_s, u"A2"_s, u"B1"_s, u"B2"_s}}, // the name that is none too
    };
    for (const auto& row : cases) {
        view.wanted = {u"PS3Games"_s, row.column, row.match, row.descending, row.text};
        search.cmdSearch_Click();
        QStringList ids;
        for (int i = 0; i < results.count(); ++i)
            ids << results.id(i);
        EXPECT_EQ(ids, row.ids) << qPrintable(row.text);
        const QString order = row.descending ? u"Descending"_s : u"Ascending"_s;
        EXPECT_EQ(view.title,
                  row.ids.isEmpty()
                      ? u"Search - 0"_s
                      : u"Found - %1 in PS3Games - %2 - %3"_s.arg(ids.size()).arg(row.column, order));
        EXPECT_TRUE(view.searchEnabled && !view.bar && !view.busy);
    }
}

TEST_F(SearchTest, ShowsLinksElsewhereAndKeepsThemWhenNothingIsFound)
{
    view.wanted.table = u"PS3Links"_s;
    search.cmdSearch_Click();
    EXPECT_EQ(links, QStringList{u"A1|01.00|1 MB|http://h/a"_s});
    EXPECT_EQ(linksTitle, u"Found - 1 in PS3Links - GameName - Ascending"_s);
    EXPECT_EQ(view.title, linksTitle);
    EXPECT_EQ(results.count(), 0);
    view.wanted.text = u"nothing"_s;
    search.cmdSearch_Click();
    EXPECT_EQ(links.size(), 1);
    EXPECT_EQ(view.title, u"Search - 0"_s);
}

TEST_F(SearchTest, ReportsAnApostropheAndLeavesThePanelAsItIs)
{
    view.wanted.text = u"O'Neil"_s;
    search.cmdSearch_Click();
    EXPECT_EQ(boxes.taken(), QStringList{AnsweringBoxes::report(errors::database::badSyntax)});
    EXPECT_TRUE(!view.searchEnabled && view.bar && !view.busy);
    search.cmdSearch_Click(); // the connection is still open, which costs the next one
    EXPECT_EQ(boxes.taken(), QStringList{AnsweringBoxes::report(errors::database::objectOpen)});
    view.wanted.text = u"Neil"_s;
    search.cmdSearch_Click();
    EXPECT_EQ(listed(), QStringList{u"B1|O'Neil"_s});
    EXPECT_TRUE(view.searchEnabled);
}

} // namespace varnhold::test
