#include "search/Search.h"

#include "gamedb/SharedDatabase.h"
#include "platform/BusyPointer.h"
#include "search/LinkResults.h"
#include "search/ResultList.h"
#include "search/SearchView.h"
#include "state/Sounds.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// Of a search, to tell it apart from others.
QString foundText(const SearchQuery& query, int count)
{
    return u"Found - "_s + QString::number(count) + u" in "_s + query.table + u" - "_s + query.column +
           u" - "_s + (query.descending ? u"Descending"_s : u"Ascending"_s);
}

} // namespace

void Search::cmdSearch_Click()
{
    SearchView& view = m_services.view;
    m_services.sounds.play(Sound::Click);
    m_services.results.clear();
    view.enableSearch(false);
    view.showProgress(1);
    m_services.database.reporting([this] { run(); });
}

void Search::run()
{
    SharedDatabase& database = m_services.database;
    SearchView& view = m_services.view;
    const auto busy = busyPointer(view);
    const SearchQuery query = view.query();
    database.connect();
    database.select(query.statementText());
    Recordset& records = *database.DBRecords;
    const int count = records.RecordCount();
    QList<FoundLink> links;
    if (count < 1) {
        m_services.results.clear();
        view.setCaption(u"Search - 0"_s);
    } else {
        view.showProgress(count);
        const QString idColumn = u"Gameid"_s;
        const QString nameColumn = u"GameName"_s;
        TextRows rows;
        while (!records.atEnd()) {
            if (query.wantsLinks())
                links.append(foundLinkOf(records));
            else
                rows.append(records.value(idColumn), records.value(nameColumn));
            view.setProgress(records.AbsolutePosition());
            records.MoveNext();
        }
        m_services.results.setRows(std::move(rows));
        view.setCaption(foundText(query, count));
    }
    view.hideProgress();
    view.enableSearch(true);
    database.close();
    if (!links.isEmpty())
        m_services.links.showLinks(links, foundText(query, count));
}

} // namespace varnhold
