// The opacity page of the settings window.

#include "app/SettingsControls.h"
#include "app/frmSettings.h"
#include "controls/DesignValues.h"
#include "controls/ucSlider/ucSlider.h"
#include "state/Settings.h"

#include <QFrame>
#include <QLabel>

namespace varnhold {

using namespace Qt::StringLiterals;
using settingspage::column;
using settingspage::rowHeight;

namespace {

constexpr int firstRow = 8;
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
    auto* slider = new ucSlider(&page);
    slider->setObjectName(indexed("ucSlider1", index));
    slider->setAccessibleName(tr("Opacity: %1").arg(heading));
    slider->setOrientation(design::ucSlider1_Orientation);
    slider->setMin(design::ucSlider1_Range.min);
    slider->setMax(design::ucSlider1_Range.max);
    slider->setShowValueTip(false); // the number stands beside it
    slider->resize(sliderWidth, rowHeight);
    slider->move(sliderLeft, top + (rowHeight - slider->height()) / 2);
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
