#pragma once

#include "cli/Command.h"
#include "cli/Workspace.h"
#include "platform/SampleServiceProcess.h"
#include "state/Hosts.h"

namespace varnhold::cli {

/// A workspace with its hosts, for the commands that ask them: played by a sample service of its own where
/// hosts.ini says so.
class Session
{
public:
    /// Throws UsageError for the server, RunTimeError when the folder or the hosts cannot be had.
    Session(const Arguments& arguments, Terminal& terminal);

    [[nodiscard]] Workspace& workspace() { return m_workspace; }
    [[nodiscard]] Terminal& terminal() { return m_workspace.terminal(); }
    [[nodiscard]] TerminalBoxes& boxes() { return m_workspace.boxes(); }
    [[nodiscard]] ApplicationState& state() { return m_workspace.state(); }
    [[nodiscard]] const Settings& settings() const { return m_workspace.settings(); }
    [[nodiscard]] const Hosts& hosts() const { return m_hosts; }

private:
    Session(const Arguments& arguments, Terminal& terminal, int server);

    Workspace m_workspace;
    SampleServiceProcess m_service;
    Hosts m_hosts;
};

/// "--server", which a session looks at itself.
Option serverOption();

} // namespace varnhold::cli
