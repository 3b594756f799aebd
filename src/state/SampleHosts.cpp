#include "state/SampleHosts.h"

#include "platform/SampleServiceProcess.h"

#include <array>

namespace varnhold {

namespace {

/// Which update servers are asked over https.
constexpr std::array secure = {true, false, false, true, false, true};

} // namespace

Hosts sampleHosts(const SampleServiceAddress& address)
{
    Hosts hosts;
    const HostEntry http{address.httpAuthority, {}, false};
    const HostEntry https{address.httpsAuthority, address.caFile, false};
    for (std::size_t i = 0; i < hosts.servers.size(); ++i)
        hosts.servers.at(i) = secure.at(i) ? https : http;
    hosts.update = http;
    hosts.imageSearch = http;
    hosts.forum = http;
    hosts.sample = true;
    return hosts;
}

Hosts hostsInUse(const QString& hostsIni, SampleServiceProcess& service)
{
    const Hosts configured = readHosts(hostsIni);
    return configured.sample ? sampleHosts(service.start()) : configured;
}

} // namespace varnhold
