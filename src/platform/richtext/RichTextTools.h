#pragma once

#include "platform/richtext/RichText.h"

#include <functional>
#include <optional>

class QTextCursor;

namespace varnhold {

/// What a selection in a RichTextBox's document can be set to and asked for. Each change is one step of undo
/// and leaves the same text selected. Without a selection, letters are those typed next: hand the cursor back
/// with setTextCursor, as RichTextBox::edit does. Lengths are twips.

enum class LetterStyle { Bold, Italic, Underline, Strikethrough };
enum class LetterCase { Lower, Upper };

/// What all the selected letters have in common; no value where they differ. Kept groups do not count.
struct SelectedLetters
{
    std::optional<bool> bold;
    std::optional<bool> italic;
    std::optional<bool> underline;
    std::optional<bool> strikethrough;
    std::optional<QString> font;                 ///< empty: the box's own
    std::optional<int> halfPoints;               ///< 0: the box's own
    std::optional<std::optional<quint32>> color; ///< as stored, 0x00BBGGRR; none inside: the box's own
};
SelectedLetters selectedLetters(const QTextCursor& selection);
/// The format of the first selected paragraph, by which a tool for paragraphs decides.
RichText::ParagraphFormat selectedParagraph(const QTextCursor& selection);

/// Off where all letters have it, else on.
void toggle(QTextCursor& selection, LetterStyle style);
void setFont(QTextCursor& selection, const QString& name);
void setHalfPoints(QTextCursor& selection, int halfPoints);
void setColor(QTextCursor& selection, quint32 color); ///< 0x00BBGGRR
/// Each character keeps its format, kept groups their places; the text may get longer.
void changeCase(QTextCursor& selection, LetterCase letterCase);

/// Where the first line starts, and how far the others lie behind it.
int firstLineOf(const RichText::ParagraphFormat& format);
int hangingOf(const RichText::ParagraphFormat& format);

/// Runs over each selected paragraph's format.
void changeParagraphs(QTextCursor& selection, const std::function<void(RichText::ParagraphFormat&)>& change);
void setAlignment(QTextCursor& selection, RichText::Alignment alignment);
/// These four: nothing where the first paragraph has some, else so much. The first two keep each other.
void toggleIndent(QTextCursor& selection, int firstLine);
void toggleHangingIndent(QTextCursor& selection, int behind);
void toggleRightIndent(QTextCursor& selection, int right);
/// Also ends the place in a list, with its number.
void toggleBullet(QTextCursor& selection, int distance);

} // namespace varnhold
