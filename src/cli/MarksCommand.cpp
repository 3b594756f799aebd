#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/PackageCheck.h"
#include "cli/Session.h"
#include "cli/Table.h"
#include "cli/TitleLookup.h"
#include "lookup/MarkRows.h"
#include "lookup/PackageNames.h"
#include "platform/RunTimeError.h"

#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

QString wordOf(const QString& mark)
{
    if (mark == u"plus")
        return u"marked"_s;
    if (mark == u"pkg-plus")
        return u"complete"_s;
    return mark == u"pkg-red" ? u"incomplete"_s : u"none"_s;
}

QString wordOf(SumAgreement agreement)
{
    switch (agreement) {
    case SumAgreement::WholeFile:
    case SumAgreement::AllButTail:
        return u"agrees"_s;
    case SumAgreement::Neither:
        return u"differs"_s;
    case SumAgreement::NotGiven:
        break;
    }
    return u"not given"_s;
}

/// What stands under the package's name, against the document; empty for nothing. Throws RunTimeError.
QString sumWord(const Package& package, const QString& folder)
{
    const QString path = folder + u'/' + packageNames(package.url).package;
    return QFileInfo(path).isFile() ? wordOf(compareSum(path, package.sha1)) : QString();
}

ExitCode run(const Arguments& arguments, Terminal& terminal)
{
    const QString gameId = gameIdOf(arguments);
    const bool withSums = arguments.has(u"sums"_s);
    Session session(arguments, terminal);
    const TitleUpdates updates = lookUp(session, gameId);
    if (updates.outcome != TitleUpdates::Outcome::Found) {
        terminal.complain(updates.problem);
        return updates.outcome == TitleUpdates::Outcome::NoSuchTitle ? ExitCode::NoSuchTitle
                                                                     : ExitCode::Failed;
    }
    const QString folder = titleFolder(session.settings(), gameId, updates.title);
    ExitCode code = ExitCode::Fine;
    Table table(withSums ? QStringList{u"Pkg"_s, u"Mark"_s, u"Sha1"_s, u"File"_s}
                         : QStringList{u"Pkg"_s, u"Mark"_s, u"File"_s});
    QJsonArray rows;
    for (const Package& package : updates.packages) {
        const QString file = packageNames(package.url).package;
        QStringList cells = {package.version, wordOf(package.mark)};
        QJsonObject row{{u"version"_s, package.version},
                        {u"mark"_s, wordOf(package.mark)},
                        {u"icon"_s, package.mark},
                        {u"file"_s, file}};
        if (withSums) {
            QString sum;
            try {
                sum = sumWord(package, folder);
            } catch (const RunTimeError& error) {
                terminal.complain(printable(error.description()));
                code = code == ExitCode::Fine ? ExitCode::Failed : code;
            }
            if (sum == u"differs" && code == ExitCode::Fine)
                code = ExitCode::SumDiffers;
            cells.append(sum.isEmpty() ? u"-"_s : sum);
            row.insert(u"sha1"_s, sum.isEmpty() ? QJsonValue() : QJsonValue(sum));
        }
        table.addRow(cells << file);
        rows.append(row);
    }
    if (arguments.has(u"json"_s)) {
        terminal.printJson(QJsonDocument(QJsonObject{
            {u"id"_s, gameId}, {u"title"_s, updates.title}, {u"folder"_s, folder}, {u"packages"_s, rows}}));
    } else {
        terminal.print(printable(u"%1  %2  %3"_s.arg(gameId, updates.title, folder)));
        terminal.print(table.text());
    }
    return code;
}

} // namespace

Command marksCommand()
{
    return {u"marks"_s,
            u"ID"_s,
            u"Tells which packages of a title are in the download folder of the settings."_s,
            {{u"sums"_s, u"Compare each package's SHA-1 with the document's, too."_s},
             {u"json"_s, u"Print JSON instead of a table."_s},
             serverOption(),
             timeoutOption()},
            run};
}

} // namespace varnhold::cli
