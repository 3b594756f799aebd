#pragma once

#include <QString>

namespace varnhold {

class MessageBoxes;
class Settings;
class Shell;

/// The cover of a game in the cover folder, under its id; empty when no folder is set or no such file is
/// there.
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
