#include "controls/ucSlider/SliderAccessible.h"

#include "controls/ValueAccessible.h"
#include "controls/ucSlider/ucSlider.h"

namespace varnhold {

namespace {

class SliderAccessible : public ValueAccessible
{
public:
    explicit SliderAccessible(ucSlider* slider) : ValueAccessible(slider, QAccessible::Slider) {}

    [[nodiscard]] QString text(QAccessible::Text part) const override
    {
        if (part == QAccessible::Value)
            return QString::number(slider().value());
        return QAccessibleWidget::text(part);
    }

    [[nodiscard]] QStringList actionNames() const override
    {
        QStringList names = QAccessibleWidget::actionNames();
        if (slider().isEnabled())
            names << increaseAction() << decreaseAction();
        return names;
    }

    void doAction(const QString& name) override
    {
        if (name == increaseAction())
            slider().step(1);
        else if (name == decreaseAction())
            slider().step(-1);
        else
            QAccessibleWidget::doAction(name);
    }

    [[nodiscard]] QVariant currentValue() const override { return slider().value(); }
    void setCurrentValue(const QVariant& value) override
    {
        slider().step(qint64{value.toInt()} - slider().value());
    }
    [[nodiscard]] QVariant minimumValue() const override { return slider().min(); }
    [[nodiscard]] QVariant maximumValue() const override { return slider().max(); }

private:
    [[nodiscard]] ucSlider& slider() const { return *static_cast<ucSlider*>(widget()); }
};

} // namespace

void installSliderAccessible()
{
    installAccessible<ucSlider, SliderAccessible>();
}

} // namespace varnhold
