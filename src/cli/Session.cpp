#include "cli/Session.h"

#include "cli/Arguments.h"
#include "state/SampleHosts.h"

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

constexpr int usualPatience = 60; ///< seconds
constexpr int longestPatience = 86400;

} // namespace

Session::Session(const Arguments& arguments, Terminal& terminal)
    : Session(arguments, terminal, numberOf(arguments, u"server"_s, 1, 6, 0),
              numberOf(arguments, u"timeout"_s, 1, longestPatience, usualPatience))
{
}

Session::Session(const Arguments& arguments, Terminal& terminal, int server, int patience)
    : m_patience(patience),
      m_workspace(arguments, terminal),
      m_hosts(hostsInUse(m_workspace.paths().hostsIni(), m_service))
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

Option timeoutOption()
{
    return {u"timeout"_s, u"Give up when nothing comes for so many seconds; 60 without it."_s, u"seconds"_s};
}

} // namespace varnhold::cli
