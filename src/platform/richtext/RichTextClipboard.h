#pragma once

#include "platform/richtext/RichText.h"

#include <memory>
#include <optional>
#include <vector>

class QMimeData;
class QTextDocumentFragment;

namespace varnhold {

/// Offers the fragment of a document with that header as Rich Text Format, HTML and plain text; each is made
/// when someone asks for it.
std::unique_ptr<QMimeData> offerRichText(const QTextDocumentFragment& fragment,
                                         const std::vector<QByteArray>& header);

/// What of the offer can be kept as rich text: formats, lists and texts; pictures and the frames of tables
/// are left out. None when there is nothing to take.
std::optional<RichText> takeRichText(const QMimeData& offer);
/// Before text goes into a document with that header: its lists stay lists where they are the same ones, and
/// else their numbers become text.
void fitLists(RichText& text, const std::vector<QByteArray>& header);
bool holdsRichText(const QMimeData& offer);

} // namespace varnhold
