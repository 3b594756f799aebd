#include "app/settings/OptionsPage.h"

#include "platform/Accessible.h"
#include "state/Settings.h"

#include <QCheckBox>
#include <QRadioButton>

namespace varnhold {

using namespace Qt::StringLiterals;

OptionsPage::OptionsPage(Settings& settings)
    : SettingsPage({"frm_Options", u"Options"_s, u"Settings: Options"_s}, settings)
{
    addCheck("chk_Fade", u"Fade Out"_s, u"On Exit: Fade Out?"_s, Check::Fade, {column, 4});
    auto* const mirrored = new QCheckBox(u"RighttoLeft"_s, this);
    mirrored->setObjectName("chk_RighttoLeft"_L1);
    mirrored->setToolTip(u"Switch ID List box"_s);
    mirrored->setGeometry(column, 26, controlWidth, rowHeight);
    connect(mirrored, &QCheckBox::toggled, this, &OptionsPage::rightToLeftChosen);
    addCheck("chk_Exit", u"Exit?"_s, u"Confirm Exit: Are you sure you want to exit?"_s, Check::Exit,
             {column, 48});
    addCheck("chk_Edge", u"Edge Detection"_s, u"Window edge detection."_s, Check::Edge, {column, 70});
    for (int i = 0; i < 2; ++i) {
        addAutoBox(i, 104 + 22 * i);
        addWay(i, 152 + 22 * i);
    }
}

void OptionsPage::addAutoBox(int index, int top)
{
    const bool first = index == 0;
    auto* box = new QCheckBox(first ? u"Auto Cert. Vista+"_s : u"Auto Cert. XP-"_s, this);
    box->setObjectName(indexed("chk_AutoSSL", index));
    box->setToolTip(first ? u"Auto ACCEPT SSL Certificate? Vista and Above"_s
                          : u"Auto ACCEPT SSL Certificate? XP and Below."_s);
    box->setGeometry(column, top, controlWidth, rowHeight);
    tellAssistiveTools(*box, {.role = QAccessible::CheckBox, .press = [box] { box->click(); }});
    // The release decides, whatever the click did to the box: once one is on, neither can be cleared.
    connect(box, &QCheckBox::released, this, [this, index] {
        Q_EMIT autoSslReleased();
        settings().chooseAutoSsl(index);
    });
    const Check check = first ? Check::AutoSSL0 : Check::AutoSSL1;
    onRefresh([this, box, check] { box->setChecked(settings().isChecked(check)); });
}

void OptionsPage::addWay(int index, int top)
{
    auto* way = new QRadioButton(index == 0 ? u"WM_KEYDOWN, WM_KEYUP"_s : u"BM_CLICK"_s, this);
    way->setObjectName(indexed("optCert", index));
    way->setAutoExclusive(false); // both are off after a start without keys
    // The toolkit takes a button that excludes no other for a check box.
    tellAssistiveTools(*way, {.role = QAccessible::RadioButton, .press = [way] { way->click(); }});
    way->setGeometry(column + 20, top, controlWidth - 20, rowHeight);
    connect(way, &QRadioButton::clicked, this, [this, index] { settings().chooseCertOption(index); });
    onRefresh([this, way, index] { way->setChecked(settings().certOption(index)); });
}

} // namespace varnhold
