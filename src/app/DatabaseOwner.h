#pragma once

#include "app/Common.h"
#include "app/DatabaseToolsOwner.h"
#include "app/GameListOnWindows.h"
#include "app/WindowPainter.h"
#include "gamedb/GameList.h"
#include "gamedb/SharedDatabase.h"

#include <QObject>

namespace varnhold {

class AppearanceOwner;
class DatabasePage;
class Lookup;

/// The game database: the list of games, the chosen entry, and the choice of another file.
class DatabaseOwner : public QObject
{
    Q_OBJECT

public:
    DatabaseOwner(const Common& common, Lookup& lookup, AppearanceOwner& appearance);

    [[nodiscard]] GameList& gameList() { return m_gameList; }
    [[nodiscard]] SharedDatabase& database() { return m_database; }
    [[nodiscard]] GameListView& view() { return m_view; }
    /// The lower half of the Database page.
    [[nodiscard]] DatabaseToolsOwner& tools() { return m_tools; }
    void loadEntry(); ///< loadGameDetails of the main window's id

private:
    Common m_common;
    WindowPainter m_painter;
    SharedDatabase m_database;
    DatabasePage& m_page;
    GameListOnWindows m_view;
    GameList m_gameList;
    DatabaseToolsOwner m_tools;
};

} // namespace varnhold
