#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Table.h"
#include "cli/Workspace.h"
#include "covers/CoverServers.h"
#include "lookup/UpdateServers.h"
#include "state/ApplicationState.h"
#include "state/Hosts.h"
#include "state/SettingsFile.h"

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

void addHost(Table& table, const QString& number, const QString& name, const QString& scheme,
             const HostEntry& host)
{
    table.addRow({number, name, host.authority.isEmpty() ? u"(none)"_s : scheme + u"://"_s + host.authority,
                  host.certificateFile.isEmpty() ? u"-"_s : host.certificateFile,
                  host.allowsOldTls ? u"allowed"_s : u"-"_s});
}

void printCoverServers(const Paths& paths, Terminal& terminal)
{
    const ApplicationState state;
    SettingsFile file(paths, state);
    CoverServers servers(file);
    servers.readCoverServers();
    if (servers.rows().isEmpty()) {
        terminal.print(printable(u"%1 names no cover servers."_s.arg(paths.settingsIni())));
        return;
    }
    Table table({u"Cover server"_s, u"Url"_s});
    for (const CoverServer& server : servers.rows())
        table.addRow({server.name, server.url});
    terminal.print(table.text());
}

ExitCode run(const Arguments& arguments, Terminal& terminal)
{
    refuseOperands(arguments);
    const Paths paths = pathsFor(arguments);
    const QString file = paths.hostsIni();
    const Hosts hosts = readHosts(file);
    if (hosts.sample) {
        terminal.print(
            printable(u"%1: sample. Each start runs the sample service, varnhold-host, on free ports of "
                      "this machine and asks it for everything."_s.arg(file)));
        printCoverServers(paths, terminal);
        return ExitCode::Fine;
    }
    terminal.print(printable(file));
    Table table({u"No"_s, u"Host of"_s, u"Address"_s, u"Authority"_s, u"Old TLS"_s});
    for (int value = 1; value <= 6; ++value) {
        const UpdateServer& server = *updateServer(value);
        addHost(table, QString::number(value), QStringView(server.label).toString(),
                QStringView(server.scheme).toString(), hosts.servers.at(static_cast<std::size_t>(value - 1)));
    }
    addHost(table, {}, u"Update files"_s, u"http"_s, hosts.update);
    addHost(table, {}, u"Image search"_s, u"http"_s, hosts.imageSearch);
    addHost(table, {}, u"Forum"_s, u"http"_s, hosts.forum);
    terminal.print(table.text());
    printCoverServers(paths, terminal);
    return ExitCode::Fine;
}

} // namespace

Command hostsCommand()
{
    return {u"hosts"_s, {}, u"Shows which hosts are asked."_s, {}, run};
}

} // namespace varnhold::cli
