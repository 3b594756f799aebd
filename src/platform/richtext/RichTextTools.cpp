#include "platform/richtext/RichTextTools.h"

#include "platform/richtext/RichTextDocument.h"
#include "platform/richtext/RichTextFormats.h"

#include <QBrush>
#include <QColor>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace varnhold {

namespace {

/// One step of undo while it lives.
class Step
{
public:
    explicit Step(QTextCursor& cursor) : m_cursor(cursor) { m_cursor.beginEditBlock(); }
    ~Step() { m_cursor.endEditBlock(); }
    Q_DISABLE_COPY_MOVE(Step)

private:
    QTextCursor& m_cursor;
};

/// Hands each selected stretch of one format to `use`: the fragment, the first position and the end of what
/// is selected of it. Goes on while `use` says so.
template <typename Use> void eachFragment(const QTextCursor& selection, const Use& use)
{
    const int first = selection.selectionStart();
    const int end = selection.selectionEnd();
    const QTextDocument& document = *selection.document();
    for (QTextBlock block = document.findBlock(first); block.isValid() && block.position() < end;
         block = block.next()) {
        for (auto at = block.begin(); !at.atEnd(); ++at) {
            const QTextFragment fragment = at.fragment();
            const int from = std::max(first, fragment.position());
            const int to = std::min(end, fragment.position() + fragment.length());
            if (from < to && !use(fragment, from, to))
                return;
        }
    }
}

/// The answers so far, and one more.
class InCommon
{
public:
    void add(const RichText::CharacterFormat& format)
    {
        meet(m_letters.bold, format.bold);
        meet(m_letters.italic, format.italic);
        meet(m_letters.underline, format.underline);
        meet(m_letters.strikethrough, format.strikethrough);
        meet(m_letters.font, format.font);
        meet(m_letters.halfPoints, format.halfPoints);
        meet(m_letters.color, format.color);
        m_isFirst = false;
    }
    [[nodiscard]] bool isEmpty() const { return m_isFirst; }
    [[nodiscard]] bool isOpen() const
    {
        return m_letters.bold || m_letters.italic || m_letters.underline || m_letters.strikethrough ||
               m_letters.font || m_letters.halfPoints || m_letters.color;
    }
    [[nodiscard]] const SelectedLetters& letters() const { return m_letters; }

private:
    template <typename Value> void meet(std::optional<Value>& common, const Value& value)
    {
        if (m_isFirst)
            common = value;
        else if (common != value)
            common.reset();
    }

    SelectedLetters m_letters;
    bool m_isFirst = true;
};

/// Takes the characters of its number from the paragraph's front.
void removeNumber(const QTextBlock& block)
{
    int length = 0;
    for (auto at = block.begin(); !at.atEnd(); ++at) {
        const QTextFragment fragment = at.fragment();
        const QString number = numberOf(fragment.charFormat());
        if (number.isEmpty() || !fragment.text().startsWith(number))
            break;
        length += static_cast<int>(number.size());
        if (fragment.length() > number.size())
            break;
    }
    QTextCursor cursor(block);
    cursor.setPosition(block.position() + length, QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
}

void place(RichText::ParagraphFormat& format, int firstLine, int hanging)
{
    format.leftIndent = firstLine + hanging;
    format.firstIndent = -hanging;
}

std::optional<bool> styleOf(const SelectedLetters& letters, LetterStyle style)
{
    switch (style) {
    case LetterStyle::Bold:
        return letters.bold;
    case LetterStyle::Italic:
        return letters.italic;
    case LetterStyle::Underline:
        return letters.underline;
    case LetterStyle::Strikethrough:
        break;
    }
    return letters.strikethrough;
}

} // namespace

SelectedLetters selectedLetters(const QTextCursor& selection)
{
    InCommon common;
    std::unordered_set<int> seen;
    eachFragment(selection, [&](const QTextFragment& fragment, int, int) {
        if (!seen.insert(fragment.charFormatIndex()).second)
            return true;
        const QTextCharFormat format = fragment.charFormat();
        if (format.objectType() == QTextFormat::NoObject)
            common.add(toCharacterFormat(format));
        return common.isEmpty() || common.isOpen();
    });
    if (common.isEmpty())
        common.add(toCharacterFormat(selection.charFormat()));
    return common.letters();
}

RichText::ParagraphFormat selectedParagraph(const QTextCursor& selection)
{
    return toParagraphFormat(selection.document()->findBlock(selection.selectionStart()).blockFormat());
}

void toggle(QTextCursor& selection, LetterStyle style)
{
    const bool on = !styleOf(selectedLetters(selection), style).value_or(false);
    QTextCharFormat format;
    switch (style) {
    case LetterStyle::Bold:
        format.setFontWeight(on ? QFont::Bold : QFont::Normal);
        break;
    case LetterStyle::Italic:
        format.setFontItalic(on);
        break;
    case LetterStyle::Underline:
        format.setFontUnderline(on);
        break;
    case LetterStyle::Strikethrough:
        format.setFontStrikeOut(on);
        break;
    }
    selection.mergeCharFormat(format);
}

void setFont(QTextCursor& selection, const QString& name)
{
    QTextCharFormat format;
    format.setFontFamilies({name});
    selection.mergeCharFormat(format);
}

void setHalfPoints(QTextCursor& selection, int halfPoints)
{
    QTextCharFormat format;
    format.setFontPointSize(halfPoints / 2.0);
    selection.mergeCharFormat(format);
}

void setColor(QTextCursor& selection, quint32 color)
{
    RichText::CharacterFormat letters;
    letters.color = color;
    QTextCharFormat format;
    format.setForeground(toTextFormat(letters).foreground());
    selection.mergeCharFormat(format);
}

void changeCase(QTextCursor& selection, LetterCase letterCase)
{
    struct Piece
    {
        int position;
        int length;
        QString text;
        QTextCharFormat format;
    };
    std::vector<Piece> pieces;
    qsizetype longer = 0;
    eachFragment(selection, [&](const QTextFragment& fragment, int from, int to) {
        const QTextCharFormat format = fragment.charFormat();
        if (format.objectType() != QTextFormat::NoObject)
            return true;
        const QString text = fragment.text().mid(from - fragment.position(), to - from);
        const QString changed = letterCase == LetterCase::Upper ? text.toUpper() : text.toLower();
        if (changed != text) {
            pieces.push_back({from, to - from, changed, format});
            longer += changed.size() - text.size();
        }
        return true;
    });
    if (pieces.empty())
        return;
    const int first = selection.selectionStart();
    const int end = selection.selectionEnd() + static_cast<int>(longer);
    const bool isBackward = selection.position() < selection.anchor();
    {
        const Step step(selection);
        // From the last on, so that the places of the others hold.
        std::for_each(pieces.rbegin(), pieces.rend(), [&](const Piece& piece) {
            selection.setPosition(piece.position);
            selection.setPosition(piece.position + piece.length, QTextCursor::KeepAnchor);
            selection.insertText(piece.text, piece.format);
        });
    }
    selection.setPosition(isBackward ? end : first);
    selection.setPosition(isBackward ? first : end, QTextCursor::KeepAnchor);
}

int firstLineOf(const RichText::ParagraphFormat& format)
{
    return format.leftIndent + format.firstIndent;
}

int hangingOf(const RichText::ParagraphFormat& format)
{
    return -format.firstIndent;
}

void changeParagraphs(QTextCursor& selection, const std::function<void(RichText::ParagraphFormat&)>& change)
{
    QTextDocument& document = *selection.document();
    const int viewWidth = viewWidthOf(document);
    const QTextBlock last = document.findBlock(selection.selectionEnd());
    QTextCursor cursor(&document);
    std::unordered_map<int, QTextBlockFormat> changed; // by the index of what was
    const Step step(cursor);
    for (QTextBlock block = document.findBlock(selection.selectionStart()); block.isValid();
         block = block.next()) {
        const RichText::ParagraphFormat before = toParagraphFormat(block.blockFormat());
        const auto [format, isNew] = changed.try_emplace(block.blockFormatIndex());
        if (isNew) {
            RichText::ParagraphFormat after = before;
            change(after);
            format->second = toBlockFormat(after, viewWidth);
        }
        const bool wasNumbered = before.list > 0 || !before.oldList.isEmpty();
        const RichText::ParagraphFormat after = toParagraphFormat(format->second);
        if (wasNumbered && after.list == 0 && after.oldList.isEmpty())
            removeNumber(block);
        cursor.setPosition(block.position());
        cursor.setBlockFormat(format->second);
        if (block == last)
            break;
    }
}

void setAlignment(QTextCursor& selection, RichText::Alignment alignment)
{
    changeParagraphs(selection, [=](RichText::ParagraphFormat& format) { format.alignment = alignment; });
}

void toggleIndent(QTextCursor& selection, int firstLine)
{
    const int wanted = firstLineOf(selectedParagraph(selection)) == 0 ? firstLine : 0;
    changeParagraphs(selection,
                     [=](RichText::ParagraphFormat& format) { place(format, wanted, hangingOf(format)); });
}

void toggleHangingIndent(QTextCursor& selection, int behind)
{
    const int wanted = hangingOf(selectedParagraph(selection)) == 0 ? behind : 0;
    changeParagraphs(selection,
                     [=](RichText::ParagraphFormat& format) { place(format, firstLineOf(format), wanted); });
}

void toggleRightIndent(QTextCursor& selection, int right)
{
    const int wanted = selectedParagraph(selection).rightIndent == 0 ? right : 0;
    changeParagraphs(selection, [=](RichText::ParagraphFormat& format) { format.rightIndent = wanted; });
}

void toggleBullet(QTextCursor& selection, int distance)
{
    const bool on = !selectedParagraph(selection).bullet;
    changeParagraphs(selection, [=](RichText::ParagraphFormat& format) {
        format.bullet = on;
        format.bulletIndent = on ? distance : 0;
        format.list = format.listLevel = 0;
        format.oldList.clear();
    });
}

} // namespace varnhold
