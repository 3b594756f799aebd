#include "app/AppearanceOwner.h"

#include "app/main/frmMain.h"
#include "app/menu/MenuCommands.h"
#include "app/menu/frmMenu.h"
#include "app/settings/frmSettings.h"
#include "appearance/ButtonSigns.h"
#include "download/SkinDownloads.h"

#include <QLabel>

namespace varnhold {

AppearanceOwner::AppearanceOwner(const Common& common, SkinPage& page)
    : m_windows(common.main, common.settingsWindow, common.menu, common.splash),
      m_transForm(common.world.boxes),
      m_skin({common.state, common.settings, common.file, common.paths, page, common.world.boxes,
              common.world.dialogs, common.sounds, common.pump, m_transForm, m_windows})
{
    connectWindows(common);
    bindCommands(common);
}

void AppearanceOwner::dressDownload(QWidget& window)
{
    m_skin.Load_DL(window);
    drawButtonSigns(window);
}

void AppearanceOwner::connectWindows(const Common& common)
{
    frmMain& main = common.main;
    frmMenu& menu = common.menu;
    frmSettings& settings = common.settingsWindow;
    drawButtonSigns(main); // buttons without faces bear them too
    drawButtonSigns(settings);
    main.setLayoutPictures([this](int layout) { return m_skin.loadLayout(layout); });
    main.setBlankPicture([&menu] { return menu.imgBlank().pixmap(); });
    menu.setGlyphs([this] { m_skin.attachMenuGlyphs(); });
    connect(&main, &frmMain::layoutChanged, this, [this, &main] {
        m_skin.shape(main);
        drawButtonSigns(main);
    });
    connect(&settings, &frmSettings::skinMenuWanted, &menu,
            [&menu](const QPoint& place) { menu.popUp("mnuSkins", place); });
    connect(&settings, &frmSettings::opacityMoved, this, &AppearanceOwner::setOpacity);
}

void AppearanceOwner::bindCommands(const Common& common)
{
    MenuCommands& commands = common.commands;
    commands.bind("mnuSkinDL",
                  [common] { mnuSkinDL_Click(common.sounds, common.world.shell, common.hosts); });
    commands.bind("mnuSkin_Refresh", [this] { m_skin.mnuSkin_Refresh_Click(); });
    commands.bind("mnuSkin_Path", [this] { m_skin.mnuSkin_Path_Click(); });
    commands.bindEach("mnuSkin", [this](int index) { m_skin.mnuSkin_Click(index); });
}

} // namespace varnhold
