#include "covers/CoverCommands.h"

#include "platform/Files.h"
#include "platform/MessageBoxes.h"
#include "platform/ReadFile.h"
#include "platform/Shell.h"
#include "state/Settings.h"

#include <QCoreApplication>

namespace varnhold {

using namespace Qt::StringLiterals;

QString coverFile(const Settings& settings, const QString& gameId)
{
    const QString& folder = settings.covers().tag;
    if (folder.isEmpty() || gameId.contains(u'/') || gameId.contains(QChar::Null))
        return {};
    const QString file = foldedFile(folder, gameId + u".jpg"_s);
    return isRegularFile(file) ? file : QString();
}

CoverCommands::CoverCommands(const Settings& settings, Shell& shell, MessageBoxes& boxes)
    : m_settings(settings), m_shell(shell), m_boxes(boxes)
{
}

void CoverCommands::mnuImageView_Click(const QString& gameId)
{
    const QString file = coverFile(m_settings, gameId);
    if (!file.isEmpty())
        m_shell.open(file);
}

void CoverCommands::mnuImageExplore_Click()
{
    withFolder(&Shell::explore);
}

void CoverCommands::mnuImageOpen_Click()
{
    withFolder(&Shell::open);
}

void CoverCommands::withFolder(void (Shell::*show)(const QString&))
{
    const QString& folder = m_settings.covers().tag;
    if (FolderExists(folder))
        (m_shell.*show)(folder);
    else
        m_boxes.show({.text = u"Folder does not exist"_s,
                      .title = QCoreApplication::applicationName(),
                      .icon = BoxIcon::Exclamation});
}

} // namespace varnhold
