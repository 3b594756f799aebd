#pragma once

#include <QByteArray>
#include <QString>

#include <vector>

namespace varnhold::host {

/// What a document's sha1sum covers. Real documents come in both kinds.
enum class SumOf { WholeFile, AllButTail };

/// Where a document says that a package lies.
enum class PackageAddress {
    Own,      ///< made from id and version
    None,     ///< it does not say
    AsFirst,  ///< where the title's first package lies, of whose size it then is
    Capitals, ///< its own, which ends in ".PKG"
};

struct SamplePackage
{
    QString version;       ///< "01.02"
    QString systemVersion; ///< "03.4100"; empty: the document does not say
    qint64 size = 0;       ///< in bytes, at least 32
    PackageAddress address = PackageAddress::Own;
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

/// Made-up titles, each with packages of its own choice. The delivered game database has them all.
const std::vector<SampleTitle>& sampleTitles();
/// Titles whose documents are odd in one way each: 24 packages, a "/" in the name, a last package without an
/// address, two packages with one address, an address that ends in ".PKG".
const std::vector<SampleTitle>& oddTitles();

/// All that the service knows: the above, and every other title of the delivered database with one to eight
/// packages that follow from its id. Some of these have none, and no document.
const std::vector<SampleTitle>& knownTitles();

/// Delivered titles have covers, but for a few.
bool hasCover(const QString& id);

/// Lines of an id list, made up: the same ones for each count, and the first ones of a longer list.
QByteArray madeUpIdList(int count);

} // namespace varnhold::host
