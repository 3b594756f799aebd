#pragma once

#include "platform/richtext/RichText.h"

#include <QByteArrayView>

namespace varnhold {

/// Reads Rich Text Format 1.9 as word processors write it. Never fails: what is damaged shows as much as can
/// be read, groups are followed to a bounded depth, unknown groups are kept unread, and a stream that does
/// not begin with "{\rtf" is plain text in UTF-8, or Windows-1252 where it is not valid UTF-8.
RichText readRtf(QByteArrayView stream);

} // namespace varnhold
