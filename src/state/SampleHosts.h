#pragma once

#include "state/Hosts.h"

namespace varnhold {

class SampleServiceProcess;
struct SampleServiceAddress;

/// All outside hosts played by a running sample service.
Hosts sampleHosts(const SampleServiceAddress& address);

/// Reads hosts.ini; where it says `sample`, starts the service and puts its own ports in. Throws as
/// readHosts() and SampleServiceProcess::start() do.
Hosts hostsInUse(const QString& hostsIni, SampleServiceProcess& service);

} // namespace varnhold
