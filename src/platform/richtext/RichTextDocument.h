#pragma once

#include "platform/richtext/RichText.h"

class QTextDocument;

namespace varnhold {

/// Replaces the document's contents. Verbatim groups become objects without extent that survive edits round
/// them and are cut and deleted like a character.
void setRichText(QTextDocument& document, const RichText& text);
/// The document's contents; setRichText of it and back gives the same value.
RichText richTextOf(const QTextDocument& document);

} // namespace varnhold
