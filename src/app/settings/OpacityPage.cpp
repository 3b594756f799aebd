#include "app/settings/OpacityPage.h"

#include "controls/DesignValues.h"
#include "controls/ucSlider/ucSlider.h"
#include "state/Settings.h"

#include <QHBoxLayout>
#include <QLabel>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int sliderHeight = 24; // of the knob that the control draws itself, and a bit
constexpr int firstRow = 4;
constexpr int rowPitch = 32;
constexpr int headingWidth = 60;
constexpr int sliderLeft = 72;
constexpr int sliderWidth = 160;
constexpr int numberLeft = 244;

} // namespace

OpacityPage::OpacityPage(Settings& settings)
    : SettingsPage({"frm_Opacity", u"Opacity"_s, u"Settings: Opacity"_s}, settings)
{
    const QString headings[] = {u"Main"_s, u"Settings"_s, u"DL"_s, u"Search"_s, u"DB"_s};
    for (int i = 0; i < 5; ++i)
        addOpacity(static_cast<OpacityOf>(i), headings[i], firstRow + i * rowPitch);
}

void OpacityPage::addOpacity(OpacityOf which, const QString& heading, int top)
{
    const int index = static_cast<int>(which);
    addLabel({}, heading, {column, top, headingWidth, sliderHeight});
    auto* slider = new ucSlider;
    slider->setObjectName(indexed("ucSlider1", index));
    slider->setAccessibleName(tr("Opacity: %1").arg(heading));
    slider->setOrientation(design::ucSlider1_Orientation);
    slider->setMin(design::ucSlider1_Range.min);
    slider->setMax(design::ucSlider1_Range.max);
    slider->setShowValueTip(false); // the number stands beside it
    // A layout of its own keeps it in the middle of its row: it is as high as the knob that the skin gives
    // it.
    auto* row = new QWidget(this);
    row->setGeometry(sliderLeft, top, sliderWidth, sliderHeight);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(slider, 0, Qt::AlignVCenter);
    QLabel* number = addLabel(indexed("lbl_Opacity", index), {}, {numberLeft, top, 32, sliderHeight});
    connect(slider, &ucSlider::Change, this, [this, which, slider] {
        settings().setOpacity(which, slider->value());
        Q_EMIT opacityMoved(which, slider->value());
    });
    onRefresh([this, which, slider, number] {
        const int value = settings().opacity(which);
        slider->tryValue(value);
        number->setText(QString::number(value));
    });
}

} // namespace varnhold
