#pragma once

#include "host/Body.h"

#include <QByteArray>
#include <QString>

namespace varnhold::host {

/// Bytes at a package's end that its own sum does not cover: the sum (20 bytes), then 12 zero bytes.
inline constexpr qint64 packageTailSize = 32;

/// The two sums that a document may carry for a package, in lower-case hexadecimal.
struct PackageSums
{
    QByteArray wholeFile;
    QByteArray allButTail;
};

/// The content of a package without its tail: the same bytes for the same seed on every machine. No chunk
/// of it can begin with "HTTP", so that no cut of a transfer looks like a second answer.
Body packageContent(quint32 seed, qint64 size);

/// Reads the content once: about half a second for a gigabyte.
PackageSums packageSums(quint32 seed, qint64 size);

/// A whole package: content and tail. `size` is at least packageTailSize.
Body packageBody(quint32 seed, qint64 size, const PackageSums& sums);

/// The seed of a package by its path.
quint32 packageSeed(const QString& path);

} // namespace varnhold::host
