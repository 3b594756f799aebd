#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Interrupt.h"
#include "cli/Session.h"
#include "covers/CoverFetch.h"
#include "covers/CoverFolder.h"
#include "covers/CoverServers.h"
#include "gamedb/SharedDatabase.h"
#include "gamedb/Statements.h"
#include "platform/Files.h"
#include "platform/MessagePump.h"
#include "platform/NavigationCodes.h"
#include "platform/NetworkFetch.h"
#include "platform/ReplaceFile.h"
#include "platform/RunTimeError.h"
#include "state/HostAccess.h"

#include <QDir>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void fail(const QString& sentence)
{
    throw RunTimeError(errors::pathFileAccess, sentence);
}

QString folderFor(const Arguments& arguments, const Settings& settings)
{
    const QString asked = arguments.value(u"to"_s);
    const QString folder = asked.isEmpty() ? settings.covers().tag : QDir(asked).absolutePath();
    if (folder.isEmpty())
        fail(u"The settings name no cover folder; name one with --to."_s);
    if (!FolderExists(folder))
        fail(u"There is no folder \"%1\"."_s.arg(folder));
    return folder;
}

QList<CoverServer> serversFor(const Arguments& arguments, SettingsFile& file)
{
    CoverServers servers(file);
    servers.readCoverServers();
    const QString from = arguments.value(u"from"_s);
    if (from.isEmpty()) {
        if (servers.rows().isEmpty())
            fail(u"The settings name no cover server; name one with --from."_s);
        return servers.rows();
    }
    QList<CoverServer> named;
    std::ranges::copy_if(servers.rows(), std::back_inserter(named), [&](const CoverServer& server) {
        return server.name.compare(from, Qt::CaseInsensitive) == 0;
    });
    if (named.isEmpty() && from.endsWith(u'/'))
        named.append({from, from});
    if (named.isEmpty())
        fail(u"The settings name no cover server \"%1\", and it is no url that ends in \"/\"."_s.arg(from));
    return named;
}

/// Every title of the current table, or the ids of the command line.
QStringList idsFor(const Arguments& arguments, Session& session)
{
    QStringList ids;
    if (!arguments.has(u"missing"_s)) {
        for (const QString& operand : arguments.operands)
            ids.append(readGameId(operand));
        ids.removeDuplicates();
        return ids;
    }
    SharedDatabase database(session.settings(), session.boxes());
    database.connect();
    database.select(statements::gameList(session.settings()));
    for (Recordset& records = *database.DBRecords; !records.atEnd(); records.MoveNext())
        ids.append(records.value(u"GameID"_s));
    database.close();
    ids.removeDuplicates();
    return ids;
}

/// How one id came out.
struct Line
{
    enum class End { Fetched, Kept, Missing, Failed };
    QString id = {};
    End end = End::Missing;
    QString server = {}; ///< that had it
    QString path = {};
    QStringList problems = {}; ///< of the servers that had not
};

Line fetchOne(FileFetch& fetch, const QString& id, const QString& target, const QList<CoverServer>& servers)
{
    Line line{.id = id, .path = target};
    for (const CoverServer& server : servers) {
        const CoverOutcome outcome = fetchCover(fetch, coverUrl(server.url, id), target);
        if (outcome.isFetched) {
            line.end = Line::End::Fetched;
            line.server = server.name;
            return line;
        }
        if (outcome.status != navigation::notFound)
            line.end = Line::End::Failed;
        line.problems.append(server.name + u": "_s + outcome.why);
    }
    return line;
}

QString wordOf(Line::End end)
{
    switch (end) {
    case Line::End::Fetched:
        return u"fetched"_s;
    case Line::End::Kept:
        return u"kept"_s;
    case Line::End::Missing:
        return u"missing"_s;
    case Line::End::Failed:
        break;
    }
    return u"failed"_s;
}

void tell(Terminal& terminal, const Line& line)
{
    if (line.end == Line::End::Fetched)
        terminal.print(printable(u"%1  %2  %3"_s.arg(line.id, line.server, line.path)));
    else if (line.end == Line::End::Kept)
        terminal.print(printable(u"%1  is there already  %2"_s.arg(line.id, line.path)));
    else
        terminal.complain(printable(u"%1: no cover. %2."_s.arg(line.id, line.problems.join(u"; "_s))));
}

QJsonObject jsonOf(const Line& line)
{
    const bool isThere = line.end == Line::End::Fetched || line.end == Line::End::Kept;
    return {{u"id"_s, line.id},
            {u"outcome"_s, wordOf(line.end)},
            {u"server"_s, line.server.isEmpty() ? QJsonValue() : QJsonValue(line.server)},
            {u"path"_s, isThere ? QJsonValue(line.path) : QJsonValue()},
            {u"problems"_s, QJsonArray::fromStringList(line.problems)}};
}

ExitCode codeOf(Line::End end)
{
    return end == Line::End::Failed    ? ExitCode::Failed
           : end == Line::End::Missing ? ExitCode::NoSuchTitle
                                       : ExitCode::Fine;
}

ExitCode run(const Arguments& arguments, Terminal& terminal)
{
    const bool missing = arguments.has(u"missing"_s);
    if (missing != arguments.operands.isEmpty())
        throw UsageError{u"\"cover\" takes ids, or --missing."_s};
    for (const QString& operand : arguments.operands)
        readGameId(operand);
    Session session(arguments, terminal);
    const CoverFolder folder(folderFor(arguments, session.settings()));
    const QList<CoverServer> servers = serversFor(arguments, session.workspace().settingsFile());

    // Looked up before the first fetch: each file that comes changes the folder.
    QList<Line> lines;
    for (const QString& id : idsFor(arguments, session)) {
        Line line{.id = id, .path = folder.target(id)};
        const bool isThere = !folder.find(id).isEmpty();
        if (isThere && !arguments.has(u"overwrite"_s))
            line.end = Line::End::Kept;
        if (!(missing && isThere) && !line.path.isEmpty()) // an id that names no file has no cover
            lines.append(line);
    }
    clearLeftovers(folder.path());

    EventLoopPump pump;
    const Interrupt interrupt([&pump] { pump.end(); });
    NetworkFetch fetch(
        pump, [&](const QString& authority) { return tlsOf(session.hosts(), authority); },
        [&](const QString& url) { return reachableUrl(session.hosts(), url); });
    QJsonArray json;
    ExitCode worst = ExitCode::Fine;
    for (qsizetype i = 0; i < lines.size() && !interrupt.isCaught(); ++i) {
        Line& line = lines[i];
        if (line.end != Line::End::Kept) {
            terminal.showProgress(u"%1  %2 of %3"_s.arg(line.id).arg(i + 1).arg(lines.size()));
            line = fetchOne(fetch, line.id, line.path, servers);
            terminal.clearProgress();
        }
        if (interrupt.isCaught())
            break;
        if (arguments.has(u"json"_s))
            json.append(jsonOf(line));
        else
            tell(terminal, line);
        if (worst == ExitCode::Fine)
            worst = codeOf(line.end);
    }
    if (arguments.has(u"json"_s))
        terminal.printJson(QJsonDocument(json));
    interrupt.passOn();
    return worst;
}

} // namespace

Command coverCommand()
{
    return {u"cover"_s,
            u"ID..."_s,
            u"Fetches covers into the cover folder."_s,
            {{u"missing"_s, u"Every title of the game list that has none, instead of ids."_s},
             {u"from"_s,
              u"Ask this server of the settings, or the folder of this url, which ends in \"/\". Else the "
              "servers of the settings in their order."_s,
              u"server"_s},
             {u"to"_s, u"Into this folder, which is there. Else the cover folder of the settings."_s,
              u"folder"_s},
             {u"overwrite"_s, u"Replace files that are there."_s},
             {u"json"_s, u"Print JSON instead of lines."_s}},
            run};
}

} // namespace varnhold::cli
