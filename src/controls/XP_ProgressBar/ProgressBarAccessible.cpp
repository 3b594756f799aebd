#include "controls/XP_ProgressBar/ProgressBarAccessible.h"

#include "controls/ValueAccessible.h"
#include "controls/XP_ProgressBar/XP_ProgressBar.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

class ProgressBarAccessible : public ValueAccessible
{
public:
    explicit ProgressBarAccessible(XP_ProgressBar* bar) : ValueAccessible(bar, QAccessible::ProgressBar) {}

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
    [[nodiscard]] QVariant minimumStepSize() const override { return 0; } // it only shows

private:
    [[nodiscard]] const XP_ProgressBar& bar() const { return *static_cast<XP_ProgressBar*>(widget()); }
};

} // namespace

void installProgressBarAccessible()
{
    installAccessible<XP_ProgressBar, ProgressBarAccessible>();
}

} // namespace varnhold
