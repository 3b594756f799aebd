// The opacity page of the settings window.

#include "app/settings/SettingsControls.h"
#include "app/settings/frmSettings.h"
#include "controls/DesignValues.h"
#include "controls/ucSlider/ucSlider.h"
#include "state/Settings.h"

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>

namespace varnhold {

using namespace Qt::StringLiterals;
using settingspage::column;

namespace {

constexpr int rowHeight = 24; // of the knob that the control draws itself, and a bit
constexpr int firstRow = 4;
constexpr int rowPitch = 32;
constexpr int headingWidth = 60;
constexpr int sliderLeft = 72;
constexpr int sliderWidth = 160;
constexpr int numberLeft = 244;

} // namespace

void frmSettings::buildOpacity()
{
    QFrame& page = *addPage(u"Opacity"_s, "frm_Opacity", u"Settings: Opacity"_s);
    const QString headings[] = {u"Main"_s, u"Settings"_s, u"DL"_s, u"Search"_s, u"DB"_s};
    for (int i = 0; i < 5; ++i)
        addOpacity(page, static_cast<OpacityOf>(i), headings[i], firstRow + i * rowPitch);
}

void frmSettings::addOpacity(QFrame& page, OpacityOf which, const QString& heading, int top)
{
    const int index = static_cast<int>(which);
    auto* name = new QLabel(heading, &page);
    name->setGeometry(column, top, headingWidth, rowHeight);
    auto* slider = new ucSlider;
    slider->setObjectName(indexed("ucSlider1", index));
    slider->setAccessibleName(tr("Opacity: %1").arg(heading));
    slider->setOrientation(design::ucSlider1_Orientation);
    slider->setMin(design::ucSlider1_Range.min);
    slider->setMax(design::ucSlider1_Range.max);
    slider->setShowValueTip(false); // the number stands beside it
    // A layout of its own keeps it in the middle of its row: it is as high as the knob that the skin gives
    // it.
    auto* row = new QWidget(&page);
    row->setGeometry(sliderLeft, top, sliderWidth, rowHeight);
    auto* layout = new QHBoxLayout(row);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(slider, 0, Qt::AlignVCenter);
    auto* number = new QLabel(&page);
    number->setObjectName(indexed("lbl_Opacity", index));
    number->setGeometry(numberLeft, top, 32, rowHeight);
    connect(slider, &ucSlider::Change, this, [this, which, slider] {
        m_services.settings.setOpacity(which, slider->value());
        Q_EMIT opacityMoved(which, slider->value());
    });
    m_refreshers.emplace_back([this, which, slider, number] {
        const int value = m_services.settings.opacity(which);
        slider->tryValue(value);
        number->setText(QString::number(value));
    });
}

} // namespace varnhold
