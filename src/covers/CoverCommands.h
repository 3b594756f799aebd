#pragma once

#include <QString>

namespace varnhold {

class MessageBoxes;
class Settings;
class Shell;

/// Where the cover of a game lies: in the cover folder, under its id. The folder may be empty.
QString coverFile(const Settings& settings, const QString& gameId);

/// The entries of mnuImage.
class CoverCommands
{
public:
    CoverCommands(const Settings& settings, Shell& shell, MessageBoxes& boxes);

    void mnuImageView_Click(const QString& gameId); ///< nothing without a file
    void mnuImageExplore_Click();
    void mnuImageOpen_Click();

private:
    void withFolder(void (Shell::*show)(const QString&));

    const Settings& m_settings;
    Shell& m_shell;
    MessageBoxes& m_boxes;
};

} // namespace varnhold
