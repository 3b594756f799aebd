#include "gamedb/NotesBox.h"

#include "controls/ReadableColor.h"
#include "controls/SystemColorsUi.h"
#include "gamedb/LinkMarks.h"
#include "gamedb/LinkText.h"
#include "platform/HandCursors.h"
#include "platform/richtext/RichTextDocument.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QTextBlock>

namespace varnhold {

namespace {

/// One character a position: a return for each paragraph's end, a line feed for each line break, a blank for
/// each object.
QString plain(QString text)
{
    for (QChar& each : text) {
        if (each == QChar::ParagraphSeparator)
            each = u'\r';
        else if (each == QChar::LineSeparator)
            each = u'\n';
        else if (each == QChar::ObjectReplacementCharacter)
            each = u' ';
    }
    return text;
}

} // namespace

NotesBox::NotesBox(QWidget* parent) : RichTextBox(parent)
{
    setUndoRedoEnabled(false);
    viewport()->setMouseTracking(true);
    setLocked(true);
}

void NotesBox::Make_Links()
{
    const QPoint view(horizontalScrollBar()->value(), verticalScrollBar()->value());
    RichText text = richTextOf(*document());
    if (markLinks(text))
        setRichText(*document(), text);
    setLocked(true);
    // The caret goes to the end, but who has just chosen a game reads from the top.
    if (textCursor().hasSelection() || !textCursor().atEnd()) {
        QTextCursor end(document());
        end.movePosition(QTextCursor::End);
        setTextCursor(end);
    }
    horizontalScrollBar()->setValue(view.x());
    verticalScrollBar()->setValue(view.y());
}

QColor NotesBox::shownColor(const QColor& stored) const
{
    return toQColor(readableOn(toColorValue(stored), toColorValue(palette().color(QPalette::Base))));
}

/// Links are found while the contents are a value: to mark thousands in the document lays it out again.
void NotesBox::prepare(RichText& text) const
{
    markLinks(text);
}

QString NotesBox::linkUnderPointer(const QPoint& viewportPoint)
{
    const int position = characterAt(viewportPoint);
    const QTextBlock block = document()->findBlock(position);
    // A word ends with its paragraph, so this one with the ends beside it tells as much as the whole text.
    QString text = plain(block.text());
    if (block.next().isValid())
        text += u'\r';
    qsizetype inText = position - block.position();
    if (block.previous().isValid()) {
        text.prepend(u'\r');
        ++inText;
    }
    const QString link = linkAround(text, inText);
    viewport()->setCursor(link.isEmpty() ? QCursor(Qt::IBeamCursor) : imgCurser(2));
    return link;
}

void NotesBox::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        Make_Links();
    else
        RichTextBox::keyPressEvent(event);
}

void NotesBox::mouseMoveEvent(QMouseEvent* event)
{
    m_linkUnderMouse = linkUnderPointer(event->position().toPoint());
    RichTextBox::mouseMoveEvent(event);
}

void NotesBox::mouseReleaseEvent(QMouseEvent* event)
{
    RichTextBox::mouseReleaseEvent(event);
    // Other notes may have come up under a pointer at rest.
    m_linkUnderMouse = linkUnderPointer(event->position().toPoint());
    if (event->button() == Qt::LeftButton && !m_linkUnderMouse.isEmpty())
        Q_EMIT linkActivated(m_linkUnderMouse);
}

} // namespace varnhold
