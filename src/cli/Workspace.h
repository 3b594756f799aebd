#pragma once

#include "cli/Terminal.h"
#include "state/ApplicationState.h"
#include "state/Paths.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"

namespace varnhold::cli {

struct Arguments;

/// What every command works with: the terminal, the program's folder and its settings. Starts nothing and
/// asks no host. The settings file is read and not written, but for a database that was found.
class Workspace
{
public:
    /// Throws RunTimeError when the folder cannot be had.
    Workspace(const Arguments& arguments, Terminal& terminal);

    [[nodiscard]] Terminal& terminal() { return m_terminal; }
    [[nodiscard]] TerminalBoxes& boxes() { return m_boxes; }
    [[nodiscard]] const Paths& paths() const { return m_paths; }
    [[nodiscard]] ApplicationState& state() { return m_state; }
    [[nodiscard]] SettingsFile& settingsFile() { return m_settingsFile; }
    [[nodiscard]] Settings& settings() { return m_settings; }
    [[nodiscard]] const Settings& settings() const { return m_settings; }

private:
    void load();

    Terminal& m_terminal;
    TerminalBoxes m_boxes;
    Paths m_paths;
    ApplicationState m_state;
    SettingsFile m_settingsFile;
    Settings m_settings;
};

/// The program's folder by the arguments. Throws RunTimeError.
Paths pathsFor(const Arguments& arguments);

} // namespace varnhold::cli
