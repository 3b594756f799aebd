#include "app/SettingsOwner.h"

#include "app/main/frmMain.h"
#include "app/menu/MenuCommands.h"
#include "app/menu/frmMenu.h"
#include "app/settings/AboutPage.h"
#include "app/settings/DownloadPage.h"
#include "app/settings/ListTextPage.h"
#include "app/settings/OptionsPage.h"
#include "app/settings/SoundsPage.h"
#include "app/settings/UnwantedPage.h"
#include "app/settings/frmSettings.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "lookup/CertificateWatch.h"
#include "state/Sounds.h"

namespace varnhold {

SettingsOwner::SettingsOwner(const Common& common, CertificateWatch& certificates) : m_common(common)
{
    frmSettings& window = common.settingsWindow;
    window.add<DownloadPage>(common.settings, common.sounds, common.world.dialogs, common.paths);
    const auto& options = window.add<OptionsPage>(common.settings);
    window.add<ListTextPage>(common.settings, common.sounds);
    window.add<AboutPage>(common.settings, common.menu.tmr_Scroll());
    window.add<SoundsPage>(common.settings, common.sounds, common.world.dialogs);
    window.add<UnwantedPage>(common.settings, common.pump);
    connect(&options, &OptionsPage::autoSslReleased, this, [&certificates] { certificates.start(); });
    connect(&options, &OptionsPage::rightToLeftChosen, this,
            [&main = common.main](bool on) { main.games().setRightToLeft(on); });
    connect(&common.main, &frmMain::settingsRequested, this, [this] {
        m_common.sounds.play(Sound::Menu);
        open();
    });
    common.commands.bind("mnuSettings", [this] { open(); });
}

void SettingsOwner::open() const
{
    constexpr QPoint offset(23, 8); // 340 and 120 twips
    m_common.settingsWindow.open(m_common.main.pos() + offset);
}

} // namespace varnhold
