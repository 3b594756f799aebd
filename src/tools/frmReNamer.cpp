#include "tools/frmReNamer.h"

#include "controls/ButtonEx/ButtonEx.h"
#include "platform/Accessible.h"
#include "platform/ElidedLabel.h"
#include "platform/ToolTipText.h"

#include <QAction>
#include <QCheckBox>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QListView>
#include <QMenu>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QSignalBlocker>
#include <QSplitter>
#include <QToolTip>
#include <QVBoxLayout>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int grid = 4;
constexpr int margin = 8;
constexpr QSize firstSize{560, 360};
constexpr QSize smallest{420, 300};
constexpr QSize face{56, 16}; ///< of "Button-1.bmp"

QString withoutMnemonic(QString text)
{
    return text.replace(u'&', u"&&"_s);
}

} // namespace

frmReNamer::frmReNamer(FolderRenamer& renamer) : m_renamer(renamer)
{
    setObjectName("frmReNamer"_L1);
    tellAssistiveTools(*this, {.role = QAccessible::Window});
    setWindowTitle(tr("ReName Dir"));
    build();
    buildMenu();
    setMinimumSize(smallest);
    resize(firstSize);
    connect(&renamer, &FolderRenamer::changed, this, &frmReNamer::refresh);
    connect(&renamer, &FolderRenamer::hitsChanged, this, [this] {
        QStringList rows;
        for (int row = 0; row < m_renamer.lstSearch().rowCount(); ++row)
            rows.append(QString::number(m_renamer.folderOfHit(row)));
        m_hitRows.setStringList(rows);
    });
    refresh();
}

void frmReNamer::build()
{
    m_load = addButton("btnLoad", tr("Load"), u"Click to load Path / Right click to Refresh"_s);
    m_panel = new ElidedLabel(this);
    m_panel->setObjectName("StatusBar1(1)"_L1);
    m_count = new ElidedLabel(this);
    m_count->setObjectName("StatusBar1(2)"_L1);
    m_count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_from = addList("lstDirFrom", tr("Folders found"), m_renamer.lstDirFrom());
    m_to = addList("lstDirTo", tr("Folders after processing"), m_renamer.lstDirTo());
    m_hits = addList("lstSearch", tr("Folders that match"), m_renamer.lstSearch());
    addStore("lstIndex", m_hitRows);
    addStore("lstBuffer", m_renamer.lstBuffer());
    addStore("List1", m_scanRows);
    m_manual = addLine("txtManual", tr("New path of the selected folder"),
                       tr("Select a folder to rename it by hand"));
    m_searchText = addLine("txtSearch", tr("Search"), tr("Search the folders"));
    m_rename = addButton("btnReName", tr("ReName"), tr("Rename the selected folder by hand"));
    m_search = addButton("btnSearch", tr("Search"), tr("Search the folders"));
    m_cancel = addButton("btnCancel", tr("Cancel"), tr("Leave the search"));
    m_process = addButton("btnProcess", tr("Process"), tr("Clean up the names of all listed folders"));
    m_disclaimer = new QPlainTextEdit(FolderRenamer::disclaimer(), this);
    m_disclaimer->setObjectName("txtDisclaimer"_L1);
    m_disclaimer->setAccessibleName(tr("Instructions and disclaimer"));
    m_disclaimer->setReadOnly(true);
    m_disclaimer->setTabChangesFocus(true);
    m_disclaimer->setTabStopDistance(4 * m_disclaimer->fontMetrics().averageCharWidth());
    m_agree = new QCheckBox(u"Agree"_s, this);
    m_agree->setObjectName("chk_Agree"_L1);

    m_splitter = new QSplitter(Qt::Horizontal, this);
    m_splitter->setHandleWidth(2 * grid);
    m_splitter->setChildrenCollapsible(false);
    auto* left = new QWidget(m_splitter);
    auto* leftLists = new QVBoxLayout(left);
    leftLists->setContentsMargins(0, 0, 0, 0);
    leftLists->setSpacing(grid);
    leftLists->addWidget(m_from);
    leftLists->addWidget(m_hits);
    m_splitter->addWidget(left);
    m_splitter->addWidget(m_to);
    QSplitterHandle* const bar = m_splitter->handle(1);
    bar->setObjectName("barLeft"_L1);
    bar->setAccessibleName(tr("Bar between the lists"));
    bar->setFocusPolicy(Qt::TabFocus);
    bar->installEventFilter(this);

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(margin, margin, margin, margin);
    all->setSpacing(grid);
    const auto addRow = [&](std::initializer_list<QWidget*> widgets, QWidget* stretched) {
        auto* row = new QHBoxLayout;
        row->setSpacing(grid);
        for (QWidget* const widget : widgets)
            row->addWidget(widget, widget == stretched ? 1 : 0);
        all->addLayout(row);
    };
    addRow({m_load, m_panel, m_count}, m_panel);
    all->addWidget(m_splitter, 1);
    auto* line = new QHBoxLayout;
    line->setSpacing(grid);
    line->addWidget(m_manual, 1);
    line->addWidget(m_searchText, 1);
    for (ButtonEx* const button : {m_rename, m_search, m_cancel})
        line->addWidget(button);
    all->addLayout(line);
    auto* foot = new QHBoxLayout;
    foot->setSpacing(grid);
    foot->addWidget(m_disclaimer, 1);
    auto* gate = new QVBoxLayout;
    gate->setSpacing(grid);
    gate->addWidget(m_agree);
    gate->addWidget(m_process);
    gate->addStretch(1);
    foot->addLayout(gate);
    all->addLayout(foot);
    constexpr int disclaimerLines = 5;
    m_disclaimer->setFixedHeight(disclaimerLines * m_disclaimer->fontMetrics().lineSpacing() + 2 * grid + 2);
    m_count->setMinimumWidth(face.width() / 2);

    QWidget* before = m_load;
    for (QWidget* const widget :
         std::initializer_list<QWidget*>{m_from, m_hits, bar, m_to, m_manual, m_searchText, m_rename,
                                         m_search, m_cancel, m_disclaimer, m_agree, m_process}) {
        setTabOrder(before, widget);
        before = widget;
    }

    m_load->installEventFilter(this);
    connect(m_load, &ButtonEx::Click, this, [this] { m_renamer.btnLoad_Click(); });
    connect(m_process, &ButtonEx::Click, this, [this] { m_renamer.btnProcess_Click(); });
    connect(m_rename, &ButtonEx::Click, this, [this] { m_renamer.btnReName_Click(); });
    connect(m_search, &ButtonEx::Click, this, [this] {
        m_renamer.btnSearch_Click();
        m_searchText->setFocus();
    });
    connect(m_cancel, &ButtonEx::Click, this, [this] {
        m_renamer.btnCancel_Click();
        m_search->setFocus();
    });
    connect(m_agree, &QCheckBox::toggled, this, [this](bool on) { m_renamer.setAgreed(on); });
    connect(m_manual, &QLineEdit::textEdited, this,
            [this](const QString& text) { m_renamer.setManualText(text); });
    connect(m_searchText, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_renamer.txtSearch_Change(text); });
    connect(m_from->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& now) { m_renamer.selectFolder(now.row()); });
    connect(m_hits->selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this](const QModelIndex& now) { followHit(now.row()); });
}

ButtonEx* frmReNamer::addButton(const char* name, const QString& caption, const QString& toolTip)
{
    auto* button = new ButtonEx(this);
    button->setObjectName(QLatin1StringView(name));
    button->setCaption(caption);
    button->setToolTip(toolTip);
    button->setAccessibleName(caption);
    button->setFixedSize(face);
    return button;
}

QListView* frmReNamer::addList(const char* name, const QString& accessibleName, QAbstractItemModel& model)
{
    auto* list = new QListView(this);
    list->setObjectName(QLatin1StringView(name));
    list->setAccessibleName(accessibleName);
    list->setModel(&model);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setTextElideMode(Qt::ElideMiddle);
    list->setUniformItemSizes(true);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setTabKeyNavigation(false);
    list->viewport()->installEventFilter(this);
    list->installEventFilter(this);
    return list;
}

QLineEdit* frmReNamer::addLine(const char* name, const QString& accessibleName, const QString& placeholder)
{
    auto* line = new QLineEdit(this);
    line->setObjectName(QLatin1StringView(name));
    line->setAccessibleName(accessibleName);
    line->setPlaceholderText(placeholder);
    return line;
}

/// A list that only keeps rows, under the name that it is known by.
void frmReNamer::addStore(const char* name, QAbstractItemModel& model)
{
    auto* list = new QListView(this);
    list->setObjectName(QLatin1StringView(name));
    list->setModel(&model);
    list->hide();
}

void frmReNamer::buildMenu()
{
    m_menu = new QMenu(this);
    m_menu->setObjectName("mnuMenu"_L1);
    m_openDir = m_menu->addAction(u"Open Dir"_s);
    m_openDir->setObjectName("mnuOpenDir"_L1);
    m_recycle = m_menu->addAction(u"Recycle"_s);
    m_recycle->setObjectName("mnuRecycle"_L1);
    connect(m_openDir, &QAction::triggered, this, [this] { m_renamer.mnuOpenDir_Click(); });
    // Later than the menu's own end, for a box follows.
    connect(
        m_recycle, &QAction::triggered, this, [this] { m_renamer.mnuRecycle_Click(); }, Qt::QueuedConnection);
}

void frmReNamer::openMenu(QListView& list, const QPoint& place)
{
    const QModelIndex row = list.indexAt(list.viewport()->mapFromGlobal(place));
    const bool overHits = &list == m_hits;
    if (row.isValid() && &list == m_from)
        list.setCurrentIndex(row);
    m_renamer.openMenu(&list != m_to, overHits ? m_renamer.folderOfHit(row.row()) : row.row());
    m_openDir->setText(withoutMnemonic(m_renamer.openCaption()));
    const QString recycle = m_renamer.recycleCaption();
    m_recycle->setText(withoutMnemonic(recycle));
    m_recycle->setVisible(!recycle.isEmpty());
    m_menu->popup(place);
}

void frmReNamer::moveSplitter(int key)
{
    QList<int> widths = m_splitter->sizes();
    const int step = key == Qt::Key_Left ? -margin : margin;
    widths[0] += step;
    widths[1] -= step;
    m_splitter->setSizes(widths);
}

void frmReNamer::refresh()
{
    const bool searching = m_renamer.isSearching();
    setWindowTitle(m_renamer.title().isEmpty() ? tr("ReName Dir") : m_renamer.title());
    m_panel->setText(m_renamer.current().isEmpty() ? tr("No base folder") : m_renamer.current());
    m_panel->setAccessibleDescription(m_renamer.base());
    m_count->setText(m_renamer.counted());
    if (m_manual->text() != m_renamer.manualText())
        m_manual->setText(m_renamer.manualText());
    m_manual->setToolTip(toolTipText(m_renamer.manualTag()));
    m_manual->setVisible(!searching);
    m_searchText->setVisible(searching);
    m_hits->setVisible(searching);
    m_search->setVisible(!searching);
    m_cancel->setVisible(searching);
}

void frmReNamer::followHit(int row)
{
    const int folder = m_renamer.folderOfHit(row);
    if (folder >= 0)
        m_from->setCurrentIndex(m_renamer.lstDirFrom().index(folder));
}

void frmReNamer::showBusy(bool busy)
{
    if (busy)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
}

void frmReNamer::showEvent(QShowEvent* event)
{
    if (!event->spontaneous())
        Q_EMIT shown();
    QWidget::showEvent(event);
}

void frmReNamer::closeEvent(QCloseEvent* event)
{
    m_renamer.abandon();
    event->ignore();
    hide();
}

bool frmReNamer::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_load && event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::RightButton) {
        m_renamer.btnLoad_RightClick();
        return true;
    }
    if (watched->objectName() == "barLeft"_L1 && event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Left || key == Qt::Key_Right) {
            moveSplitter(key);
            return true;
        }
    }
    for (QListView* const list : {m_from, m_to, m_hits}) {
        if (list == nullptr)
            continue;
        if (watched == list->viewport() && event->type() == QEvent::ToolTip) {
            const auto* help = static_cast<QHelpEvent*>(event);
            const QModelIndex row = list->indexAt(help->pos());
            const QString path = row.data().toString();
            QToolTip::showText(help->globalPos(),
                               path.isEmpty() ? QString() : toolTipText(m_renamer.toolTip(path)),
                               list->viewport(), list->visualRect(row));
            return true;
        }
        if (event->type() == QEvent::ContextMenu && (watched == list || watched == list->viewport())) {
            const auto* wanted = static_cast<QContextMenuEvent*>(event);
            const bool byKey = wanted->reason() == QContextMenuEvent::Keyboard;
            const QRect row = list->visualRect(list->currentIndex());
            openMenu(*list, byKey ? list->viewport()->mapToGlobal(row.center()) : wanted->globalPos());
            return true;
        }
    }
    return QWidget::eventFilter(watched, event);
}

} // namespace varnhold
