#include "state/HostAccess.h"

#include <QUrl>

namespace varnhold {

using namespace Qt::StringLiterals;

HostTls tlsOf(const Hosts& hosts, const QString& authority)
{
    const HostEntry* const entry = findHost(hosts, authority);
    return entry == nullptr ? HostTls{} : HostTls{entry->certificateFile, entry->allowsOldTls};
}

QString reachableUrl(const Hosts& hosts, const QString& url)
{
    QUrl reachable(url.trimmed());
    if (!hosts.sample || reachable.host() != u"sample" || reachable.port() >= 0)
        return url;
    // Server 1 is the one that the sample service plays over https.
    const QString authority =
        reachable.scheme() == u"https" ? hosts.servers.front().authority : hosts.imageSearch.authority;
    if (authority.isEmpty())
        return url;
    reachable.setAuthority(authority);
    return reachable.toString(QUrl::FullyEncoded);
}

} // namespace varnhold
