#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Session.h"
#include "platform/MessagePump.h"
#include "platform/NetworkFetch.h"
#include "state/HostAccess.h"
#include "tools/IdListCheck.h"
#include "tools/VersionCheck.h"

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

/// The checks' boxes; what they tell is in the lines of the result.
class NoBoxes : public MessageBoxes
{
public:
    BoxAnswer show(const MessageBox& /*box*/) override { return BoxAnswer::Ok; }
};

ExitCode run(const Arguments& arguments, Terminal& terminal)
{
    refuseOperands(arguments);
    Session session(arguments, terminal);
    const Hosts& hosts = session.hosts();
    const Paths& paths = session.workspace().paths();
    EventLoopPump pump;
    NetworkFetch fetch(
        pump, [&](const QString& asked) { return tlsOf(hosts, asked); },
        [&](const QString& url) { return reachableUrl(hosts, url); });

    NoBoxes boxes;
    const VersionNews version = Version_Check(fetch, hosts, paths, boxes, {});
    const bool hasVersion = version.outcome == VersionNews::Outcome::Newer;
    if (hasVersion)
        terminal.print(printable(version.caption));
    else if (version.reached)
        terminal.print(u"No newer version than "_s + QStringLiteral(VARNHOLD_VERSION));
    if (version.outcome == VersionNews::Outcome::NotAsked)
        terminal.complain(u"hosts.ini names no update host."_s);
    else if (!version.reached)
        terminal.complain(u"The version file could not be fetched from %1."_s.arg(hosts.update.authority));

    const IdListSizes list = checkIdList(fetch, session.settings(), paths);
    const bool listReached = list.update >= 0;
    if (listReached)
        terminal.print(
            u"Id list: %1 bytes here, %2 bytes there; %3"_s.arg(list.existing < 0 ? 0 : list.existing)
                .arg(list.update)
                .arg(list.isAvailable() ? u"an update is available"_s : u"no update"_s));
    else
        terminal.complain(printable(
            u"The id list could not be asked for at \"%1\"."_s.arg(session.settings().listUrl().tag)));

    if (hasVersion || list.isAvailable())
        return ExitCode::News;
    return version.reached && listReached ? ExitCode::Fine : ExitCode::Failed;
}

} // namespace

Command checkCommand()
{
    return {u"check"_s,
            {},
            u"Asks the update host for a newer version of the program and a longer id list."_s,
            {},
            run};
}

} // namespace varnhold::cli
