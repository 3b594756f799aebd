#pragma once

#include "app/settings/SettingsPage.h"

namespace varnhold {

class FileDialogs;
class Sounds;
struct Paths;

/// The update server, and where and how packages are stored.
class DownloadPage : public SettingsPage
{
    Q_OBJECT

public:
    DownloadPage(Settings& settings, Sounds& sounds, FileDialogs& dialogs, const Paths& paths);

private:
    void addHeaded(Scroll scroll, int top);
    void chooseSaveDir();

    Sounds& m_sounds;
    FileDialogs& m_dialogs;
    const Paths& m_paths;
};

} // namespace varnhold
