#include "cli/Arguments.h"
#include "cli/Commands.h"
#include "cli/PackageCheck.h"
#include "cli/PackageFetch.h"
#include "cli/Session.h"
#include "cli/TitleLookup.h"
#include "lookup/MarkRows.h"
#include "platform/Files.h"
#include "platform/RunTimeError.h"

#include <QDir>
#include <QFileInfo>

#include <algorithm>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestFileName = 255; ///< bytes, on all usual file systems

[[noreturn]] void fail(const QString& sentence)
{
    throw RunTimeError(errors::pathFileAccess, sentence);
}

/// Where the packages go. Throws RunTimeError with a sentence.
QString folderFor(const Arguments& arguments, const Session& session, const QString& gameId,
                  const QString& title)
{
    const Settings& settings = session.settings();
    QString folder = arguments.value(u"to"_s);
    if (folder.isEmpty() && settings.isChecked(Check::UseDLD)) {
        if (settings.saveDir().tag.isEmpty())
            fail(u"The settings use a download folder and name none; name one with --to."_s);
        folder = titleFolder(settings, gameId, title);
    }
    if (folder.isEmpty())
        folder = QDir::currentPath();
    folder = QDir::cleanPath(QDir(folder).absolutePath());
    // A download makes its other names by replacing these, wherever they stand in the path.
    if (folder.contains(u".pkg"_s) || folder.contains(u".temp"_s))
        fail(u"Packages cannot be kept in \"%1\": its name holds \".pkg\" or \".temp\"."_s.arg(folder));
    if (!FolderExists(folder)) {
        try {
            MakeFolder(folder);
        } catch (const RunTimeError& error) {
            fail(u"There is no folder \"%1\", and it cannot be made: %2."_s.arg(folder, error.description()));
        }
    }
    return folder;
}

/// The last part of the package's address, as far as a file may have that name. Throws RunTimeError.
QString fileNameOf(const Package& package)
{
    if (package.url.isEmpty())
        fail(u"The document gives no address for package %1."_s.arg(package.version));
    const QString name = package.url.sliced(package.url.lastIndexOf(u'/') + 1);
    const bool odd = std::ranges::any_of(name, [](QChar character) { return !character.isPrint(); });
    if (odd || !name.endsWith(u".pkg"_s) || name == u".pkg"_s || name.contains(u".temp"_s) ||
        name.toUtf8().size() > longestFileName)
        fail(u"The address of package %1 does not end in the name of a .pkg file: %2"_s.arg(package.version,
                                                                                            package.url));
    return name;
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

/// Throws RunTimeError with a sentence for what cannot be downloaded.
ExitCode downloadOne(const Arguments& arguments, Session& session, const Package& package,
                     const QString& folder)
{
    Terminal& terminal = session.terminal();
    const QString target = (folder.endsWith(u'/') ? folder : folder + u'/') + fileNameOf(package);
    if (QFileInfo::exists(target) && !arguments.has(u"overwrite"_s)) {
        const bool isFile = QFileInfo(target).isFile();
        const SumAgreement agreement = isFile ? compareSum(target, package.sha1) : SumAgreement::Neither;
        if (agreement == SumAgreement::WholeFile || agreement == SumAgreement::AllButTail)
            return report(terminal, printable(u"%1  %2  is there already"_s.arg(package.version, target)),
                          agreement);
        fail(isFile ? u"%1 is there already and is not that package; --overwrite replaces it."_s.arg(target)
                    : u"%1 is there already and is no file."_s.arg(target));
    }
    if (const std::optional<QString> problem = fetchPackage(session, package, target)) {
        if (!problem->isEmpty())
            terminal.complain(printable(*problem));
        return ExitCode::Failed;
    }
    const qint64 size = QFileInfo(target).size();
    const std::optional<qint64> wanted = package.size();
    if (wanted && *wanted != size)
        fail(u"%1 has %2 bytes, and the document says %3; --overwrite fetches it again."_s.arg(target)
                 .arg(size)
                 .arg(*wanted));
    return report(terminal, printable(u"%1  %2  %3 bytes"_s.arg(package.version, target).arg(size)),
                  compareSum(target, package.sha1));
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
    const QString folder = folderFor(arguments, session, gameId, updates.title);
    ExitCode worst = ExitCode::Fine;
    for (const Package& package : packages) {
        ExitCode one = ExitCode::Failed;
        try {
            one = downloadOne(arguments, session, package, folder);
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
         serverOption()},
        run};
}

} // namespace varnhold::cli
