#include "platform/Accessible.h"

#include <QAbstractButton>
#include <QAccessibleWidget>

#include <utility>

namespace varnhold {

namespace {

/// Lies among the control's children, and ends with it.
class Traits : public QObject
{
    Q_OBJECT

public:
    Traits(QWidget& control, AccessibleTraits traits) : QObject(&control), given(std::move(traits)) {}

    AccessibleTraits given;
};

Traits* traitsOf(const QObject& control)
{
    return control.findChild<Traits*>(QString(), Qt::FindDirectChildrenOnly);
}

class Interface : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    Interface(QWidget* control, const Traits& traits)
        : QAccessibleWidget(control, traits.given.role), m_traits(traits.given)
    {
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        if (const auto* const button = qobject_cast<QAbstractButton*>(widget())) {
            state.checkable = button->isCheckable();
            state.checked = button->isChecked();
        }
        return state;
    }

    [[nodiscard]] QString text(QAccessible::Text kind) const override
    {
        const auto* const button = qobject_cast<QAbstractButton*>(widget());
        if (kind == QAccessible::Name && button != nullptr && button->accessibleName().isEmpty())
            return button->text();
        if (kind == QAccessible::Value && m_traits.value)
            return QString::number(m_traits.value->current());
        return QAccessibleWidget::text(kind);
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (m_traits.press && widget()->isEnabled())
            names.prepend(pressAction());
        return names;
    }

    void doAction(const QString& name) override
    {
        if (name == pressAction() && m_traits.press && widget()->isEnabled())
            QMetaObject::invokeMethod(widget(), m_traits.press, Qt::QueuedConnection);
        else
            QAccessibleWidget::doAction(name);
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return m_traits.value ? static_cast<QAccessibleValueInterface*>(this) : nullptr;
        return QAccessibleWidget::interface_cast(type);
    }
    [[nodiscard]] QVariant currentValue() const override { return m_traits.value->current(); }
    void setCurrentValue(const QVariant& value) override { m_traits.value->move(value.toInt()); }
    [[nodiscard]] QVariant minimumValue() const override { return m_traits.value->minimum(); }
    [[nodiscard]] QVariant maximumValue() const override { return m_traits.value->maximum(); }
    [[nodiscard]] QVariant minimumStepSize() const override { return 1; }

private:
    const AccessibleTraits& m_traits;
};

QAccessibleInterface* makeInterface(const QString&, QObject* object)
{
    auto* const control = qobject_cast<QWidget*>(object);
    const Traits* const traits = control != nullptr ? traitsOf(*control) : nullptr;
    return traits != nullptr ? new Interface(control, *traits) : nullptr;
}

} // namespace

void tellAssistiveTools(QWidget& control, AccessibleTraits traits)
{
    QAccessible::installFactory(makeInterface); // a factory that is known already is not taken twice
    if (Traits* const known = traitsOf(control))
        known->given = std::move(traits);
    else
        new Traits(control, std::move(traits));
    // A tool that listens has met the control with its name already, as a bare widget.
    if (QAccessibleInterface* const met = QAccessible::queryAccessibleInterface(&control))
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(met));
}

} // namespace varnhold

#include "Accessible.moc"
