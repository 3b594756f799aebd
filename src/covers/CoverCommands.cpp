#include "covers/CoverCommands.h"

#include "covers/CoverFolder.h"
#include "platform/FileDialogs.h"
#include "platform/Files.h"
#include "platform/MessageBoxes.h"
#include "platform/Shell.h"
#include "state/Hosts.h"
#include "state/Paths.h"
#include "state/Settings.h"

#include <QUrl>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

/// The last component whole; nothing is cut at a dot.
QString nameOfFolder(const QString& path)
{
    QString rest = path;
    while (rest.size() > 1 && rest.endsWith(u'/'))
        rest.chop(1);
    return rest.size() > 1 ? rest.sliced(rest.lastIndexOf(u'/') + 1) : rest;
}

} // namespace

void CoverCommands::mnuImageView_Click(const QString& gameId)
{
    const QString file = m_services.folder.find(gameId);
    if (!file.isEmpty())
        m_services.shell.open(file);
}

void CoverCommands::mnuImageExplore_Click()
{
    withFolder(&Shell::explore);
}

void CoverCommands::mnuImageOpen_Click()
{
    withFolder(&Shell::open);
}

bool CoverCommands::mnuCoverPath_Click()
{
    const QString& set = m_services.folder.path();
    const QString chosen =
        m_services.dialogs.chooseFolder(u"Select Cover Path"_s, set.isEmpty() ? m_services.paths.root : set);
    if (chosen.isEmpty())
        return false;
    m_services.settings.setCovers({nameOfFolder(chosen), chosen});
    return true;
}

void CoverCommands::clearCoverPath()
{
    m_services.settings.setCovers({});
}

void CoverCommands::mnuGoogle_Click(const QString& gameText)
{
    const QString& host = m_services.hosts.imageSearch.authority;
    if (host.isEmpty()) {
        tell(u"hosts.ini names no host to search pictures on."_s);
        return;
    }
    m_services.shell.open(u"http://"_s + host + u"/images?q="_s +
                          QString::fromLatin1(QUrl::toPercentEncoding(gameText)) + u"+PS3"_s);
}

void CoverCommands::withFolder(void (Shell::*show)(const QString&))
{
    const QString& folder = m_services.folder.path();
    if (FolderExists(folder))
        (m_services.shell.*show)(folder);
    else
        tell(u"Folder does not exist"_s);
}

void CoverCommands::tell(const QString& text)
{
    m_services.boxes.show({.text = text, .title = m_services.title, .icon = BoxIcon::Exclamation});
}

} // namespace varnhold
