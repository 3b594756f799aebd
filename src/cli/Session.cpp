#include "cli/Session.h"

#include "cli/Arguments.h"
#include "state/SampleHosts.h"

namespace varnhold::cli {

using namespace Qt::StringLiterals;

Session::Session(const Arguments& arguments, Terminal& terminal)
    : Session(arguments, terminal, numberOf(arguments, u"server"_s, 1, 6, 0))
{
}

Session::Session(const Arguments& arguments, Terminal& terminal, int server)
    : m_workspace(arguments, terminal), m_hosts(hostsInUse(m_workspace.paths().hostsIni(), m_service))
{
    if (server != 0)
        m_workspace.settings().unwrittenValues().server = server;
    if (m_hosts.sample)
        terminal.complain(u"The sample service answers, with made-up titles; hosts.ini names other hosts."_s);
}

Option serverOption()
{
    return {u"server"_s, u"Ask this update server, 1 to 6, instead of the one in the settings."_s,
            u"number"_s};
}

} // namespace varnhold::cli
