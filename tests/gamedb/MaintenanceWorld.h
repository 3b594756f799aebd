#pragma once

#include "AnsweringBoxes.h"
#include "gamedb/SharedDatabase.h"
#include "platform/database/DatabaseErrors.h"
#include "support/PrintText.h"
#include "support/SettingsWorld.h"
#include "support/TestDatabase.h"

namespace varnhold::test {

/// A chosen database with boxes that ask, for the commands that write to it.
class MaintenanceWorld : public testing::Test, public SettingsWorld
{
protected:
    MaintenanceWorld() { settings.setIdList({QStringLiteral("Own.mdb"), database.path()}); }

    static constexpr BoxAnswer yes = BoxAnswer::Yes;
    static constexpr BoxAnswer no = BoxAnswer::No;

    TestDatabase database{root.path(QStringLiteral("Own.mdb"))};
    AnsweringBoxes boxes;
    SharedDatabase shared{settings, boxes};
};

} // namespace varnhold::test
