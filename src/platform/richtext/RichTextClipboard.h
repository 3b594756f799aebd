#pragma once

#include "platform/richtext/RichText.h"

#include <memory>
#include <optional>

class QMimeData;
class QTextDocumentFragment;

namespace varnhold {

/// Offers the fragment as Rich Text Format, HTML and plain text; each is made when someone asks for it.
std::unique_ptr<QMimeData> offerRichText(const QTextDocumentFragment& fragment);

/// What of the offer can be kept as rich text: formats, lists and texts; pictures and the frames of tables
/// are left out. None when there is nothing to take.
std::optional<RichText> takeRichText(const QMimeData& offer);
bool holdsRichText(const QMimeData& offer);

} // namespace varnhold
