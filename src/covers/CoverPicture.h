#pragma once

#include <QByteArrayView>
#include <QImage>

namespace varnhold {

/// A picture out of bytes or a file: bitmap, JPEG, GIF (its first frame) or PNG, told by its contents; bytes
/// behind the picture do no harm. What is half there shows as far as it goes. Null when it is no picture or
/// larger than 16,384 pixels a side or 64 million pixels.
/// With `most`, a larger picture comes scaled down to fit in it, its proportions kept; for a JPEG that is
/// several times as fast.
QImage coverPicture(QByteArrayView bytes, const QSize& most = {});
QImage coverPictureFile(const QString& path, const QSize& most = {});

} // namespace varnhold
