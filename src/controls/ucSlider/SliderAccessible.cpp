#include "controls/ucSlider/SliderAccessible.h"

#include "controls/ucSlider/ucSlider.h"

#include <QAccessibleWidget>

namespace varnhold {

namespace {

class SliderAccessible : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    explicit SliderAccessible(ucSlider* slider) : QAccessibleWidget(slider, QAccessible::Slider) {}

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

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
    [[nodiscard]] QVariant minimumStepSize() const override { return 1; }

private:
    [[nodiscard]] ucSlider& slider() const { return *static_cast<ucSlider*>(widget()); }
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object)
{
    auto* slider = qobject_cast<ucSlider*>(object);
    return slider == nullptr ? nullptr : new SliderAccessible(slider);
}

} // namespace

void installSliderAccessible()
{
    [[maybe_unused]] static const bool installed = [] {
        QAccessible::installFactory(makeInterface);
        return true;
    }();
}

} // namespace varnhold
