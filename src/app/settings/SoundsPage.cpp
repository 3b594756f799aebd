#include "app/settings/SoundsPage.h"

#include "controls/ButtonEx/ButtonEx.h"
#include "platform/FileDialogs.h"
#include "state/Settings.h"
#include "state/Sounds.h"

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>

namespace varnhold {

using namespace Qt::StringLiterals;

SoundsPage::SoundsPage(Settings& settings, Sounds& sounds, FileDialogs& dialogs)
    : SettingsPage({"frm_Sound", u"Sounds"_s, u"Settings: Sounds"_s}, settings),
      m_sounds(sounds),
      m_dialogs(dialogs)
{
    addCheck("chk_Sounds_Click", u"Active"_s, u"Play Sounds"_s, Check::SoundsClick, {column, 4});
    for (int i = 0; i < 4; ++i)
        addRow(i);
    addQuietLabel(tr("Change the chosen row"), {column + 68, 150, controlWidth - 104, rowHeight});
    ButtonEx* choose =
        addButton(u"cmdSound"_s, tr("Choose a sound"), {column + controlWidth - 56, 152, 56, 16});
    choose->setCaption(tr("Browse"));
    connect(choose, &ButtonEx::Click, this, &SoundsPage::chooseSound);
}

void SoundsPage::addRow(int index)
{
    const QString names[] = {u"Click"_s, u"Menu"_s, u"Open"_s, u"Close"_s};
    const int top = 34 + 28 * index;
    auto* row = new QRadioButton(names[index], this);
    row->setObjectName(indexed("opt_Index", index));
    row->setGeometry(column, top, 64, rowHeight);
    row->setChecked(index == 0);
    m_rows.at(static_cast<std::size_t>(index)) = row;
    auto* file = addShownText(indexed("txt_Sound", index), names[index],
                              {column + 64, top, controlWidth - 64 - 100, rowHeight});
    onRefresh([this, file, index] { showTagged(*file, settings().sound(index)); });
    ButtonEx* play = addButton(indexed("cmd_Play", index), tr("Play %1").arg(names[index]),
                               {column + controlWidth - 92, top + 3, 92, 14});
    play->setCaption(tr("Play"));
    connect(play, &ButtonEx::Click, this, [this, index] { m_sounds.playAlways(static_cast<Sound>(index)); });
}

void SoundsPage::chooseSound()
{
    m_sounds.play(Sound::Click);
    const auto chosen =
        m_dialogs.chooseFile({.title = {},
                              .startFolder = {},
                              .filter = u"Sound (*.mp3;*.wav)|*.mp3;*.wav|All Files (*.*)|*.*"_s,
                              .defaultExtension = {},
                              .fileName = {}});
    if (!chosen)
        return;
    for (int i = 0; i < 4; ++i) {
        if (m_rows.at(static_cast<std::size_t>(i))->isChecked())
            settings().setSound(i, {chosen->title, chosen->path});
    }
}

} // namespace varnhold
