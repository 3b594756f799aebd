#pragma once

#include "platform/richtext/RichText.h"

#include <QByteArrayView>

namespace varnhold {

/// A text of no format as rich text, a paragraph a line: UTF-16 with its mark, UTF-8, or Windows-1252 where
/// it is not valid UTF-8. Zero bytes are left out.
RichText readPlainNote(QByteArrayView note);

} // namespace varnhold
