#pragma once

#include "AnsweringBoxes.h"
#include "gamedb/SharedDatabase.h"
#include "platform/database/DatabaseErrors.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"
#include "support/PrintText.h"
#include "support/TempRoot.h"
#include "support/TestDatabase.h"

namespace varnhold::test {

/// A chosen database with boxes that ask, for the commands that write to it.
class MaintenanceWorld : public testing::Test
{
protected:
    MaintenanceWorld() { settings.setIdList({QStringLiteral("Own.mdb"), database.path()}); }

    static constexpr BoxAnswer yes = BoxAnswer::Yes;
    static constexpr BoxAnswer no = BoxAnswer::No;

    TempRoot root;
    TestDatabase database{root.path(QStringLiteral("Own.mdb"))};
    ApplicationState state;
    SettingsFile file{root.paths(), state};
    Settings settings{file};
    AnsweringBoxes boxes;
    SharedDatabase shared{settings, boxes};
};

} // namespace varnhold::test
