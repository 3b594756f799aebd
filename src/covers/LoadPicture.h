#pragma once

#include <QImage>
#include <QString>

class QWidget;

namespace varnhold {

/// The picture at `path`, as PictureReader reads it, drawn over the background and so without a clear pixel:
/// scaled to width and height (-1 for either: both are the picture's own), over all of them or, with
/// `aspect`, as drawScaled() fits it. Throws RunTimeError 999 for what is no picture, and for a size below 1.
QImage loadImageScaled(const QString& path, int width, int height, QRgb background, bool aspect);

/// Shows the picture at `path` in the target, in its own size and on white. False, and the target keeps what
/// it shows, when it is no picture. The target has a property "Picture".
bool loadPictureFile(const QString& path, QWidget& target);

} // namespace varnhold
