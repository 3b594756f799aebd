#pragma once

#include <QString>

#include <array>

namespace varnhold {

/// One outside host as hosts.ini gives it.
struct HostEntry
{
    QString authority;       ///< host or host:port
    QString certificateFile; ///< PEM file of an authority that this host's certificate may come from; empty:
                             ///< the system's
    bool allowsOldTls = false; ///< TLS 1.0 and small keys
};

/// All outside hosts. Never compiled in: hosts.ini beside Settings.ini names them, or says `sample`, and then
/// the sample service's own ports stand here.
struct Hosts
{
    std::array<HostEntry, 6> servers; ///< by update server 1 to 6, at index value - 1
    HostEntry update;                 ///< version file and id list, port 6969 unless it names one
    HostEntry imageSearch;
    HostEntry forum;
    bool sample = false;
};

/// Reads hosts.ini, whose form docs/hosts.md tells. A file that is missing counts as one that says `sample`.
/// A host that it does not name has an empty authority. Throws RunTimeError 75 when it cannot be read, and 5
/// with a sentence that names section and key for a value that is none.
Hosts readHosts(const QString& path);

/// The entry with this authority, whatever its case; null when there is none.
const HostEntry* findHost(const Hosts& hosts, const QString& authority);

} // namespace varnhold
