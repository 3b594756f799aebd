#pragma once

#include <QString>

namespace varnhold::cli {

/// What a package's sum in the document turned out to cover.
enum class SumAgreement { WholeFile, AllButTail, Neither, NotGiven };

/// Compares a file with the document's SHA-1 (hexadecimal, in any case), over the whole file and over all but
/// its last 32 bytes, where packages carry a sum of their own. Throws RunTimeError 75 when the file cannot be
/// read.
SumAgreement compareSum(const QString& path, const QString& documentSum);

/// A sentence for each.
QString agreementText(SumAgreement agreement);

} // namespace varnhold::cli
