// The Database page of the settings window. Its lower part is free for the tables and the id list.

#include "app/settings/SettingsControls.h"
#include "app/settings/frmSettings.h"
#include "appearance/SkinPage.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/SystemColorsUi.h"
#include "state/Settings.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>

namespace varnhold {

using namespace Qt::StringLiterals;
using namespace settingspage;

namespace {

constexpr int orderTop = 68;
constexpr int orderPitch = 92;

QLabel* addLine(QFrame& page, const char* name, int top)
{
    auto* label = new QLabel(&page);
    label->setObjectName(QLatin1StringView(name));
    label->setTextFormat(Qt::PlainText);
    label->setGeometry(column, top, controlWidth, 16);
    return label;
}

} // namespace

void frmSettings::buildDatabase()
{
    QFrame& page = *addPage(u"Database"_s, "frm_Database", u"Settings: Database"_s);
    QLineEdit* file =
        addShownText(page, u"txt_IDList"_s, tr("Database"), {column, 4, controlWidth - 100, rowHeight});
    m_refreshers.emplace_back([this, file] { showTagged(*file, m_services.settings.idList()); });
    ButtonEx* open = addButton(page, "btnOpen", u"Database Path"_s, {column + controlWidth - 92, 7, 92, 14});
    open->setCaption(tr("Browse"));
    connect(open, &ButtonEx::Click, this, &frmSettings::btnOpen_Click);
    QLabel* size = addLine(page, "lblFSize", 28);
    m_refreshers.emplace_back([this, size] { size->setText(m_services.settings.databaseSize()); });
    addLine(page, "Label9(1)", 44);

    addOrder(page, Order::DBTable, tr("Table"), column);
    addOrder(page, Order::SearchTable, tr("Sorted by"), column + orderPitch);
    addOrder(page, Order::AscDesc, tr("Order"), column + 2 * orderPitch);
    addCheck(page, "chk_Icons", u"Show Region Icons"_s, {}, Check::Icons, {column, 104});
    addCheck(page, "chk_DBLinks", u"Save Links to DB?"_s, u"Save Links to DB?"_s, Check::DBLinks,
             {column + 140, 104});
}

void frmSettings::addOrder(QFrame& page, Order which, const QString& heading, int left)
{
    auto* name = new QLabel(heading, &page);
    name->setGeometry(left + 20, orderTop, orderPitch - 20, 14);
    const int index = static_cast<int>(which);
    Settings& settings = m_services.settings;
    addScroll(page, {.name = indexed("vOrder", index),
                     .labelName = indexed("lblOrder", index),
                     .accessibleName = heading,
                     .place = {left, orderTop},
                     .labelPlace = {left + 20, orderTop + 14, orderPitch - 20, 16},
                     .most = 2,
                     .read = [&settings, which] { return settings.order(which); },
                     .write = [&settings, which](int value) { settings.setOrder(which, value); },
                     .text = [&settings, which] { return settings.orderText(which); }});
}

void frmSettings::askForDatabase(QWidget& owner, const QString& text)
{
    showPageOver(owner, "frm_Database");
    findChild<QLabel*>("Label9(1)"_L1)->setText(text);
    findChild<QLineEdit*>("txt_IDList"_L1)->setFocus();
}

void frmSettings::askForTables(QWidget& owner, const QString& caption)
{
    showPageOver(owner, "frm_Database");
    showCaption(caption);
}

void frmSettings::thankForDatabase(const QString& text)
{
    auto* const label = findChild<QLabel*>("Label9(1)"_L1);
    QPalette palette = label->palette();
    palette.setColor(QPalette::WindowText, toQColor(m_services.skinPage.Shape_Color[SkinPage::Highlight]));
    label->setPalette(palette);
    label->setText(text);
}

} // namespace varnhold
