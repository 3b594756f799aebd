#include "gamedb/EditorNotes.h"

#include "controls/ReadableColor.h"
#include "controls/SystemColorsUi.h"
#include "platform/richtext/RichTextTools.h"

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>

#include <optional>

namespace varnhold {

namespace {

std::optional<LetterStyle> styleOfKey(const QKeyEvent& event)
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

QColor EditorNotes::shownColor(const QColor& stored) const
{
    return toQColor(readableOn(toColorValue(stored), toColorValue(palette().color(QPalette::Base))));
}

bool EditorNotes::event(QEvent* event)
{
    // Before anything else takes them for shortcuts, or a tab for one of the text.
    if (event->type() == QEvent::KeyPress) {
        const auto* key = static_cast<QKeyEvent*>(event);
        const bool isBack = key->key() == Qt::Key_Backtab;
        if (isBack || (key->key() == Qt::Key_Tab && key->modifiers() == Qt::ControlModifier)) {
            event->accept();
            return QWidget::focusNextPrevChild(!isBack);
        }
    }
    return RichTextBox::event(event);
}

void EditorNotes::keyPressEvent(QKeyEvent* event)
{
    if (const auto style = styleOfKey(*event)) {
        edit([style](QTextCursor& selection) { toggle(selection, *style); });
        event->accept();
    } else if (event->key() == Qt::Key_Tab && event->modifiers() == Qt::NoModifier) {
        if (!Locked()) {
            textCursor().insertText(QStringLiteral("\t"));
            ensureCursorVisible();
        }
        event->accept();
    } else {
        RichTextBox::keyPressEvent(event);
    }
}

void EditorNotes::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::RightButton) {
        RichTextBox::mousePressEvent(event);
        return;
    }
    event->accept();
    Q_EMIT menuWanted(event->globalPosition().toPoint());
}

void EditorNotes::contextMenuEvent(QContextMenuEvent* event)
{
    event->accept();
    // With the mouse the press has opened it.
    if (event->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT menuWanted(viewport()->mapToGlobal(cursorRect().bottomLeft()));
}

} // namespace varnhold
