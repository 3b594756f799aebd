#pragma once

namespace varnhold {

class MessagePump;
class MessageBoxes;
class Settings;
class Sounds;

/// What the way out does to the program's windows.
class ExitHost
{
public:
    virtual ~ExitHost() = default;
    virtual void enableExitButton() = 0;        ///< btn_WinState(1)
    virtual void setFadeOpacity(int value) = 0; ///< of the main window, at once on the screen
    virtual void unloadOtherWindows() = 0;
    virtual void unloadMainWindow() = 0;
    virtual void endProgram() = 0; ///< every pump leaves its wait, then the event loop ends
};

/// From the wish to close the main window to the program's end. May run inside a pump of a lookup or a
/// download that waits: those leave their waits, and nothing is deleted under them.
class ExitPath
{
public:
    struct Services
    {
        const Settings& settings;
        MessageBoxes& boxes;
        Sounds& sounds;
        MessagePump& pump;
    };

    ExitPath(const Services& services, ExitHost& host);

    /// False: the user thought better of it.
    bool run();

private:
    Services m_services;
    ExitHost& m_host;
    bool m_running = false;
};

} // namespace varnhold
