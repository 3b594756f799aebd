#pragma once

#include "cli/Command.h"
#include "cli/Workspace.h"
#include "platform/SampleServiceProcess.h"
#include "state/Hosts.h"

#include <chrono>

namespace varnhold::cli {

/// A workspace with its hosts, for the commands that ask them: played by a sample service of its own where
/// hosts.ini says so.
class Session
{
public:
    /// Throws UsageError for its options, RunTimeError when the folder or the hosts cannot be had.
    Session(const Arguments& arguments, Terminal& terminal);

    [[nodiscard]] Workspace& workspace() { return m_workspace; }
    [[nodiscard]] Terminal& terminal() { return m_workspace.terminal(); }
    [[nodiscard]] TerminalBoxes& boxes() { return m_workspace.boxes(); }
    [[nodiscard]] ApplicationState& state() { return m_workspace.state(); }
    [[nodiscard]] const Settings& settings() const { return m_workspace.settings(); }
    [[nodiscard]] const Hosts& hosts() const { return m_hosts; }
    [[nodiscard]] std::chrono::seconds patience() const { return m_patience; }

private:
    Session(const Arguments& arguments, Terminal& terminal, int server, int patience);

    std::chrono::seconds m_patience; ///< with a peer that sends nothing
    Workspace m_workspace;
    SampleServiceProcess m_service;
    Hosts m_hosts;
};

/// Options that a session looks at itself.
Option serverOption();
Option timeoutOption();

} // namespace varnhold::cli
