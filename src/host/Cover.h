#pragma once

#include <QByteArray>
#include <QString>

namespace varnhold::host {

/// A made-up cover picture as JPEG, 256 by 296 pixels: tiles in colours that follow from the id. Needs no
/// picture library.
QByteArray coverJpeg(const QString& id);

} // namespace varnhold::host
