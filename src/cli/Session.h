#pragma once

#include "cli/Arguments.h"
#include "cli/Terminal.h"
#include "platform/SampleServiceProcess.h"
#include "state/ApplicationState.h"
#include "state/Hosts.h"
#include "state/Paths.h"
#include "state/Settings.h"
#include "state/SettingsFile.h"

namespace varnhold::cli {

/// What a command works with: the program's folder, settings and hosts, the latter played by a sample service
/// of its own where hosts.ini says so. The settings file is read and not written, but for a database that
/// was found.
class Session
{
public:
    /// Throws RunTimeError when the folder or the hosts cannot be had.
    Session(const Arguments& arguments, Terminal& terminal);

    [[nodiscard]] Terminal& terminal() { return m_terminal; }
    [[nodiscard]] TerminalBoxes& boxes() { return m_boxes; }
    [[nodiscard]] ApplicationState& state() { return m_state; }
    [[nodiscard]] const Settings& settings() const { return m_settings; }
    [[nodiscard]] const Hosts& hosts() const { return m_hosts; }

private:
    void load(const Paths& paths);

    Terminal& m_terminal;
    TerminalBoxes m_boxes;
    Paths m_paths;
    ApplicationState m_state;
    SettingsFile m_settingsFile;
    Settings m_settings;
    SampleServiceProcess m_service;
    Hosts m_hosts;
};

/// The program's folder by the arguments. Throws RunTimeError.
Paths pathsFor(const Arguments& arguments);

} // namespace varnhold::cli
