#include "app/settings/DatabasePage.h"

#include "appearance/SkinPage.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/SystemColorsUi.h"
#include "state/Settings.h"

#include <QLabel>
#include <QLineEdit>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int orderTop = 68;
constexpr int orderPitch = 92;

} // namespace

DatabasePage::DatabasePage(Settings& settings, const SkinPage& skin)
    : SettingsPage({"frm_Database(0)", u"Database"_s, u"Settings: Database"_s}, settings), m_skin(skin)
{
    beginHalves({.frame = "frm_Database(1)", .firstButton = 2, .top = 0});
    m_file = addShownText(u"txt_IDList"_s, tr("Database"), {column, 4, controlWidth - 100, rowHeight});
    onRefresh([this] { showTagged(*m_file, this->settings().idList()); });
    ButtonEx* open = addButton(u"btnOpen"_s, u"Database Path"_s, {column + controlWidth - 92, 7, 92, 14});
    open->setCaption(tr("Browse"));
    connect(open, &ButtonEx::Click, this, &DatabasePage::btnOpen_Click);
    m_size = addLabel(u"lblFSize"_s, {}, {column, 28, controlWidth, 16});
    onRefresh([this] { m_size->setText(this->settings().databaseSize()); });
    m_request = addLabel(u"Label9(1)"_s, {}, {column, 44, controlWidth, 16});

    addOrder(Order::DBTable, tr("Table"), column);
    addOrder(Order::SearchTable, tr("Sorted by"), column + orderPitch);
    addOrder(Order::AscDesc, tr("Order"), column + 2 * orderPitch);
    addCheck("chk_Icons", u"Show Region Icons"_s, {}, Check::Icons, {column, 104});
    addCheck("chk_DBLinks", u"Save Links to DB?"_s, u"Save Links to DB?"_s, Check::DBLinks,
             {column + 140, 104});
    buildIdList();
    buildTables();
}

void DatabasePage::addOrder(Order which, const QString& heading, int left)
{
    addLabel({}, heading, {left + 20, orderTop, orderPitch - 20, 14});
    const int index = static_cast<int>(which);
    Settings& set = settings();
    addScroll({.name = indexed("vOrder", index),
               .labelName = indexed("lblOrder", index),
               .accessibleName = heading,
               .place = {left, orderTop},
               .labelPlace = {left + 20, orderTop + 14, orderPitch - 20, 16},
               .most = 2,
               .read = [&set, which] { return set.order(which); },
               .write = [&set, which](int value) { set.setOrder(which, value); },
               .text = [&set, which] { return set.orderText(which); }});
}

void DatabasePage::askForDatabase(const QString& text)
{
    m_request->setText(text);
    m_file->setFocus();
}

void DatabasePage::thankForDatabase(const QString& text)
{
    QPalette palette = m_request->palette();
    palette.setColor(QPalette::WindowText, toQColor(m_skin.Shape_Color[SkinPage::Highlight]));
    m_request->setPalette(palette);
    m_request->setText(text);
}

} // namespace varnhold
