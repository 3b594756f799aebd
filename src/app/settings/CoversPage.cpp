#include "app/settings/CoversPage.h"

#include "controls/ButtonEx/ButtonEx.h"
#include "platform/ElidedLabel.h"
#include "platform/ToolTipText.h"
#include "state/Settings.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QIcon>
#include <QLineEdit>
#include <QPainter>
#include <QTreeWidget>

#include <utility>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

// The buttons are as large as their faces: 92 and 128 wide, and 20 for the small ones; 14 high.
constexpr int faceHeight = 14;
constexpr int wide = 92;
constexpr int longest = 128;
constexpr int small = 20;
constexpr int gap = 4;
constexpr QRect listPlace{8, 28, 268, 100};
constexpr int entryTop = 132;
constexpr int buttonsTop = 157;
constexpr int buttonPitch = 18;
constexpr int nameWidth = 92;

constexpr int iconSide = 16;

QIcon icon(void (*draw)(QPainter&))
{
    QIcon icon;
    for (const int ratio : {1, 2}) {
        QPixmap picture(iconSide * ratio, iconSide * ratio);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.scale(ratio, ratio);
        draw(painter);
        painter.end();
        picture.setDevicePixelRatio(ratio);
        icon.addPixmap(picture);
    }
    return icon;
}

const QColor iconBody(0x6f8fb8);
const QColor iconLight(0x9db8da);

/// "server": two boxes on top of each other, each with its light.
void drawServer(QPainter& painter)
{
    for (const int top : {2, 8}) {
        painter.fillRect(2, top, 12, 5, iconBody);
        painter.fillRect(2, top, 12, 1, iconLight);
        painter.fillRect(11, top + 2, 2, 2, QColor(0x54d38a));
    }
}

/// "url": a globe.
void drawUrl(QPainter& painter)
{
    painter.setPen(QPen(iconBody, 1.4));
    painter.drawEllipse(QRectF(2, 2, 12, 12));
    painter.drawEllipse(QRectF(5.5, 2, 5, 12));
    painter.drawLine(QPointF(2, 8), QPointF(14, 8));
}

} // namespace

CoversPage::CoversPage(Settings& settings, CoverServers& servers, MessageBoxes& boxes,
                       std::function<void()> saved)
    : SettingsPage({"frm_Covers", u"Covers"_s, u"Settings: Game Covers"_s}, settings),
      m_page(servers, boxes, *this, QCoreApplication::applicationName(), std::move(saved))
{
    buildFolder();
    buildList();
    buildEntry();
    buildButtons();
    openEntry(false);
}

void CoversPage::buildFolder()
{
    auto* folder = new ElidedLabel(this);
    folder->setObjectName("lblCovers"_L1);
    folder->setAccessibleName(tr("Cover folder"));
    folder->setGeometry(column, 4, controlWidth - wide - 2 * gap, rowHeight);
    onRefresh([this, folder] {
        const TaggedText& covers = this->settings().covers();
        folder->setText(covers.text.isEmpty() ? tr("No cover folder") : covers.text);
        folder->setToolTip(toolTipText(covers.tag));
    });
    ButtonEx* choose =
        addCaptioned(u"cmdCovers"_s, tr("Cover Path"), u"LeftClick=Cover Path / RightClick=Clear"_s,
                     {column + controlWidth - wide, 7, wide, faceHeight});
    constexpr int rightButton = 2;
    connect(choose, &ButtonEx::Click, this, &CoversPage::coverPathWanted);
    connect(choose, &ButtonEx::MouseUp, this, [this](int button) {
        if (button == rightButton)
            Q_EMIT coverPathCleared();
    });
}

void CoversPage::buildList()
{
    m_list = new QTreeWidget(this);
    m_list->setObjectName("ListView1"_L1);
    m_list->setAccessibleName(tr("Cover servers"));
    m_list->setGeometry(listPlace);
    m_list->setHeaderLabels({tr("Name"), tr("Url")});
    m_list->setRootIsDecorated(false);
    m_list->setUniformRowHeights(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setIconSize({iconSide, iconSide});
    m_list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    m_list->header()->setSectionsMovable(false);
    m_list->header()->setStretchLastSection(true);
    m_list->header()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_list->header()->resizeSection(0, nameWidth + iconSide);
    connect(m_list, &QTreeWidget::itemActivated, this,
            [this](QTreeWidgetItem* row) { m_page.ListView1_DblClick(m_list->indexOfTopLevelItem(row)); });
}

void CoversPage::buildEntry()
{
    m_name = new QLineEdit(this);
    m_name->setObjectName("txt_Fav(0)"_L1);
    m_name->setAccessibleName(tr("Name of the server"));
    m_name->setPlaceholderText(tr("Name"));
    m_name->setGeometry(column, entryTop, nameWidth, rowHeight);
    m_url = new QLineEdit(this);
    m_url->setObjectName("txt_Fav(1)"_L1);
    m_url->setAccessibleName(tr("Url of the server"));
    m_url->setPlaceholderText(u"http://.../"_s);
    m_url->setGeometry(column + nameWidth + gap, entryTop, controlWidth - nameWidth - gap, rowHeight);
}

void CoversPage::buildButtons()
{
    const int second = column + wide + gap;
    const int right = column + controlWidth;
    const auto row = [](int number) { return buttonsTop + number * buttonPitch; };
    const struct
    {
        QString caption;
        QRect place;
    } buttons[] = {
        {u"New"_s, {column, row(0), wide, faceHeight}},
        {u"Add"_s, {second, row(0), wide, faceHeight}},
        {u"Change"_s, {column, row(1), wide, faceHeight}},
        {u"Delete"_s, {second, row(1), wide, faceHeight}},
        {u"Delete selected"_s, {column, row(2), longest, faceHeight}},
        {u"Save"_s, {right - longest, row(2), longest, faceHeight}},
    };
    for (int i = 0; i < static_cast<int>(std::size(buttons)); ++i) {
        ButtonEx* button = addCaptioned(indexed("cmd_Fav", i), buttons[i].caption, {}, buttons[i].place);
        connect(button, &ButtonEx::Click, this, [this, i] { m_page.cmd_Fav_Click(i); });
        if (i == 0)
            m_new = button;
    }
    const int arrows = right - 3 * small - 2 * gap;
    for (int i = 0; i < 2; ++i) {
        ButtonEx* button = addButton(indexed("btn_fav_Change", i), i == 0 ? tr("Move up") : tr("Move down"),
                                     {arrows + i * (small + gap), row(0), small, faceHeight});
        connect(button, &ButtonEx::Click, this, [this, i] { m_page.btn_fav_Change_Click(i); });
    }
    ButtonEx* help = addCaptioned(u"btn_Cover_Help"_s, u"?"_s, tr("Cover Help"),
                                  {right - small, row(0), small, faceHeight});
    connect(help, &ButtonEx::Click, this, [this] { m_page.btn_Cover_Help_Click(); });
}

ButtonEx* CoversPage::addCaptioned(const QString& name, const QString& caption, const QString& toolTip,
                                   const QRect& place)
{
    ButtonEx* button = addButton(name, toolTip, place);
    button->setCaption(caption);
    button->setAccessibleName(toolTip.isEmpty() ? caption : toolTip);
    return button;
}

void CoversPage::showEvent(QShowEvent* event)
{
    SettingsPage::showEvent(event);
    m_page.shown();
}

int CoversPage::currentRow() const
{
    return m_list->indexOfTopLevelItem(m_list->currentItem());
}

QList<int> CoversPage::selectedRows() const
{
    QList<int> rows;
    const QList<QTreeWidgetItem*> selected = m_list->selectedItems();
    for (QTreeWidgetItem* const row : selected)
        rows.append(m_list->indexOfTopLevelItem(row));
    std::sort(rows.begin(), rows.end());
    return rows;
}

void CoversPage::showRows(const QList<CoverServer>& rows, int current)
{
    static const QIcon server = icon(drawServer);
    static const QIcon url = icon(drawUrl);
    QList<QTreeWidgetItem*> items;
    items.reserve(rows.size());
    for (const CoverServer& row : rows) {
        auto* item = new QTreeWidgetItem({row.name, row.url});
        item->setIcon(0, server);
        item->setIcon(1, url);
        item->setToolTip(0, toolTipText(row.name));
        item->setToolTip(1, toolTipText(row.url));
        items.append(item);
    }
    m_list->clear();
    m_list->addTopLevelItems(items);
    if (current >= 0 && current < items.size())
        m_list->setCurrentItem(items.at(current));
}

CoverServer CoversPage::entry() const
{
    return {m_name->text(), m_url->text()};
}

void CoversPage::setEntry(const CoverServer& entry)
{
    m_name->setText(entry.name);
    m_url->setText(entry.url);
}

void CoversPage::openEntry(bool isOpen)
{
    m_name->setVisible(isOpen);
    m_url->setVisible(isOpen);
    m_new->setCaption(isOpen ? u"CNL"_s : u"New"_s);
    m_new->setToolTip(isOpen ? u"Cancel"_s : QString());
    m_new->setAccessibleName(isOpen ? u"Cancel"_s : u"New"_s);
    if (isOpen)
        m_name->setFocus();
}

bool CoversPage::isEntryOpen() const
{
    return m_name->isVisibleTo(this);
}

} // namespace varnhold
