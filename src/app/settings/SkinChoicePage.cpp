#include "app/settings/SkinChoicePage.h"

#include "appearance/SkinPage.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/SystemColorsUi.h"
#include "platform/ToolTipText.h"
#include "state/ApplicationState.h"

#include <QFrame>
#include <QLabel>
#include <QPainter>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int valueColumn = 140;
constexpr QSize cellSize{28, 16};

QPixmap cell(ColorValue fill, ColorValue border)
{
    QPixmap picture(cellSize);
    picture.fill(toQColor(border));
    QPainter(&picture).fillRect(QRect({1, 1}, cellSize - QSize(2, 2)), toQColor(fill));
    return picture;
}

void setTextColor(QLabel& label, ColorValue color)
{
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, toQColor(color));
    label.setPalette(palette);
}

} // namespace

SkinChoicePage::SkinChoicePage(Settings& settings, const SkinPage& skin, const ApplicationState& state)
    : SettingsPage({"frm_Skin(0)", u"Skin"_s, u"Settings: Skin"_s}, settings), m_skin(skin)
{
    addLabel(u"lbl_Available_Skins(0)"_s, tr("Available skins"), {column, 6, 120, rowHeight});
    addLabel(u"lbl_Available_Skins(1)"_s, u"0"_s, {valueColumn, 6, 60, rowHeight});
    m_choose = addButton(u"btn_Skin_Path"_s, tr("Skin"), {220, 8, 56, 16});
    m_choose->setCaption(tr("Choose"));
    connect(m_choose, &ButtonEx::MouseEnter, this,
            [this, &state] { m_choose->setToolTip(toolTipText(u"Skin Patch: "_s + state.SkinPath)); });
    connect(m_choose, &ButtonEx::Click, this,
            [this] { Q_EMIT skinMenuWanted(m_choose->mapToGlobal(QPoint(0, m_choose->height()))); });
    const struct
    {
        const char* number;
        QString text;
    } cells[] = {{"lbl_ForeColor", tr("Text colour")},
                 {"lbl_HighLightColor", tr("Highlight colour")},
                 {"lbl_BackColor", tr("Background colour")}};
    for (int i = 0; i < 3; ++i) {
        const int top = 40 + 24 * i;
        addLabel({}, cells[i].text, {column, top, 130, rowHeight});
        addLabel(u"Shape_Color(%1)"_s.arg(i), {}, {valueColumn, top + 2, 28, 16})
            ->setAccessibleName(cells[i].text);
        addLabel(QLatin1StringView(cells[i].number), {}, {valueColumn + 36, top, 90, rowHeight});
    }
    QLabel* const wayOn =
        addLabel({}, tr("The folder is gone: please choose another skin."), {column, 120, 268, rowHeight});
    wayOn->setProperty("quiet", true);
    wayOn->hide();
    connect(&skin, &SkinPage::changed, wayOn, [&skin, wayOn] {
        // The count is told in warning colours until a skin has been found.
        wayOn->setVisible(!skin.skinLoaded && skin.availableSkinsColor[0] != 0);
    });
    connect(&skin, &SkinPage::changed, this, &SkinChoicePage::showSkin);
    showSkin();
}

void SkinChoicePage::showSkin()
{
    const SkinPage& page = m_skin;
    const char* const numbers[] = {"lbl_ForeColor", "lbl_HighLightColor", "lbl_BackColor"};
    for (std::size_t i = 0; i < 3; ++i) {
        findChild<QLabel*>(u"Shape_Color(%1)"_s.arg(i))
            ->setPixmap(cell(page.Shape_Color.at(i), page.borderColor.at(i)));
        findChild<QLabel*>(QLatin1StringView(numbers[i]))
            ->setText(QString::number(static_cast<qint32>(page.Shape_Color.at(i))));
    }
    auto* const heading = findChild<QLabel*>("lbl_Available_Skins(0)"_L1);
    auto* const count = findChild<QLabel*>("lbl_Available_Skins(1)"_L1);
    count->setText(page.availableSkins.isEmpty() ? u"0"_s : page.availableSkins);
    if (page.skinLoaded)
        setTextColor(*heading, page.Shape_Color[SkinPage::Fore]);
    else if (page.availableSkinsColor[0] != 0)
        setTextColor(*heading, page.availableSkinsColor[0]);
    if (page.availableSkinsColor[1] != 0)
        setTextColor(*count, page.availableSkinsColor[1]);
}

void SkinChoicePage::askForSkin()
{
    m_choose->setFocus();
}

} // namespace varnhold
