#include "app/settings/SkinChoicePage.h"

#include "appearance/SkinChoices.h"
#include "appearance/SkinIni.h"
#include "appearance/SkinPage.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/Contrast.h"
#include "controls/DesignValues.h"
#include "controls/SystemColorsUi.h"
#include "platform/ToolTipText.h"
#include "state/ApplicationState.h"

#include <QCheckBox>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QTreeWidget>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int partTop = 26;
constexpr int rowPitch = 21; // eight rows fill a half
constexpr int valueColumn = 100;
constexpr int buttonLeft = 220;
constexpr QSize cellSize{28, 16};
constexpr const char16_t* themeNames[] = {u"None",  u"Cyan",   u"Gunmetal", u"Blue",   u"Red",   u"Pinky",
                                          u"Green", u"Purple", u"Golden",   u"Copper", u"Custom"};
constexpr const char16_t* modeNames[] = {u"Normal", u"Stretched", u"Tiled"};
constexpr const char16_t* alignmentNames[] = {u"Top Left",     u"Top Right", u"Bottom Left",
                                              u"Bottom Right", u"Center",    u"Tile"};

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

/// Cells whose own colours hold for a selected row too.
class OwnColors : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->state &= ~(QStyle::State_Selected | QStyle::State_MouseOver);
    }
};

constexpr int rowTop(int row)
{
    return rowPitch * row;
}

} // namespace

SkinChoicePage::SkinChoicePage(Settings& settings, const SkinPage& skin, const ApplicationState& state)
    : SettingsPage({"frm_Skin(0)", u"Skin"_s, u"Settings: Skin"_s}, settings), m_skin(skin)
{
    addFixedPart(state);
    beginHalves({.frame = "frm_Skin(1)", .firstButton = 0, .top = partTop});
    addColor(SkinPage::Fore, "lbl_ForeColor", tr("Text colour"), "ForeColor");
    addColor(SkinPage::Highlight, "lbl_HighLightColor", tr("Highlight colour"), "HighlightColor");
    addColor(SkinPage::Back, "lbl_BackColor", tr("Background"), "BackColor");
    m_theme = addBar(3, tr("List theme"), "vscl_LBxTheme", "lblLBxTheme", "lbl_LBxTheme",
                     design::vscl_LBxTheme_Range.max, &SkinChoices::vscl_LBxTheme_Change);
    m_mode = addBar(4, tr("List picture"), "vscl_LBxAlign", "lblLBxAlign", "lbl_LBxAlignment",
                    design::vscl_LBxAlign_Range.max, &SkinChoices::vscl_LBxAlign_Change);
    m_alignment = addBar(5, tr("Update picture"), "vscl_Align", "lblAlign", "lbl_PictureAlignment",
                         design::vscl_Align_Range.max, &SkinChoices::vscl_Align_Change);
    // The two buttons are crossed by their names, and each stands beside the box that it fills.
    m_gamePicture = addPicture(6, tr("Game list"), "chk_LBxPicture", "txt_LBxPicture", "btnLvPicture",
                               &SkinChoices::chk_LBxPicture_Click, &SkinChoices::btnLvPicture_Click);
    m_updatePicture = addPicture(7, tr("Update list"), "chk_LvPicture", "txt_LvPicture", "btnLBxPicture",
                                 &SkinChoices::chk_LvPicture_Click, &SkinChoices::btnLBxPicture_Click);
    addColorRows();
    onRefresh([this] { showSkin(); });
    connect(&skin, &SkinPage::changed, this, &SkinChoicePage::refresh);
    refresh();
}

void SkinChoicePage::addFixedPart(const ApplicationState& state)
{
    m_heading = addLabel(u"lbl_Available_Skins(0)"_s, tr("Available skins"), {column, 4, 120, rowHeight});
    m_count = addLabel(u"lbl_Available_Skins(1)"_s, u"0"_s, {valueColumn, 4, 60, rowHeight});
    m_choose = addButton(u"btn_Skin_Path"_s, tr("Skin"), {buttonLeft, 6, 56, 16});
    m_choose->setCaption(tr("Choose"));
    connect(m_choose, &ButtonEx::MouseEnter, this,
            [this, &state] { m_choose->setToolTip(toolTipText(u"Skin Patch: "_s + state.SkinPath)); });
    connect(m_choose, &ButtonEx::Click, this,
            [this] { Q_EMIT skinMenuWanted(m_choose->mapToGlobal(QPoint(0, m_choose->height()))); });
    m_wayOn = addQuietLabel(tr("The folder is gone: choose another."), {column, 194, 212, rowHeight});
    m_wayOn->hide();
}

void SkinChoicePage::addColor(int index, const char* number, const QString& heading, const char* title)
{
    const int top = rowTop(index);
    const auto at = static_cast<std::size_t>(index);
    addLabel({}, heading, {column, top, 90, rowHeight});
    m_cells.at(at) = addLabel(indexed("Shape_Color", index), {}, {valueColumn, top + 2, 28, 16});
    m_cells.at(at)->setAccessibleName(heading);
    m_numbers.at(at) = addLabel(QLatin1StringView(number), {}, {valueColumn + 36, top, 80, rowHeight});
    m_numbers.at(at)->setAccessibleDescription(heading);
    ButtonEx* const choose =
        addButton(indexed("cmd_Color", index), QLatin1StringView(title), {buttonLeft, top + 2, 56, 16});
    choose->setCaption(tr("Change"));
    connect(choose, &ButtonEx::Click, this, [this, index] {
        if (m_choices != nullptr)
            m_choices->cmd_Color_Click(index);
    });
}

SkinChoicePage::Bar SkinChoicePage::addBar(int row, const QString& heading, const char* bar,
                                           const char* number, const char* name, int most, Handler handler)
{
    const int top = rowTop(row);
    addLabel({}, heading, {column, top, 90, rowHeight});
    auto* const scroll = new QScrollBar(Qt::Horizontal, body());
    scroll->setObjectName(QLatin1StringView(bar));
    scroll->setAccessibleName(heading);
    scroll->setRange(0, most);
    scroll->setPageStep(1);
    scroll->setFocusPolicy(Qt::StrongFocus);
    scroll->setGeometry(valueColumn, top + 3, 84, 14);
    connect(scroll, &QScrollBar::valueChanged, this, [this, handler](int value) {
        if (!isRefreshing() && m_choices != nullptr)
            (m_choices->*handler)(value);
    });
    return {scroll, addLabel(QLatin1StringView(number), {}, {valueColumn + 90, top, 18, rowHeight}),
            addLabel(QLatin1StringView(name), {}, {valueColumn + 108, top, 76, rowHeight})};
}

SkinChoicePage::Picture SkinChoicePage::addPicture(int row, const QString& caption, const char* box,
                                                   const char* file, const char* button,
                                                   void (SkinChoices::*check)(bool),
                                                   void (SkinChoices::*choose)())
{
    const int top = rowTop(row);
    auto* const shown = new QCheckBox(caption, body());
    shown->setObjectName(QLatin1StringView(box));
    shown->setToolTip(tr("Show the picture"));
    shown->setGeometry(column, top, 88, rowHeight);
    connect(shown, &QCheckBox::toggled, this, [this, check](bool on) {
        if (!isRefreshing() && m_choices != nullptr)
            (m_choices->*check)(on);
    });
    QLineEdit* const name = addShownText(QLatin1StringView(file), caption,
                                         {valueColumn, top, buttonLeft - valueColumn - 6, rowHeight});
    ButtonEx* const browse =
        addButton(QLatin1StringView(button), tr("Choose a picture"), {buttonLeft, top + 2, 56, 16});
    browse->setCaption(tr("Browse"));
    connect(browse, &ButtonEx::Click, this, [this, choose] {
        if (m_choices != nullptr)
            (m_choices->*choose)();
    });
    return {shown, name};
}

void SkinChoicePage::addColorRows()
{
    constexpr int top = halfHeight;
    m_chosen = addLabel(u"lblLbColor(0)"_s, {}, {column, top + 2, 200, rowHeight});
    m_swatch = addLabel(u"shLstSkin"_s, {}, {column + controlWidth - 28, top + 4, 28, 16});
    m_rows = new QTreeWidget(body());
    m_rows->setObjectName("ListView2"_L1);
    m_rows->setAccessibleName(tr("Colours of the custom theme"));
    m_rows->setColumnCount(2);
    m_rows->setHeaderLabels({tr("Colour"), tr("Number")});
    m_rows->setRootIsDecorated(false);
    m_rows->setUniformRowHeights(true);
    m_rows->setFrameShape(QFrame::NoFrame);
    m_rows->setGeometry(column, top + 25, controlWidth, 120);
    m_rows->setColumnWidth(0, 150);
    m_rows->setTabKeyNavigation(false);
    m_rows->setItemDelegateForColumn(1, new OwnColors(m_rows));
    m_rows->installEventFilter(this);
    connect(m_rows, &QTreeWidget::itemClicked, this, [this](QTreeWidgetItem* item) {
        if (m_choices != nullptr)
            m_choices->ListView2_Click(m_rows->indexOfTopLevelItem(item));
    });
    const QString captions[] = {tr("Save Custom"), u"Delete Custom"_s};
    for (int i = 0; i < 2; ++i) {
        ButtonEx* const button =
            addButton(indexed("btnLstSkin", i), captions[i], {column + 140 * i, top + 151, 128, 16});
        button->setCaption(captions[i]);
        connect(button, &ButtonEx::Click, this, [this, i] {
            if (m_choices != nullptr)
                m_choices->btnLstSkin_Click(i);
        });
    }
}

bool SkinChoicePage::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_rows && event->type() == QEvent::KeyRelease && m_choices != nullptr)
        m_choices->ListView2_KeyUp(m_rows->indexOfTopLevelItem(m_rows->currentItem()));
    return SettingsPage::eventFilter(watched, event);
}

void SkinChoicePage::showSkin()
{
    showColors();
    showLists();
    showColorRows();
}

void SkinChoicePage::showColors()
{
    for (std::size_t i = 0; i < 3; ++i) {
        m_cells.at(i)->setPixmap(cell(m_skin.Shape_Color.at(i), m_skin.borderColor.at(i)));
        m_numbers.at(i)->setText(colorText(m_skin.Shape_Color.at(i)));
    }
    m_count->setText(m_skin.availableSkins.isEmpty() ? u"0"_s : m_skin.availableSkins);
    if (m_skin.skinLoaded)
        setTextColor(*m_heading, m_skin.Shape_Color[SkinPage::Fore]);
    else if (m_skin.availableSkinsColor[0] != 0)
        setTextColor(*m_heading, m_skin.availableSkinsColor[0]);
    if (m_skin.availableSkinsColor[1] != 0)
        setTextColor(*m_count, m_skin.availableSkinsColor[1]);
    // The count is told in warning colours until a skin has been found.
    m_wayOn->setVisible(!m_skin.skinLoaded && m_skin.availableSkinsColor[0] != 0);
}

void SkinChoicePage::showLists()
{
    const auto showBar = [](const Bar& bar, int value, const char16_t* name) {
        bar.bar->setValue(value);
        bar.number->setText(QString::number(value));
        bar.name->setText(QString::fromUtf16(name));
    };
    showBar(m_theme, m_skin.vscl_LBxTheme, themeNames[m_skin.vscl_LBxTheme]);
    showBar(m_mode, m_skin.vscl_LBxAlign, modeNames[m_skin.vscl_LBxAlign]);
    showBar(m_alignment, m_skin.vscl_Align, alignmentNames[m_skin.vscl_Align]);
    const auto showPicture = [](const Picture& picture, const SkinPage::ListPicture& held) {
        picture.box->setChecked(held.checked);
        showTagged(*picture.file, held.file);
    };
    showPicture(m_gamePicture, m_skin.gameList);
    showPicture(m_updatePicture, m_skin.updateList);
}

void SkinChoicePage::showColorRows()
{
    const auto count = static_cast<int>(m_skin.customColors.size());
    while (m_rows->topLevelItemCount() < count)
        m_rows->addTopLevelItem(new QTreeWidgetItem);
    for (int i = 0; i < count; ++i) {
        const ColorValue color = m_skin.customColors[static_cast<std::size_t>(i)];
        const QString& name = customListColors()[i];
        QTreeWidgetItem& item = *m_rows->topLevelItem(i);
        item.setText(0, name);
        item.setText(1, colorText(color));
        item.setData(0, Qt::AccessibleTextRole, QString(name + u", "_s + colorText(color)));
        // A number in its own colour is to be read on any skin.
        item.setForeground(1, toQColor(color));
        item.setBackground(1, toQColor(blackOrWhiteOn(color)));
        QFont bold = m_rows->font();
        bold.setBold(true);
        item.setFont(1, bold);
    }
    if (m_skin.chosenColor < 0 || m_skin.chosenColor >= count)
        return;
    m_chosen->setText(customListColors()[m_skin.chosenColor]);
    const ColorValue chosen = m_skin.customColors[static_cast<std::size_t>(m_skin.chosenColor)];
    m_swatch->setPixmap(cell(chosen, m_skin.Shape_Color[SkinPage::Fore]));
    m_swatch->setAccessibleName(customListColors()[m_skin.chosenColor] + u", "_s + colorText(chosen));
}

void SkinChoicePage::askForSkin()
{
    m_choose->setFocus();
}

} // namespace varnhold
