#pragma once

#include "platform/richtext/RichText.h"

#include <QTextBlockFormat>
#include <QTextCharFormat>

#include <optional>

namespace varnhold {

/// Formats of values as formats of a document that is laid out at 96 dots an inch, and back. A paragraph's
/// lengths also stand as they are in properties of our own, since the layout needs other numbers where there
/// is a bullet: change a paragraph's format as a value, never through the layout's properties.
/// Text that lies left of the view, or so far right that next to nothing fits, shows within it; `viewWidth`
/// in twips, 0: any.
QTextBlockFormat toBlockFormat(const RichText::ParagraphFormat& format, int viewWidth = 0);
/// The same paragraph's format for another width; none where nothing changes, as for one that was not made
/// here.
std::optional<QTextBlockFormat> fitFormat(const QTextBlockFormat& format, int viewWidth);
RichText::ParagraphFormat toParagraphFormat(const QTextBlockFormat& format);

QTextCharFormat toTextFormat(const RichText::CharacterFormat& format);
RichText::CharacterFormat toCharacterFormat(const QTextCharFormat& format);

/// Marks the characters of a list's number with what they are, since what is typed beside them takes their
/// format.
void setNumber(QTextCharFormat& format, const QString& number);
QString numberOf(const QTextCharFormat& format);

/// The format of the one character that stands for a verbatim group, an object of the type given here.
inline constexpr int verbatimObject = QTextFormat::UserObject + 1;
QTextCharFormat toVerbatimFormat(const RichText::CharacterFormat& format, const QByteArray& group);
/// The group; null for any other character.
QByteArray verbatimGroup(const QTextFormat& format);

/// From the bullet's left edge to the text, in pixels; 0 without a bullet.
double bulletDistance(const RichText::ParagraphFormat& format);

} // namespace varnhold
