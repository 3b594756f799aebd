#pragma once

#include "platform/richtext/RichText.h"

#include <QByteArrayView>

namespace varnhold {

/// Reads Rich Text Format 1.9 as word processors write it. Never fails: what is damaged shows as much as can
/// be read, and a stream that does not begin with "{\rtf" (a UTF-8 mark and blanks may precede) is plain
/// text: UTF-16 with its mark, UTF-8, or Windows-1252 where it is not valid UTF-8. Time and memory grow with
/// the size of the stream alone; groups are followed 16,384 deep, those within are counted.
///
/// Carried, besides what RichText names: every group that is no text of the body - pictures, objects, notes,
/// headers and footers, style sheets, all with \* that are not known - word for word as 7-bit bytes (\bin as
/// hexadecimal), with the entries of the font and colour tables that they refer to; the fields' codes, as a
/// run "{\field...}" before their result and one "{\fldrslt}" behind it; hidden and deleted text, as a run
/// "{\v ...}" or "{\deleted ...}". Bullets come from both kinds of lists; other lists show their numbers as
/// runs, and the paragraph keeps its place in the list. Characters without a size have 12 points. Table cells
/// read as text with tabs between, rows as paragraphs.
/// Not carried: words for what RichText has no room for (spacing, borders, page size, languages, styles'
/// numbers). U+2029 and line ends within a text become U+2028, NUL becomes nothing.
RichText readRtf(QByteArrayView stream);

} // namespace varnhold
