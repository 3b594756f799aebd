#include "appearance/SkinChoices.h"

#include "appearance/Skin.h"
#include "appearance/SkinIni.h"
#include "appearance/SkinPictures.h"
#include "appearance/SkinTexts.h"
#include "appearance/WindowControls.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "platform/ColorDialog.h"
#include "platform/FileDialogs.h"
#include "platform/MessageBoxes.h"
#include "platform/RunTimeError.h"
#include "state/ApplicationState.h"
#include "state/Sounds.h"

#include <QCoreApplication>

namespace varnhold {

using namespace Qt::StringLiterals;

void SkinChoices::change(const Change& action)
{
    SkinIni ini(m_services.file);
    SkinLists lists(m_services.page, ini, m_services.host);
    try {
        SkinPictures pictures(m_services.state.SkinPath);
        action(lists, pictures);
    } catch (const RunTimeError& error) {
        m_services.boxes.show({.text = pictureNotShownText(error),
                               .title = QCoreApplication::applicationName(),
                               .icon = BoxIcon::Exclamation,
                               .buttons = BoxButtons::Ok});
    }
    Q_EMIT m_services.page.changed();
}

MorphListBox* SkinChoices::gameList() const
{
    const QWidget* const main = m_services.host.window("frmMain");
    return main == nullptr ? nullptr : qobject_cast<MorphListBox*>(controlOf(*main, "MorphListBox1"));
}

void SkinChoices::vscl_LBxTheme_Change(int theme)
{
    change([theme](SkinLists& lists, SkinPictures& pictures) { lists.changeTheme(theme, pictures); });
}

void SkinChoices::vscl_LBxAlign_Change(int mode)
{
    change([mode](SkinLists& lists, SkinPictures&) { lists.changePictureMode(mode); });
}

void SkinChoices::vscl_Align_Change(int alignment)
{
    change([alignment](SkinLists& lists, SkinPictures&) { lists.changePictureAlignment(alignment); });
}

void SkinChoices::chk_LBxPicture_Click(bool checked)
{
    change([checked](SkinLists& lists, SkinPictures& pictures) { lists.showGamePicture(checked, pictures); });
}

void SkinChoices::chk_LvPicture_Click(bool checked)
{
    change(
        [checked](SkinLists& lists, SkinPictures& pictures) { lists.showUpdatePicture(checked, pictures); });
}

void SkinChoices::btnLBxPicture_Click()
{
    choosePicture(&SkinLists::takeUpdatePicture);
}

void SkinChoices::btnLvPicture_Click()
{
    choosePicture(&SkinLists::takeGamePicture);
}

void SkinChoices::choosePicture(void (SkinLists::*take)(const TaggedText&, SkinPictures&))
{
    const auto chosen = m_services.dialogs.chooseFile(
        {.title = {},
         .startFolder = m_services.state.SkinPath,
         .filter = u"All Supported (*.gif *.jpg *.bmp)|*.bmp;*.jpg;*.gif|All Files (*.*)|*.*"_s,
         .defaultExtension = {},
         .fileName = {}});
    if (!chosen)
        return;
    change([&](SkinLists& lists, SkinPictures& pictures) {
        (lists.*take)({chosen->title, chosen->path}, pictures);
    });
}

void SkinChoices::cmd_Color_Click(int index)
{
    const struct
    {
        QString title;
        QString key;
    } cells[] = {{u"ForeColor"_s, u"Skin ForeColor"_s},
                 {u"HighlightColor"_s, u"Skin HightlightColor"_s}, // spelled this way in every skin
                 {u"BackColor"_s, u"Skin BackColor"_s}};
    SkinPage& page = m_services.page;
    const auto cell = static_cast<std::size_t>(index);
    const auto chosen =
        m_services.colors.chooseColor(cells[index].title, GetLngColor(page.Shape_Color.at(cell)));
    if (!chosen)
        return;
    page.Shape_Color.at(cell) = *chosen;
    SkinIni(m_services.file).write(cells[index].key, colorText(*chosen));
    if (MorphListBox* const games = gameList(); games != nullptr && index == SkinPage::Fore)
        games->setForeColor(*chosen);
    m_services.skin.recolor();
}

void SkinChoices::ListView2_KeyUp(int row)
{
    if (row < 0 || row >= static_cast<int>(m_services.page.customColors.size()))
        return;
    m_services.page.chosenColor = row;
    Q_EMIT m_services.page.changed();
}

void SkinChoices::ListView2_Click(int row)
{
    m_services.sounds.play(Sound::Click);
    SkinPage& page = m_services.page;
    if (row < 0 || row >= static_cast<int>(page.customColors.size()))
        return;
    ListView2_KeyUp(row);
    const auto at = static_cast<std::size_t>(row);
    const auto chosen =
        m_services.colors.chooseColor(customListColors()[row], GetLngColor(page.customColors[at]));
    if (!chosen || at >= page.customColors.size())
        return;
    page.customColors[at] = *chosen;
    Q_EMIT page.changed();
    if (MorphListBox* const games = gameList())
        games->Refresh();
}

void SkinChoices::btnLstSkin_Click(int index)
{
    if (index == 0) {
        change([](SkinLists& lists, SkinPictures&) {
            lists.applyCustomColors();
            lists.writeCustomColors();
        });
    } else {
        SkinIni(m_services.file).deleteCustomColors();
    }
}

} // namespace varnhold
