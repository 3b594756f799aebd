#include "lookup/UpdateServers.h"

#include "state/Hosts.h"

#include <QStringBuilder>

#include <array>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array<UpdateServer, 6> servers = {{
    {1, u"Main: Server", u"https", u"/tpl/np/"},
    {2, u"Retail: Server 1", u"http", u"/tppkg/np/'"},
    {3, u"Retail: Server 2", u"http", u"/tppkg/prod-qa/'"},
    {4, u"Debug: Server 1", u"https", u"/tpl/sp-int/'"},
    {5, u"Debug: Server 2", u"http", u"/tppkg/sp-int/'"},
    {6, u"Lucky: Retail / Debug?", u"https", u"/tpl/prod-qa/"},
}};

} // namespace

const UpdateServer* updateServer(int value)
{
    if (value < 1 || value > static_cast<int>(servers.size()))
        return nullptr;
    return &servers.at(static_cast<std::size_t>(value - 1));
}

QString Document_Url(const Hosts& hosts, int serverValue, const QString& gameId)
{
    const UpdateServer* server = updateServer(serverValue);
    if (server == nullptr)
        return {};
    const QString& authority = hosts.servers.at(static_cast<std::size_t>(serverValue - 1)).authority;
    return QString(QStringView(server->scheme) % u"://"_s % authority % QStringView(server->pathBase) %
                   gameId % u'/' % gameId % u"-ver.xml"_s);
}

} // namespace varnhold
