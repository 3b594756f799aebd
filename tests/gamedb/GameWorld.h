#pragma once

#include "FakeGameWindow.h"
#include "ReportBoxes.h"
#include "gamedb/GameList.h"
#include "gamedb/SharedDatabase.h"
#include "platform/database/DatabaseErrors.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"
#include "state/Sounds.h"
#include "support/FakeSoundPlayer.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"
#include "support/TestDatabase.h"

namespace varnhold::test {

/// A database in a folder of its own, chosen in the settings, with all that its routines stand on. The
/// current table is PS3Games.
class GameWorld : public testing::Test
{
protected:
    GameWorld()
    {
        choose(database.path());
        settings.setOrder(Order::DBTable, 1);
        state.SkinPath = QStringLiteral("/skin");
    }

    void choose(const QString& path) { settings.setIdList({QStringLiteral("GameDB.mdb"), path}); }
    static QString report(int number) { return ReportBoxes::report(number); }

    TempRoot root;
    TestDatabase database{root.path(QStringLiteral("GameDB.mdb"))};
    ApplicationState state;
    SettingsFile file{root.paths(), state};
    Settings settings{file};
    ReportBoxes boxes;
    FakeSoundPlayer player;
    Sounds sounds{settings, player, state};
    FakeGameWindow window;
    SharedDatabase shared{settings, boxes};
    GameList list{{shared, state, settings, window, sounds, boxes}};
};

} // namespace varnhold::test
