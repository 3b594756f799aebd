#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/Session.h"
#include "cli/Table.h"
#include "cli/TitleLookup.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

void printTable(Terminal& terminal, const QString& gameId, const TitleUpdates& updates)
{
    const qsizetype count = updates.packages.size();
    terminal.print(printable(u"%1  %2  [%3 %4]"_s.arg(gameId, updates.title)
                                 .arg(count)
                                 .arg(count == 1 ? u"Update"_s : u"Updates"_s)));
    if (count == 0)
        return;
    Table table({u"Pkg"_s, u"Version"_s, u"Bytes"_s, u"Sha1"_s, u"Url"_s});
    for (const Package& package : updates.packages)
        table.addRow({package.version, package.systemVersion, package.sizeText, package.sha1, package.url});
    terminal.print(table.text());
}

QJsonValue textOrNull(const QString& text)
{
    return text.isEmpty() ? QJsonValue() : QJsonValue(text);
}

void printJson(Terminal& terminal, const QString& gameId, const TitleUpdates& updates)
{
    QJsonArray packages;
    for (const Package& package : updates.packages) {
        const std::optional<qint64> size = package.size();
        const bool namesSystem = package.systemVersion != u"N/A";
        packages.append(QJsonObject{
            {u"version"_s, package.version},
            {u"systemVersion"_s, namesSystem ? textOrNull(package.systemVersion) : QJsonValue()},
            {u"size"_s, size ? QJsonValue(*size) : QJsonValue()},
            {u"sha1"_s, textOrNull(package.sha1)},
            {u"url"_s, textOrNull(package.url)},
        });
    }
    const QJsonObject object{{u"id"_s, gameId}, {u"title"_s, updates.title}, {u"packages"_s, packages}};
    terminal.printJson(QJsonDocument(object));
}

ExitCode run(const Arguments& arguments, Terminal& terminal)
{
    const QString gameId = gameIdOf(arguments);
    Session session(arguments, terminal);
    const TitleUpdates updates = lookUp(session, gameId);
    const bool found = updates.outcome == TitleUpdates::Outcome::Found;
    // Of a damaged document, what could be read is shown.
    if (found || !updates.packages.isEmpty())
        (arguments.has(u"json"_s) ? printJson : printTable)(terminal, gameId, updates);
    if (found)
        return ExitCode::Fine;
    terminal.complain(updates.problem);
    return updates.outcome == TitleUpdates::Outcome::NoSuchTitle ? ExitCode::NoSuchTitle : ExitCode::Failed;
}

} // namespace

Command lookupCommand()
{
    return {u"lookup"_s,
            u"ID"_s,
            u"Lists the packages of a title."_s,
            {{u"json"_s, u"Print JSON instead of a table."_s}, serverOption(), timeoutOption()},
            run};
}

} // namespace varnhold::cli
