#pragma once

#include "FakeGameWindow.h"
#include "ReportBoxes.h"
#include "gamedb/GameList.h"
#include "gamedb/SharedDatabase.h"
#include "platform/database/DatabaseErrors.h"
#include "state/Sounds.h"
#include "support/FakeSoundPlayer.h"
#include "support/PrintText.h"
#include "support/SettingsWorld.h"
#include "support/TestDatabase.h"

namespace varnhold::test {

/// A database in a folder of its own, chosen in the settings, with all that its routines stand on. The
/// current table is PS3Games.
class GameWorld : public testing::Test, public SettingsWorld
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

    TestDatabase database{root.path(QStringLiteral("GameDB.mdb"))};
    ReportBoxes boxes;
    FakeSoundPlayer player;
    Sounds sounds{settings, player, state};
    FakeGameWindow window;
    SharedDatabase shared{settings, boxes};
    GameList list{{shared, state, settings, window, sounds, boxes}};
};

} // namespace varnhold::test
