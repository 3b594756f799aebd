#pragma once

#include "platform/richtext/RichText.h"

namespace varnhold {

/// Notes in files. Errors are RunTimeError, as ReadFile.h and ReplaceFile.h name them; a write that fails
/// leaves the old file whole.

/// By its content and not its name: Rich Text Format, or a plain text as readRtf reads one. At most 64 MiB.
RichText loadNotes(const QString& path);
void saveRtf(const QString& path, const RichText& text);
/// Lines ("\n" in `text`) end with CR LF, the last one too; Windows-1252, or UTF-8 with its mark where a
/// character has no place there.
void savePlainText(const QString& path, const QString& text);

} // namespace varnhold
