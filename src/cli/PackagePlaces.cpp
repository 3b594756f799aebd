#include "cli/PackagePlaces.h"

#include "cli/Arguments.h"
#include "cli/PackageFetch.h"
#include "lookup/MarkRows.h"
#include "platform/Files.h"
#include "platform/RunTimeError.h"
#include "state/Settings.h"

#include <QDir>
#include <QFileInfo>

namespace varnhold::cli {

using namespace Qt::StringLiterals;

namespace {

[[noreturn]] void fail(const QString& sentence)
{
    throw RunTimeError(errors::pathFileAccess, sentence);
}

/// Empty when the settings name no folder.
QString folderOfSettings(const Settings& settings, const QString& gameId, const QString& title)
{
    if (!settings.isChecked(Check::UseDLD))
        return {};
    if (settings.saveDir().tag.isEmpty())
        fail(u"The settings use a download folder and name none; name one with --to."_s);
    if (gameId.isEmpty())
        return settings.saveDir().tag;
    if (settings.isChecked(Check::CGNFolder) && !isOneName(titleFolderName(gameId, title)))
        fail(u"The settings ask for a folder of the title's name, and no folder can be called \"%1\"; name "
             u"one "
             "with --to."_s.arg(titleFolderName(gameId, title)));
    return titleFolder(settings, gameId, title);
}

} // namespace

QString packageFolder(const Arguments& arguments, const Settings& settings, const QString& gameId,
                      const QString& title)
{
    QString folder = arguments.value(u"to"_s);
    if (folder.isEmpty())
        folder = folderOfSettings(settings, gameId, title);
    folder = QDir::cleanPath(QDir(folder.isEmpty() ? QDir::currentPath() : folder).absolutePath());
    // A download makes its other names by replacing these, wherever they stand in the path.
    if (folder.contains(u".pkg"_s) || folder.contains(u".temp"_s))
        fail(u"Packages cannot be kept in \"%1\": its name holds \".pkg\" or \".temp\"."_s.arg(folder));
    return folder;
}

void requireFolder(const QString& folder)
{
    if (FolderExists(folder))
        return;
    try {
        MakeFolder(folder);
    } catch (const RunTimeError& error) {
        fail(u"There is no folder \"%1\", and it cannot be made: %2."_s.arg(folder, error.description()));
    }
}

PackageTarget targetOf(const Package& package, const QString& folder, bool overwrite)
{
    if (package.url.isEmpty())
        fail(u"The document gives no address for package %1."_s.arg(package.version));
    if (const QString fault = addressFault(package.url); !fault.isEmpty())
        fail(u"The address of package %1 %2: %3"_s.arg(package.version, fault, package.url));
    return {(folder.endsWith(u'/') ? folder : folder + u'/') + packageFileName(package.url), package.size(),
            overwrite, !package.sha1.isEmpty()};
}

std::optional<SumAgreement> standsAlready(const Package& package, const PackageTarget& target)
{
    const QFileInfo there(target.path);
    if (!there.exists() && !there.isSymLink())
        return std::nullopt;
    if (!there.isFile() && !(there.isSymLink() && target.overwrite))
        fail(u"%1 is there already and is no file."_s.arg(target.path));
    if (target.overwrite)
        return std::nullopt;
    const SumAgreement agreement = compareSum(target.path, package.sha1);
    if (agreement == SumAgreement::Neither)
        fail(u"%1 is there already and is not that package; --overwrite replaces it."_s.arg(target.path));
    return agreement;
}

} // namespace varnhold::cli
