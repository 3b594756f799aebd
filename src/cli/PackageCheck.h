#pragma once

#include "download/PackageSum.h"

#include <QString>

#include <optional>

namespace varnhold::cli {

/// What a package's sum in the document turned out to cover.
enum class SumAgreement { WholeFile, AllButTail, Neither, NotGiven };

/// Compares a file with the document's SHA-1 (hexadecimal, in any case), over the whole file and over all but
/// its last 32 bytes. Reads it unless its sums are known. Throws RunTimeError 75 when it cannot be read.
SumAgreement compareSum(const QString& path, const QString& documentSum,
                        const std::optional<PackageSums>& known = {});

/// A sentence for each.
QString agreementText(SumAgreement agreement);

} // namespace varnhold::cli
