#pragma once

#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"
#include "support/TempRoot.h"

namespace varnhold::test {

/// A program folder of its own with the settings that lie in it, as most of the program stands on them.
struct SettingsWorld
{
    TempRoot root;
    ApplicationState state;
    SettingsFile file{root.paths(), state};
    Settings settings{file};
};

} // namespace varnhold::test
