#include "app/main/GameIdBox.h"

#include "lookup/GameIdFilter.h"
#include "platform/MessageBoxes.h"

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QSignalBlocker>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int idLength = 9;

/// True for a key that types something; Ctrl keys, Escape, Tab and cursor keys do not.
bool typesCharacter(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)
        return true;
    if ((event.modifiers() & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier)) != 0 &&
        (event.modifiers() & Qt::GroupSwitchModifier) == 0)
        return false;
    return !event.text().isEmpty() && event.text().front().isPrint();
}

} // namespace

GameIdBox::GameIdBox(MessageBoxes& boxes, QWidget* parent) : QLineEdit(parent), m_boxes(boxes)
{
    connect(this, &QLineEdit::textChanged, this, &GameIdBox::filter);
}

void GameIdBox::keyPressEvent(QKeyEvent* event)
{
    if (!typesCharacter(*event)) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    event->accept();
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    type(enter ? u'\r' : event->text().front());
}

void GameIdBox::inputMethodEvent(QInputMethodEvent* event)
{
    // Letters that come through an input method are typed like any other; a composition in progress is not
    // shown, since no composed character can be part of an id.
    event->accept();
    const QString committed = event->commitString();
    for (const QChar character : committed)
        type(character);
}

void GameIdBox::type(QChar character)
{
    const FilteredKey key = filterTypedCharacter(character);
    switch (key.outcome) {
    case TypedCharacter::Accepted:
        if (text().size() < idLength || hasSelectedText())
            insert(key.character);
        break;
    case TypedCharacter::Fetch:
        Q_EMIT fetchRequested();
        break;
    case TypedCharacter::Refused:
        m_boxes.show({.text = invalidCharacterText(), .title = QCoreApplication::applicationName()});
        break;
    }
}

void GameIdBox::filter()
{
    const QString filtered = filterGameIdText(text());
    if (filtered == text())
        return;
    const QSignalBlocker quiet(this);
    const int cursor = cursorPosition();
    setText(filtered);
    setCursorPosition(std::min(cursor, static_cast<int>(filtered.size())));
}

} // namespace varnhold
