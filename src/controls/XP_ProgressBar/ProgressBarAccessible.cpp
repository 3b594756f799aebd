#include "controls/XP_ProgressBar/ProgressBarAccessible.h"

#include "controls/XP_ProgressBar/XP_ProgressBar.h"

#include <QAccessibleWidget>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

class ProgressBarAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit ProgressBarAccessible(XP_ProgressBar* bar) : QAccessibleWidget(bar, QAccessible::ProgressBar) {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    [[nodiscard]] QString text(QAccessible::Text part) const override
    {
        if (part == QAccessible::Value)
            return QString::number(bar().percent()) + u" %"_s;
        return QAccessibleWidget::text(part);
    }

    [[nodiscard]] QAccessible::State state() const override
    {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        return state;
    }

    // The percentage and not Value, which Max scales only on reading.
    [[nodiscard]] QVariant currentValue() const override { return bar().percent(); }
    void setCurrentValue(const QVariant& /*value*/) override {}
    [[nodiscard]] QVariant minimumValue() const override { return 0; }
    [[nodiscard]] QVariant maximumValue() const override { return 100; }
    [[nodiscard]] QVariant minimumStepSize() const override { return 1; }

private:
    [[nodiscard]] const XP_ProgressBar& bar() const { return *static_cast<XP_ProgressBar*>(widget()); }
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object)
{
    auto* bar = qobject_cast<XP_ProgressBar*>(object);
    return bar == nullptr ? nullptr : new ProgressBarAccessible(bar);
}

} // namespace

void installProgressBarAccessible()
{
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
}

} // namespace varnhold
