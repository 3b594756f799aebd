#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/PackageCheck.h"
#include "cli/PackageFetch.h"
#include "cli/PackagePlaces.h"
#include "cli/Session.h"
#include "cli/TitleLookup.h"
#include "platform/MessagePump.h"
#include "platform/RunTimeError.h"

#include <QFileInfo>

#include <algorithm>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void fail(const QString& sentence)
{
    throw RunTimeError(errors::pathFileAccess, sentence);
}

QList<Package> chosen(const Arguments& arguments, const QList<Package>& packages)
{
    if (arguments.has(u"all"_s))
        return packages;
    if (!arguments.has(u"package"_s))
        return packages.isEmpty() ? packages : QList{packages.last()};
    const auto found = std::ranges::find(packages, arguments.value(u"package"_s), &Package::version);
    return found == packages.end() ? QList<Package>{} : QList{*found};
}

ExitCode report(Terminal& terminal, const QString& line, SumAgreement agreement)
{
    terminal.print(line);
    if (agreement == SumAgreement::Neither) {
        terminal.complain(agreementText(agreement));
        return ExitCode::SumDiffers;
    }
    terminal.print(agreementText(agreement));
    return ExitCode::Fine;
}

/// Shows its progress and waits for its end.
void waitFor(PackageFetch& fetch, const Package& package, Terminal& terminal)
{
    EventLoopPump pump;
    QObject::connect(&fetch, &PackageFetch::progress, &fetch,
                     [&] { terminal.showProgress(progressLine(package.version, fetch.labels())); });
    fetch.start();
    while (!fetch.isEnded())
        pump.pumpNext();
    terminal.clearProgress();
}

/// Throws RunTimeError with a sentence for what cannot be downloaded.
ExitCode downloadOne(const Arguments& arguments, Session& session, const Package& package,
                     const QString& folder, FetchThreads& threads)
{
    Terminal& terminal = session.terminal();
    const PackageTarget target = targetOf(package, folder, arguments.has(u"overwrite"_s));
    if (const std::optional<SumAgreement> agreement = standsAlready(package, target)) {
        // Without a sum in the document, any file of that name may be another.
        if (*agreement == SumAgreement::NotGiven)
            fail(u"%1 is there already and is not that package; --overwrite replaces it."_s.arg(target.path));
        return report(terminal, printable(u"%1  %2  is there already"_s.arg(package.version, target.path)),
                      *agreement);
    }

    PackageFetch fetch(package.url, target, session.patience(), threads);
    waitFor(fetch, package, terminal);
    if (!fetch.hasArrived())
        fail(fetch.problem());
    return report(
        terminal,
        printable(u"%1  %2  %3 bytes"_s.arg(package.version, target.path).arg(QFileInfo(target.path).size())),
        compareSum(target.path, package.sha1, fetch.takeSums()));
}

ExitCode run(const Arguments& arguments, Terminal& terminal)
{
    const QString gameId = gameIdOf(arguments);
    if (arguments.has(u"all"_s) && arguments.has(u"package"_s))
        throw UsageError{u"--all and --package exclude each other."_s};
    Session session(arguments, terminal);
    const TitleUpdates updates = lookUp(session, gameId);
    if (updates.outcome != TitleUpdates::Outcome::Found) {
        terminal.complain(updates.problem);
        return updates.outcome == TitleUpdates::Outcome::NoSuchTitle ? ExitCode::NoSuchTitle
                                                                     : ExitCode::Failed;
    }
    const QList<Package> packages = chosen(arguments, updates.packages);
    if (packages.isEmpty()) {
        terminal.complain(printable(arguments.has(u"package"_s) ? u"%1 has no package %2."_s.arg(
                                                                      gameId, arguments.value(u"package"_s))
                                                                : u"%1 has no packages."_s.arg(gameId)));
        return ExitCode::NoSuchTitle;
    }
    const QString folder = packageFolder(arguments, session.settings(), gameId, updates.title);
    requireFolder(folder);
    FetchThreads threads;
    ExitCode worst = ExitCode::Fine;
    for (const Package& package : packages) {
        ExitCode one = ExitCode::Failed;
        try {
            one = downloadOne(arguments, session, package, folder, threads);
        } catch (const RunTimeError& error) {
            terminal.complain(printable(error.description()));
        }
        if (worst == ExitCode::Fine)
            worst = one;
    }
    return worst;
}

} // namespace

Command downloadCommand()
{
    return {
        u"download"_s,
        u"ID"_s,
        u"Downloads a package: the last one listed, or as --package or --all say."_s,
        {{u"package"_s, u"The package of this version."_s, u"version"_s},
         {u"all"_s, u"All packages of the title."_s},
         {u"to"_s,
          u"Into this folder, made when it is missing. Else the download folder of the settings where that "
          "is in use, else the current folder."_s,
          u"folder"_s},
         {u"overwrite"_s, u"Replace files that are there."_s},
         serverOption(),
         timeoutOption()},
        run};
}

} // namespace varnhold::cli
