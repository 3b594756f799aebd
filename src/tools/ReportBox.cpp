#include "tools/ReportBox.h"

#include "controls/ReadableColor.h"
#include "controls/SystemColorsUi.h"
#include "platform/richtext/RichTextFormats.h"
#include "platform/richtext/RichTextTools.h"
#include "tools/GotoLine.h"
#include "tools/ReportFile.h"

#include <QAbstractTextDocumentLayout>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QScrollBar>
#include <QTextBlock>

#include <algorithm>
#include <optional>

namespace varnhold {

namespace {

std::optional<LetterStyle> styleOf(const QKeyEvent& event)
{
    if (event.modifiers() != Qt::ControlModifier)
        return std::nullopt;
    switch (event.key()) {
    case Qt::Key_B:
        return LetterStyle::Bold;
    case Qt::Key_I:
        return LetterStyle::Italic;
    case Qt::Key_U:
        return LetterStyle::Underline;
    default:
        return std::nullopt;
    }
}

} // namespace

ReportBox::ReportBox(QWidget* parent) : RichTextBox(parent), m_firstLines{0}
{
    connect(document(), &QTextDocument::contentsChange, this,
            [this](int position) { forgetLinesFrom(document()->findBlock(position).blockNumber()); });
    connect(this, &QTextEdit::cursorPositionChanged, this, &ReportBox::placeChanged);
}

void ReportBox::setReport(const RichText& contents)
{
    // One insertion in a format that is set beforehand: a format given to the text afterwards costs many
    // times as much.
    document()->clear();
    setCurrentCharFormat(toTextFormat(reportLetters()));
    setPlainText(contents.plainText());
    setTextCursor(QTextCursor(document()));
    verticalScrollBar()->setValue(0);
    horizontalScrollBar()->setValue(0);
}

void ReportBox::blacken()
{
    QTextCursor all(document());
    all.select(QTextCursor::Document);
    setColor(all, 0);
    QTextCursor caret = textCursor();
    caret.clearSelection();
    setTextCursor(caret);
}

QColor ReportBox::shownColor(const QColor& stored) const
{
    return toQColor(readableOn(toColorValue(stored), toColorValue(palette().color(QPalette::Base))));
}

void ReportBox::forgetLinesFrom(int block)
{
    const auto known = static_cast<std::size_t>(std::max(block, 0)) + 1;
    if (known < m_firstLines.size())
        m_firstLines.resize(known);
    Q_EMIT placeChanged();
}

int ReportBox::firstLineOf(const QTextBlock& block)
{
    const auto number = static_cast<std::size_t>(block.blockNumber());
    if (number >= m_firstLines.size()) {
        // Blocks below those that are seen have no lines until they are asked for their place.
        (void)document()->documentLayout()->blockBoundingRect(block);
        QTextBlock last = document()->findBlockByNumber(static_cast<int>(m_firstLines.size()) - 1);
        for (; m_firstLines.size() <= number; last = last.next())
            m_firstLines.push_back(m_firstLines.back() + std::max(last.layout()->lineCount(), 1));
    }
    return m_firstLines[number];
}

ReportBox::Place ReportBox::caretPlace()
{
    const int position = textCursor().position();
    const QTextBlock block = document()->findBlock(position);
    const int first = firstLineOf(block);
    (void)document()->documentLayout()->blockBoundingRect(block);
    const int inBlock = position - block.position();
    const QTextLine line = block.layout()->lineForTextPosition(inBlock);
    if (!line.isValid())
        return {first + 1, inBlock + 1};
    return {first + line.lineNumber() + 1, inBlock - line.textStart() + 1};
}

int ReportBox::positionOfLine(int line)
{
    const int end = document()->characterCount() - 1;
    // Every block has a line at least.
    const int furthest = std::min(line, document()->blockCount() - 1);
    (void)firstLineOf(document()->findBlockByNumber(furthest));
    const auto after = std::ranges::upper_bound(m_firstLines, line);
    const auto number = static_cast<int>(after - m_firstLines.begin()) - 1;
    const QTextBlock block = document()->findBlockByNumber(number);
    (void)document()->documentLayout()->blockBoundingRect(block);
    const int inBlock = line - m_firstLines[static_cast<std::size_t>(number)];
    if (inBlock >= block.layout()->lineCount())
        return end;
    return block.position() + block.layout()->lineAt(inBlock).textStart();
}

void ReportBox::goTo(const GotoLine& target)
{
    QTextCursor caret = textCursor();
    switch (target.kind) {
    case GotoLine::Kind::Nowhere:
        break;
    case GotoLine::Kind::OwnLine:
        caret.setPosition(caret.position() - (caretPlace().column - 1));
        break;
    case GotoLine::Kind::End:
        caret.movePosition(QTextCursor::End);
        break;
    case GotoLine::Kind::Line:
        caret.setPosition(positionOfLine(target.line));
        break;
    }
    setTextCursor(caret);
    setFocus();
}

void ReportBox::changeEvent(QEvent* event)
{
    RichTextBox::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        forgetLinesFrom(0);
}

void ReportBox::resizeEvent(QResizeEvent* event)
{
    RichTextBox::resizeEvent(event);
    if (event->size().width() != event->oldSize().width())
        forgetLinesFrom(0);
}

void ReportBox::keyPressEvent(QKeyEvent* event)
{
    const bool withControl = event->modifiers().testFlag(Qt::ControlModifier);
    if (const std::optional<LetterStyle> style = styleOf(*event)) {
        edit([style](QTextCursor& selection) { toggle(selection, *style); });
    } else if (event->key() == Qt::Key_Backtab || (event->key() == Qt::Key_Tab && withControl)) {
        // Tab writes one here, so that the focus needs another way out.
        QWidget::focusNextPrevChild(event->key() == Qt::Key_Tab);
    } else if (event->key() == Qt::Key_Tab) {
        edit([](QTextCursor& selection) { selection.insertText(QStringLiteral("\t")); });
        ensureCursorVisible();
    } else {
        RichTextBox::keyPressEvent(event);
        return;
    }
    event->accept();
}

void ReportBox::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    Q_EMIT menuWanted(byKey ? viewport()->mapToGlobal(cursorRect().bottomLeft()) : event->globalPos());
}

} // namespace varnhold
