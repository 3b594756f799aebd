#pragma once

#include "host/PackageContent.h"
#include "host/Titles.h"

#include <QByteArray>

namespace varnhold::host {

/// Path of one package of a title; the same on every server.
QString packagePath(const SampleTitle& title, const SamplePackage& package);

/// The update document of a title. `sums`: one for each of its packages. `origin`: scheme and authority that
/// package addresses begin with.
QByteArray updateXml(const SampleTitle& title, const std::vector<PackageSums>& sums,
                     const QByteArray& origin);

} // namespace varnhold::host
