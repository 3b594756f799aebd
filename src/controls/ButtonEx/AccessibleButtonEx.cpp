#include "controls/ButtonEx/AccessibleButtonEx.h"

#include "controls/ButtonEx/ButtonEx.h"

#include <QKeySequence>

namespace varnhold {

namespace {

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* button = qobject_cast<ButtonEx*>(object);
    return button ? new AccessibleButtonEx(button) : nullptr;
}

} // namespace

AccessibleButtonEx::AccessibleButtonEx(ButtonEx* button) : QAccessibleWidget(button, QAccessible::Button) {}

void AccessibleButtonEx::install()
{
    static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
    Q_UNUSED(installed)
}

ButtonEx& AccessibleButtonEx::button() const
{
    return *static_cast<ButtonEx*>(object());
}

QAccessible::Role AccessibleButtonEx::role() const
{
    return button().Style() == 1 ? QAccessible::CheckBox : QAccessible::Button;
}

QAccessible::State AccessibleButtonEx::state() const
{
    QAccessible::State state = QAccessibleWidget::state();
    state.pressed = button().state() == buttonstate::pressed;
    state.defaultButton = button().Default();
    if (button().Style() == 1) {
        state.checkable = true;
        state.checked = button().Value() == 0;
    }
    return state;
}

QString AccessibleButtonEx::text(QAccessible::Text kind) const
{
    if (kind == QAccessible::Name) {
        const QString given = button().accessibleName();
        return given.isEmpty() ? button().accessibleText() : given;
    }
    return QAccessibleWidget::text(kind);
}

QStringList AccessibleButtonEx::actionNames() const
{
    QStringList names;
    if (button().isEnabled())
        names << (button().Style() == 1 ? toggleAction() : pressAction());
    return names + QAccessibleWidget::actionNames();
}

void AccessibleButtonEx::doAction(const QString& name)
{
    if (name == pressAction() || name == toggleAction())
        // Afterwards: what it opens may stay open, and the caller would wait for its end.
        QMetaObject::invokeMethod(&button(), &ButtonEx::click, Qt::QueuedConnection);
    else
        QAccessibleWidget::doAction(name);
}

QStringList AccessibleButtonEx::keyBindingsForAction(const QString& name) const
{
    const QKeySequence mnemonic = QKeySequence::mnemonic(button().Caption());
    if ((name == pressAction() || name == toggleAction()) && !mnemonic.isEmpty())
        return {mnemonic.toString(QKeySequence::NativeText)};
    return {};
}

} // namespace varnhold
