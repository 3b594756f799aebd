#pragma once

#include "AppWorld.h"

#include "app/settings/AboutPage.h"
#include "app/settings/DatabasePage.h"
#include "app/settings/DownloadPage.h"
#include "app/settings/ListTextPage.h"
#include "app/settings/OpacityPage.h"
#include "app/settings/OptionsPage.h"
#include "app/settings/SkinChoicePage.h"
#include "app/settings/SoundsPage.h"
#include "app/settings/UnwantedPage.h"
#include "app/settings/frmSettings.h"
#include "appearance/SkinPage.h"
#include "support/FakeFileDialogs.h"
#include "support/FakePump.h"

#include <QTimer>

namespace varnhold::test {

/// The settings window with all its pages.
struct SettingsWindow
{
    SettingsWindow(AppWorld& world, FakeFileDialogs& dialogs, FakePump& pump, SkinPage& skinPage)
        : window({world.state, world.settings, world.sounds, world.screen}),
          unwanted(window.add<UnwantedPage>(world.settings, pump)),
          skin(window.add<SkinChoicePage>(world.settings, skinPage, world.state)),
          options(window.add<OptionsPage>(world.settings)),
          opacity(window.add<OpacityPage>(world.settings)),
          database(window.add<DatabasePage>(world.settings, skinPage))
    {
        window.add<ListTextPage>(world.settings, world.sounds);
        window.add<AboutPage>(world.settings, tmr_Scroll);
        window.add<SoundsPage>(world.settings, world.sounds, dialogs);
        window.add<DownloadPage>(world.settings, world.sounds, dialogs, world.root.paths());
    }

    QTimer tmr_Scroll;
    frmSettings window;
    UnwantedPage& unwanted;
    SkinChoicePage& skin;
    OptionsPage& options;
    OpacityPage& opacity;
    DatabasePage& database;
};

} // namespace varnhold::test
