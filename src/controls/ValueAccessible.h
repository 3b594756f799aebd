#pragma once

#include <QAccessibleWidget>

namespace varnhold {

/// A control with a value in a range, as assistive tools see it; steps are of 1.
class ValueAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    using QAccessibleWidget::QAccessibleWidget;

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QVariant minimumStepSize() const override { return 1; }
};

/// From the first call on every Control is told to assistive tools through an Interface; later calls do
/// nothing.
template <typename Control, typename Interface> void installAccessible()
{
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory([](const QString&, QObject* object) -> QAccessibleInterface* {
            auto* const control = qobject_cast<Control*>(object);
            return control == nullptr ? nullptr : new Interface(control);
        });
        return true;
    }();
}

} // namespace varnhold
