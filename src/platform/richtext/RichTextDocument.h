#pragma once

#include "platform/richtext/RichText.h"

class QTextDocument;

namespace varnhold {

/// Replaces the document's contents. Verbatim groups become objects without extent that survive edits round
/// them and are cut and deleted like a character.
void setRichText(QTextDocument& document, const RichText& text);
/// The same as one step that Undo takes back.
void replaceRichText(QTextDocument& document, const RichText& text);
/// Twips between the document's margins; 0 where it has no width.
int viewWidthOf(const QTextDocument& document);
/// Moves what the document's width would leave out of view back into it, as setRichText does; call it when
/// the width has changed. The contents stay the same.
void fitIndents(QTextDocument& document);
/// RichText::header alone.
std::vector<QByteArray> richTextHeader(const QTextDocument& document);
/// What a raw text of a document reads as: lines that end with "\n", without the characters that stand for
/// verbatim groups. A document may hold such a group alone: its text is then empty, the document is not.
QString plainTextOf(QString rawText);
/// The document's contents; setRichText of it and back gives the same value.
RichText richTextOf(const QTextDocument& document);

} // namespace varnhold
