#include "app/SearchOwner.h"

#include "app/AppearanceOwner.h"
#include "app/ChildPlace.h"
#include "app/ChooseGame.h"
#include "app/DatabaseOwner.h"
#include "app/DownloadOwner.h"
#include "app/ReportOwner.h"
#include "app/main/frmMain.h"
#include "app/menu/MenuCommands.h"
#include "app/menu/frmMenu.h"
#include "platform/Clipboard.h"
#include "search/ListExport.h"
#include "state/Sounds.h"

#include <QAction>

namespace varnhold {

using namespace Qt::StringLiterals;

SearchOwner::SearchOwner(const Common& common, Lookup& lookup, DatabaseOwner& database,
                         DownloadOwner& downloads, ReportOwner& report, AppearanceOwner& appearance)
    : m_common(common),
      m_lookup(lookup),
      m_database(database),
      m_report(report),
      m_window({common.state, common.settings, common.world.screen, m_results}),
      m_search({database.database(), m_window, m_results, *this, common.sounds}),
      m_import({database.database(), m_window, m_results, database.view(), database.gameList(),
                common.world.dialogs, common.world.boxes, common.paths}),
      m_transfer({database.database(), common.settings, common.world.boxes,
                  [this](bool busy) { m_window.showBusy(busy); },
                  [this] { m_database.gameList().CmdRefresh_Click(); }})
{
    appearance.add(m_window);
    connectWindow();
    bindCommands();
    downloads.onSearchInTheWay([this] { m_window.hide(); });
    database.tools().onImport([this] { importIdListFile(); });
}

void SearchOwner::connectWindow()
{
    connect(&m_common.main, &frmMain::searchRequested, this, [this] {
        m_common.sounds.play(Sound::Menu);
        openSearch();
    });
    connect(&m_window, &frmSearch::searchRequested, this, [this] { m_search.cmdSearch_Click(); });
    connect(&m_window, &frmSearch::exportRequested, this, [this] {
        cmdExport_Click({m_window, m_results, m_common.world.dialogs, m_common.world.boxes, m_common.sounds,
                         m_common.paths});
    });
    connect(&m_window, &frmSearch::grabRequested, this, [this] { m_import.cmdGrab_Click(); });
    connect(&m_window, &frmSearch::importRequested, this, [this] { m_import.cmdImport_Click(); });
    connect(&m_window, &frmSearch::resultChosen, this, &SearchOwner::choose);
    connect(&m_window, &frmSearch::mnuSrchWanted, this, &SearchOwner::openMenu);
}

void SearchOwner::bindCommands()
{
    MenuCommands& commands = m_common.commands;
    commands.bind("mnuSearch", [this] { openSearch(); });
    commands.bind("mnuImport", [this] { mnuImport_Click(); });
    commands.bind("mnuCpy", [this] {
        m_transfer.mnuCpy(m_results.id(m_menuRow), m_results.name(m_menuRow),
                          m_menuRow < 0 ? 0 : m_results.count(), m_window.table());
    });
    commands.bind("mnuSrchCopy", [this] {
        if (m_menuRow >= 0)
            m_common.world.clipboard.setText(m_results.label(m_menuRow));
    });
}

void SearchOwner::openSearch()
{
    m_window.showSearch();
    open();
}

void SearchOwner::openImport()
{
    m_window.showImport();
    open();
}

void SearchOwner::open()
{
    m_window.open(childPlace(m_common.main.geometry(), m_window.size(), m_common.world.screen.workArea()));
}

void SearchOwner::mnuImport_Click()
{
    m_common.sounds.play(Sound::Click);
    m_results.clear();
    openImport();
}

void SearchOwner::importIdListFile()
{
    openImport();
    m_import.readIdList();
}

void SearchOwner::choose(int row)
{
    constexpr qsizetype gameIdLength = 9;
    const QString gameText = m_results.id(row).left(gameIdLength);
    chooseGame(gameText, m_common.state, m_common.main, m_lookup);
}

void SearchOwner::openMenu(int row, const QPoint& place)
{
    m_common.sounds.play(Sound::Click);
    m_menuRow = row;
    QString caption = row < 0 ? u"Copy - [ ]"_s : u"Copy - "_s + m_results.label(row);
    m_common.menu.entry(u"mnuSrchCopy"_s).setText(caption.replace(u'&', u"&&"_s));
    m_common.menu.popUp("mnuSrch", place);
}

void SearchOwner::showLinks(const QList<FoundLink>& rows, const QString& title)
{
    std::vector<LinkRow> shown;
    shown.reserve(static_cast<std::size_t>(rows.size()));
    for (const FoundLink& row : rows)
        shown.push_back(
            {{row.gameId, row.gameName, row.package, row.systemVersion, row.size, row.sha1, row.link}});
    m_report.showLinks(std::move(shown), title);
}

} // namespace varnhold
