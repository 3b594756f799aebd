#pragma once

#include "platform/HttpWalk.h"
#include "state/Hosts.h"

namespace varnhold {

/// The TLS policy of a host[:port]: what hosts.ini says of it, whichever its part is.
HostTls tlsOf(const Hosts& hosts, const QString& authority);

/// The url to ask for one that a user has written down: the host `sample` stands for the running sample
/// service, whose port changes from start to start, where hosts.ini says `sample`. Any other is itself.
QString reachableUrl(const Hosts& hosts, const QString& url);

} // namespace varnhold
