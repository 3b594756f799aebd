#pragma once

#include "app/Common.h"
#include "gamedb/Transfer.h"
#include "search/LinkResults.h"
#include "search/ListImport.h"
#include "search/ResultList.h"
#include "search/Search.h"
#include "search/frmSearch.h"

#include <QObject>

namespace varnhold {

class AppearanceOwner;
class DatabaseOwner;
class DownloadOwner;
class Lookup;
class ReportOwner;

/// Search, import and export of lists, in their window, which is made at the start.
class SearchOwner : public QObject, private LinkResults
{
    Q_OBJECT

public:
    SearchOwner(const Common& common, Lookup& lookup, DatabaseOwner& database, DownloadOwner& downloads,
                ReportOwner& report, AppearanceOwner& appearance);

private:
    void connectWindow();
    void bindCommands();
    void openSearch();
    void openImport();
    void mnuImport_Click();
    void importIdListFile();
    void open();
    void choose(int row);
    void openMenu(int row, const QPoint& place);
    void showLinks(const QList<FoundLink>& rows, const QString& title) override;

    Common m_common;
    Lookup& m_lookup;
    DatabaseOwner& m_database;
    ReportOwner& m_report;
    ResultList m_results;
    frmSearch m_window;
    Search m_search;
    ListImport m_import;
    Transfer m_transfer;
    int m_menuRow = -1; ///< that mnuSrch was opened on
};

} // namespace varnhold
