#pragma once

#include <QByteArrayView>
#include <QImage>

namespace varnhold {

/// The one door for pictures from outside: bitmap, JPEG, GIF (its first frame) or PNG, told by its contents;
/// bytes behind the picture do no harm. What is half there shows as far as it goes. Null when it is no
/// picture, or beyond the limits of PictureHeader.h.
///
/// With `most`, a larger picture comes scaled down to fit in it, its proportions kept; for a JPEG that is
/// several times as fast. A JPEG of more than 24 million pixels comes scaled down in any case.
/// Pixels are RGB32, or ARGB32_Premultiplied where some may be clear.
QImage readPicture(QByteArrayView bytes, const QSize& most = {});
/// Null also where the path names no regular file that can be read.
QImage readPictureFile(const QString& path, const QSize& most = {});

} // namespace varnhold
