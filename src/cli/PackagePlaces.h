#pragma once

#include "cli/PackageCheck.h"
#include "cli/PackageFiles.h"
#include "cli/TitleLookup.h"

#include <QString>

#include <optional>

namespace varnhold {
class Settings;
}

namespace varnhold::cli {

struct Arguments;

// Where packages go, and what stands there. All throw RunTimeError with a sentence.

/// The folder of --to, else of the settings where they use one, else the current folder. An empty id stands
/// for packages of no title, which need no folder of a title's name. Makes nothing.
QString packageFolder(const Arguments& arguments, const Settings& settings, const QString& gameId,
                      const QString& title);
/// Makes the folder where it is missing.
void requireFolder(const QString& folder);
/// The package's place in the folder. Throws for an address that cannot be asked for.
PackageTarget targetOf(const Package& package, const QString& folder, bool overwrite);
/// How the file at the target agrees with the document; no value when nothing stands there, or something that
/// is to be replaced. Throws when it is in the way, as a file with another sum is.
std::optional<SumAgreement> standsAlready(const Package& package, const PackageTarget& target);

} // namespace varnhold::cli
