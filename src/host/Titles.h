#pragma once

#include <QString>

#include <vector>

namespace varnhold::host {

/// What a document's sha1sum covers. Real documents come in both kinds.
enum class SumOf { WholeFile, AllButTail };

struct SamplePackage
{
    QString version;       ///< "01.02"
    QString systemVersion; ///< "03.4100"; empty: the document does not say
    qint64 size = 0;       ///< in bytes, at least 32
};

struct SampleTitle
{
    QString id;
    QString name;
    SumOf sumOf = SumOf::WholeFile;
    /// Packages are reached through a redirect.
    bool moved = false;
    std::vector<SamplePackage> packages;
};

/// The made-up titles of the sample service.
const std::vector<SampleTitle>& sampleTitles();

} // namespace varnhold::host
