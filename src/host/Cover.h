#pragma once

#include <QByteArray>
#include <QString>

namespace varnhold::host {

/// A made-up cover picture as JPEG, 256 by 296 pixels: tiles in colours that follow from the id. Needs no
/// picture library.
QByteArray coverJpeg(const QString& id);

/// A JPEG of 8000 by 8000 grey pixels in so many progressive scans, which a decoder has to walk through one
/// by one: some 80 bytes each.
QByteArray manyScansJpeg(int scans);

/// A small JPEG whose header tells 65535 by 65535 pixels.
QByteArray hugeSizeJpeg();

} // namespace varnhold::host
