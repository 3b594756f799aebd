#pragma once

#include <QByteArrayView>
#include <QSize>

namespace varnhold {

/// What the markers of a JPEG tell.
struct JpegHeader
{
    QSize size; ///< empty: no frame of a kind that is read here (baseline or progressive Huffman)
    bool isGray = false;
    bool inOnePass = false; ///< one scan brings all: it is unpacked row by row
    qint64 heldBytes = 0;   ///< what a decoder holds of a picture in several scans, besides its pixels
    int scans = 0;          ///< counted up to `countTo`
    bool hasEnd = false;    ///< the closing mark stands behind at least one scan
};

/// Reads the markers as far as they matter: to the first scan where that brings all; else through the scans,
/// until there are more than `countTo`. `toEnd`: through all of it in any case.
JpegHeader jpegHeader(QByteArrayView bytes, int countTo, bool toEnd);

} // namespace varnhold
