#pragma once

#include "TitleList.h"
#include "platform/richtext/RichText.h"

#include <array>

namespace varnhold::assets {

/// A colour that notes may use, 0x00BBGGRR. It is as readable on a dark page as on a light one.
struct NotesInk
{
    QStringView name;
    quint32 color;
};
extern const std::array<NotesInk, 4> notesInks;

/// Rich notes out of lines, each a paragraph, in the markup that titles.txt tells. Throws std::runtime_error
/// for an ink that there is none of and for marks that are not closed.
RichText richNotes(const QStringList& lines);

} // namespace varnhold::assets
