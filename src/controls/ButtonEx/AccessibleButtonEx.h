#pragma once

#include <QAccessibleWidget>

namespace varnhold {

class ButtonEx;

/// What assistive tools see of a button: role, name, checked state and the press action.
class AccessibleButtonEx : public QAccessibleWidget
{
public:
    explicit AccessibleButtonEx(ButtonEx* button);

    /// Makes Qt ask here for every ButtonEx. May be called any number of times.
    static void install();

    [[nodiscard]] QAccessible::Role role() const override;
    [[nodiscard]] QAccessible::State state() const override;
    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    [[nodiscard]] QStringList actionNames() const override;
    void doAction(const QString& name) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString& name) const override;

private:
    [[nodiscard]] ButtonEx& button() const;
};

} // namespace varnhold
