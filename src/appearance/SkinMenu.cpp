// The skins' menu, and the glyphs of all menus.

#include "appearance/Skin.h"
#include "appearance/SkinPictures.h"
#include "controls/SystemColorsUi.h"
#include "platform/FileDialogs.h"
#include "platform/MessageBoxes.h"
#include "state/Paths.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"
#include "state/SettingsKeys.h"
#include "state/Sounds.h"

#include <QAction>
#include <QCoreApplication>
#include <QWidget>

namespace varnhold {

using namespace Qt::StringLiterals;

void Skin::loadGlyphs(SkinPictures& pictures)
{
    m_glyphs.clear();
    for (const GlyphArray& array : glyphArrays()) {
        for (const char* const file : array.files) {
            const QString name = QString::fromLatin1(file);
            m_glyphs.insert(name, pictures.load(name));
        }
    }
    const QImage plate = m_glyphs.value(u"menu/exit.bmp"_s).toImage();
    m_services.page.menuGround = toColorValue(plate.pixelColor(0, 0));
}

void Skin::buildCatalogue()
{
    m_services.host.showStatus(u"Loading: Skin Paths"_s);
    if (m_catalogue.build()) {
        m_services.host.showCatalogue(m_catalogue);
        m_services.page.availableSkins = QString::number(m_catalogue.entries().size());
    }
    attachMenuGlyphs();
}

void Skin::attachMenuGlyphs()
{
    const QWidget* const menus = m_services.host.window("frmMenu");
    if (menus == nullptr)
        return;
    for (QAction* const entry : menus->findChildren<QAction*>()) {
        const QObject* const submenu = entry->menu<QObject*>();
        if (const char* const file =
                glyphOf(submenu != nullptr ? submenu->objectName() : entry->objectName())) {
            entry->setIcon(QIcon(m_glyphs.value(QString::fromLatin1(file))));
            entry->setIconVisibleInMenu(true);
        }
    }
}

void Skin::mnuSkin_Click(int index)
{
    m_services.sounds.play(Sound::Click);
    const auto at = static_cast<std::size_t>(index - 1);
    QString path = at < m_catalogue.entries().size() ? m_catalogue.entries()[at].tag : QString();
    if (path.isEmpty())
        path = m_services.paths.defaultSkin();
    m_services.settings.writeSkinPath(path);
    ApplySkin();
}

void Skin::mnuSkin_Path_Click()
{
    QString start = m_services.file.INI_Read(settingsKeys::skinSection(), u"Skin Path"_s, {});
    if (start.isEmpty())
        start = m_services.paths.root + u"/skin"_s;
    const QString chosen = m_services.dialogs.chooseFolder(u"Select Skin Folder"_s, start);
    if (chosen.isEmpty())
        return;
    m_pickedFolder = chosen;
    m_acceptedName = skinNameOf(chosen);
    m_services.settings.writeSkinName(m_acceptedName);
    m_services.settings.writeSkinPath(chosen);
    ApplySkin();
}

void Skin::mnuSkin_Refresh_Click()
{
    m_services.sounds.play(Sound::Click);
    const BoxAnswer answer = m_services.boxes.show({.text = u"Do you wish to Refresh the Skin Menu?"_s,
                                                    .title = QCoreApplication::applicationName(),
                                                    .icon = BoxIcon::Question,
                                                    .buttons = BoxButtons::YesNo});
    if (answer != BoxAnswer::Yes)
        return;
    m_catalogue.clear();
    buildCatalogue();
    Q_EMIT m_services.page.changed();
}

} // namespace varnhold
