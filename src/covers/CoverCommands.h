#pragma once

#include <QString>

namespace varnhold {

class CoverFolder;
class FileDialogs;
class MessageBoxes;
class Settings;
class Shell;
struct Hosts;
struct Paths;

/// The entries of mnuImage, and those of mnuCovers that fetch nothing.
class CoverCommands
{
public:
    struct Services
    {
        Settings& settings;
        const CoverFolder& folder;
        const Hosts& hosts;
        const Paths& paths;
        Shell& shell;
        FileDialogs& dialogs;
        MessageBoxes& boxes;
        QString title; ///< the program's
    };

    explicit CoverCommands(const Services& services) : m_services(services) {}

    void mnuImageView_Click(const QString& gameId); ///< nothing without a file
    void mnuImageExplore_Click();
    void mnuImageOpen_Click();

    /// Chooses the cover folder and writes its keys; a cancel changes nothing. True when one was chosen.
    bool mnuCoverPath_Click();
    void clearCoverPath(); ///< right button of cmdCovers, without a question
    /// Searches pictures of the game in the desktop's browser.
    void mnuGoogle_Click(const QString& gameText);

private:
    void withFolder(void (Shell::*show)(const QString&));
    void tell(const QString& text);

    Services m_services;
};

} // namespace varnhold
