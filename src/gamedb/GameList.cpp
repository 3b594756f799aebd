#include "gamedb/GameList.h"

#include "gamedb/DatabaseTables.h"
#include "gamedb/GameListView.h"
#include "gamedb/RegionImages.h"
#include "gamedb/SharedDatabase.h"
#include "gamedb/Statements.h"
#include "platform/BusyPointer.h"
#include "platform/MessageBoxes.h"
#include "platform/database/DatabaseErrors.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/Sounds.h"

#include <QCoreApplication>
#include <QScopeGuard>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// Of all ids and names: a file may hold few bytes and tell texts without end.
constexpr qsizetype mostCharacters = 256 * 1024 * 1024;

} // namespace

GameList::GameList(const Services& services) : m_services(services) {}

void GameList::loadGameListAtStartup()
{
    GameListView& view = m_services.view;
    try {
        const auto busy = busyPointer(view);
        view.clearGames();
        view.clearTitles();
        renameOldTables();
        walk(false);
        showIcons(false);
        showCount();
        thank();
    } catch (const RunTimeError& error) {
        tellStartFailure(error);
    }
}

void GameList::reloadGameList()
{
    m_services.database.reporting([this] {
        const auto busy = busyPointer(m_services.view);
        reload(false);
    });
}

void GameList::loadChosenDatabase()
{
    GameListView& view = m_services.view;
    clearPreview();
    view.clearGames();
    view.clearTitles();
    view.clearUpdates();
    m_services.database.reporting([&] {
        const auto busy = busyPointer(view);
        reload(true);
        thank();
    });
}

void GameList::renameOldTables()
{
    SharedDatabase& database = m_services.database;
    database.DBConnFile = m_services.settings.idList().tag;
    for (const QString& name : {u"Games"_s, u"Personal"_s, u"Links"_s}) {
        if (dbTableExists(database.DBConnFile, name, database.watch()))
            dbRenameTable(database.DBConnFile, name, u"PS3"_s + name, database.watch());
    }
}

void GameList::reload(bool renaming)
{
    // Also after a failure: what is there then is what came before it.
    const auto counted = qScopeGuard([this] { showCount(); });
    {
        m_services.view.showListProgress(0);
        const auto hideBar = qScopeGuard([this] { m_services.view.hideListProgress(); });
        if (renaming)
            renameOldTables();
        walk(true);
    }
    showIcons(true);
}

void GameList::walk(bool withProgress)
{
    SharedDatabase& database = m_services.database;
    GameListView& view = m_services.view;
    database.connect();
    database.select(statements::gameList(m_services.settings));
    Recordset& records = *database.DBRecords;
    if (records.RecordCount() < 1) {
        view.clearGames();
    } else {
        if (withProgress)
            view.setListProgressMaximum(records.RecordCount());
        const QString idColumn = u"GameID"_s;
        const QString nameColumn = u"GameName"_s;
        qsizetype characters = 0;
        while (!records.atEnd() && view.goesOn()) {
            // Both are read before either is added: a failure must not leave the lists out of step.
            const QString gameId = records.value(idColumn);
            const QString name = records.value(nameColumn);
            characters += gameId.size() + name.size();
            if (characters > mostCharacters)
                throw RunTimeError(errors::outOfMemory);
            view.addGame(gameId);
            view.addTitle(name);
            if (withProgress)
                view.setListProgress(records.AbsolutePosition());
            records.MoveNext();
        }
        view.refreshGames();
    }
    database.close();
}

void GameList::showIcons(bool selectFirst)
{
    GameListView& view = m_services.view;
    if (!m_services.settings.isChecked(Check::Icons)) {
        view.checkIconsEntry(false);
        view.setShowItemImages(false);
        if (selectFirst)
            view.selectGame(0);
        return;
    }
    view.setItemImageSize(0);
    view.setShowItemImages(true);
    view.checkIconsEntry(true);
    Load_LBIcons();
}

void GameList::showCount()
{
    m_services.view.setBlank(u"List Count: "_s + QString::number(m_services.view.gameCount()));
}

void GameList::thank()
{
    m_services.view.thankOnDatabasePage(u"Thank You! *¿*"_s);
}

void GameList::tellStartFailure(const RunTimeError& error)
{
    GameListView& view = m_services.view;
    switch (error.number()) {
    case errors::objectNotSet:
    case errors::invalidCall:
    case errors::none:
        return;
    case errors::database::cannotOpen:
        if (!view.startupInProgress())
            return;
        view.showStatusOnSplash(u"Loading: Database not found *¿*"_s);
        view.showMessageOnSplash(u"Thank You! *¿*\rPlease select Database file."_s);
        view.askForDatabase(u"Not Found! Please select Database file. *¿*"_s);
        return;
    case errors::database::missingTable:
        if (!view.startupInProgress())
            return;
        view.showStatusOnSplash(u"Loading: Database Table not found *¿*"_s);
        view.showMessageOnSplash(u"Thank You! *¿*\rPlease Rename Database Table."_s);
        view.askForTables(u"ReName Games to PS3Games - ReName Personal to PS3Personal."_s);
        m_services.database.release();
        return;
    default:
        m_services.boxes.show(
            {u"List Load -\r\n"_s + QString::number(error.number()) + u' ' + error.description(),
             QCoreApplication::applicationName(), BoxIcon::Critical, BoxButtons::Ok});
        // The walk may have come some way; the program starts with an empty list.
        view.clearGames();
        view.clearTitles();
    }
}

void GameList::Load_LBIcons()
{
    GameListView& view = m_services.view;
    view.setShowItemImages(true);
    // Nothing empties the strip before: only its first seven pictures are ever used, and kept.
    for (const QString& file : regionImageFiles)
        view.addImage(m_services.state.SkinPath + file);
    view.setRedrawFlag(false);
    // One past the last row, which is meant; the list takes no notice of it.
    for (int row = 0; row <= view.gameCount() && view.goesOn(); ++row)
        view.setImageIndex(row, regionImage(view.game(row)));
    view.setStatus(u"0"_s);
    view.setRedrawFlag(true);
}

void GameList::redrawIcons()
{
    if (!m_services.view.iconsEntryChecked())
        return;
    m_services.view.setItemImageSize(0);
    Load_LBIcons();
}

void GameList::clearPreview()
{
    GameListView& view = m_services.view;
    view.showBlankPicture();
    view.clearTitleTexts();
    view.clearNotes();
    view.showListViews();
}

void GameList::CmdRefresh_Click()
{
    GameListView& view = m_services.view;
    clearPreview();
    view.clearGames();
    view.clearTitles();
    view.clearUpdates();
    reloadGameList();
}

void GameList::cmdClear_Click()
{
    m_services.view.clearUpdates();
    clearPreview();
}

void GameList::mnuLBIcons_Click()
{
    GameListView& view = m_services.view;
    m_services.sounds.play(Sound::Click);
    if (view.iconsEntryChecked()) {
        view.checkIconsEntry(false);
        view.setShowItemImages(false);
        return;
    }
    view.checkIconsEntry(true);
    view.setShowItemImages(true);
    view.setItemImageSize(0);
    Load_LBIcons();
}

} // namespace varnhold
