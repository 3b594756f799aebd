#pragma once

#include <QByteArray>
#include <QByteArrayView>
#include <QString>

namespace varnhold {

/// What the file "temp.bmp" in the folder `root` gives back of these bytes, 256 MiB at most; it is gone
/// afterwards, whatever happens. What stood there under its name goes, a link itself. Throws RunTimeError.
QByteArray throughFile(const QString& root, QByteArrayView bytes);

} // namespace varnhold
