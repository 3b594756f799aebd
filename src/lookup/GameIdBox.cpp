#include "lookup/GameIdBox.h"

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

GameIdBox::GameIdBox(MessageBoxes& boxes, QWidget* parent, Use use)
    : QLineEdit(parent), m_boxes(boxes), m_use(use)
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
    const bool isLookup = m_use == Use::Lookup;
    if (key.outcome == TypedCharacter::Fetch && isLookup) {
        Q_EMIT fetchRequested();
    } else if (key.outcome != TypedCharacter::Accepted) {
        m_boxes.show({.text = invalidCharacterText(), .title = QCoreApplication::applicationName()});
    } else if (!isLookup || text().size() < idLength || hasSelectedText()) {
        insert(key.character);
    }
}

void GameIdBox::filter()
{
    const QString filtered = m_use == Use::Lookup ? filterGameIdText(text()) : withoutSeparators(text());
    if (filtered == text())
        return;
    const QSignalBlocker quiet(this);
    const int cursor = cursorPosition();
    setText(filtered);
    setCursorPosition(std::min(cursor, static_cast<int>(filtered.size())));
}

} // namespace varnhold
