#include "app/settings/DownloadPage.h"

#include "controls/ButtonEx/ButtonEx.h"
#include "lookup/UpdateServers.h"
#include "platform/FileDialogs.h"
#include "state/Paths.h"
#include "state/Settings.h"
#include "state/Sounds.h"

#include <QLineEdit>

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

DownloadPage::DownloadPage(Settings& settings, Sounds& sounds, FileDialogs& dialogs, const Paths& paths)
    : SettingsPage({"frm_Download", u"Download"_s, u"Settings: Download"_s}, settings),
      m_sounds(sounds),
      m_dialogs(dialogs),
      m_paths(paths)
{
    addHeaded({.name = u"Vs_Server"_s,
               .labelName = u"lblServer"_s,
               .accessibleName = tr("Update server"),
               .most = 6,
               .read = [&settings] { return settings.server(); },
               .write = [&settings](int value) { settings.setServer(value); },
               .text =
                   [&settings] {
                       const UpdateServer* server = updateServer(settings.server());
                       return server == nullptr ? QString() : QString::fromUtf16(server->label);
                   }},
              4);
    addHeaded({.name = u"VScroll1"_s,
               .labelName = u"lblDLMax"_s,
               .accessibleName = tr("At a time"),
               .most = 5,
               .read = [&settings] { return settings.downloadMax(); },
               .write = [&settings](int value) { settings.setDownloadMax(value); },
               .text = [&settings] { return settings.downloadMaxText(); }},
              38);
    addCheck("chk_UseDLD", u"Use Download Directory?"_s, {}, Check::UseDLD, {column, 74});
    addCheck("chk_CGNFolder", u"Create [ Game Name ] folder?"_s, {}, Check::CGNFolder, {column, 96});
    addCheck("chk_OWrite", u"Over write files on Multi DL?"_s, {}, Check::OWrite, {column, 118});
    addCheck("chk_Previous", u"Download Previous Updates?"_s, {}, Check::Previous, {column, 140});
    auto* folder =
        addShownText(u"txt_SaveDir"_s, tr("Download folder"), {column, 170, controlWidth - 64, rowHeight});
    folder->setPlaceholderText(tr("Download folder"));
    onRefresh([this, folder] { showTagged(*folder, this->settings().saveDir()); });
    ButtonEx* choose =
        addButton(u"btnSaveDir"_s, tr("Select Download Folder"), {column + controlWidth - 56, 172, 56, 16});
    choose->setCaption(tr("Browse"));
    connect(choose, &ButtonEx::Click, this, &DownloadPage::chooseSaveDir);
}

void DownloadPage::addHeaded(Scroll scroll, int top)
{
    addQuietLabel(scroll.accessibleName, {column + 20, top + 6, 92, 18});
    scroll.place = {column, top};
    scroll.labelPlace = {column + 116, top + 6, 150, 18};
    addScroll(scroll);
}

void DownloadPage::chooseSaveDir()
{
    m_sounds.play(Sound::Click);
    const QString& current = settings().saveDir().tag;
    const QString chosen =
        m_dialogs.chooseFolder(u"Select Download Folder"_s, current.isEmpty() ? m_paths.root : current);
    if (!chosen.isEmpty())
        settings().setSaveDir(chosen);
}

} // namespace varnhold
