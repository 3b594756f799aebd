#include "app/AppearanceOwner.h"

#include "app/main/frmMain.h"
#include "app/menu/MenuCommands.h"
#include "app/menu/frmMenu.h"
#include "app/settings/OpacityPage.h"
#include "app/settings/SkinChoicePage.h"
#include "app/settings/frmSettings.h"
#include "appearance/ButtonSigns.h"
#include "download/SkinDownloads.h"
#include "state/Settings.h"

#include <QLabel>

namespace varnhold {

AppearanceOwner::AppearanceOwner(const Common& common)
    : m_common(common),
      m_skinChoicePage(common.settingsWindow.add<SkinChoicePage>(common.settings, m_page, common.state)),
      m_windows({common.main, common.settingsWindow, m_skinChoicePage, common.menu, common.splash}),
      m_transForm(common.world.boxes),
      m_skin({common.state, common.settings, common.file, common.paths, m_page, common.world.boxes,
              common.world.dialogs, common.sounds, common.pump, m_transForm, m_windows}),
      m_choices({m_page, common.state, common.file, common.world.dialogs, common.world.colors,
                 common.world.boxes, common.sounds, m_skin, m_windows})
{
    connectWindows();
    bindCommands();
    m_skinChoicePage.bind(m_choices);
    const auto& opacity = common.settingsWindow.add<OpacityPage>(common.settings);
    connect(&opacity, &OpacityPage::opacityMoved, this, &AppearanceOwner::opacityMoved);
    connect(&opacity, &OpacityPage::opacityMoved, this, &AppearanceOwner::setOpacity);
}

void AppearanceOwner::applySkin()
{
    drawButtonSigns(m_common.main); // buttons without faces bear them too
    drawButtonSigns(m_common.settingsWindow);
    m_skin.ApplySkin();
}

void AppearanceOwner::dressDownload(QWidget& window)
{
    m_skin.Load_DL(window);
    drawButtonSigns(window);
}

void AppearanceOwner::dressThumbs(QWidget& window)
{
    m_skin.Load_Thumbs(window);
    drawButtonSigns(window);
}

void AppearanceOwner::dressRenamer(QWidget& window)
{
    m_skin.loadRenamer(window);
    SetOpacity(m_common.settings.opacity(OpacityOf::Main), window);
}

void AppearanceOwner::connectWindows()
{
    frmMain& main = m_common.main;
    frmMenu& menu = m_common.menu;
    main.setLayoutPictures([this](int layout) { return m_skin.loadLayout(layout); });
    main.setBlankPicture([&menu] { return menu.imgBlank().pixmap(); });
    menu.setGlyphs([this] { m_skin.attachMenuGlyphs(); });
    connect(&main, &frmMain::layoutChanged, this, [this, &main] {
        m_skin.shape(main);
        drawButtonSigns(main);
    });
    connect(&m_skinChoicePage, &SkinChoicePage::skinMenuWanted, &menu,
            [&menu](const QPoint& place) { menu.popUp("mnuSkins", place); });
}

void AppearanceOwner::bindCommands()
{
    MenuCommands& commands = m_common.commands;
    commands.bind("mnuSkinDL",
                  [this] { mnuSkinDL_Click(m_common.sounds, m_common.world.shell, m_common.hosts); });
    commands.bind("mnuSkin_Refresh", [this] { m_skin.mnuSkin_Refresh_Click(); });
    commands.bind("mnuSkin_Path", [this] { m_skin.mnuSkin_Path_Click(); });
    commands.bindEach("mnuSkin", [this](int index) { m_skin.mnuSkin_Click(index); });
}

} // namespace varnhold
