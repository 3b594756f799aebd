// How the search window is put together.

#include "controls/ButtonEx/ButtonEx.h"
#include "controls/DesignValues.h"
#include "controls/XP_ProgressBar/ListProgress.h"
#include "controls/XP_ProgressBar/XP_ProgressBar.h"
#include "platform/Accessible.h"
#include "platform/CaptionDrag.h"
#include "platform/ElidedLabel.h"
#include "platform/PictureBox.h"
#include "platform/ToolTipText.h"
#include "platform/Twips.h"
#include "search/ResultList.h"
#include "search/SearchLayout.h"
#include "search/frmSearch.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"

#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QScrollBar>

namespace varnhold {

using namespace Qt::StringLiterals;
namespace places = searchplaces;

namespace {

QString indexedName(const char* name, int index)
{
    return u"%1(%2)"_s.arg(QLatin1StringView(name)).arg(index);
}

} // namespace

frmSearch::frmSearch(const Services& services) : ShapedWindow(nullptr), m_services(services)
{
    setObjectName("frmSearch"_L1);
    setFixedSize(places::window);
    buildCaption();
    buildSearch();
    buildOptions();
    buildLists();
    buildImport();
    orderTabs();
    setCaption(u"Search - "_s);
    showChoices();
    m_optionsPanel->hide();
    showSearch();
}

frmSearch::~frmSearch() = default;

void frmSearch::buildCaption()
{
    m_caption = new ElidedLabel(this);
    m_caption->setObjectName("lblCaption"_L1);
    m_caption->setAccessibleDescription(tr("Window name"));
    m_caption->setGeometry(places::caption);
    auto* drag =
        new CaptionDrag(*this, m_services.screen,
                        {.store = {},
                         .snaps = [this] { return m_services.settings.isChecked(Check::Edge); },
                         .keepWorkArea = [this](const WorkArea& area) { m_services.state.workArea = area; }});
    drag->addHandle(*m_caption);
    m_close = addButton(this, "btn_WinState(1)", {}, places::close);
    m_close->setToolTip(tr("Close"));
    m_close->setAccessibleName(tr("Close"));
    m_close->setCancel(true);
    connect(m_close, &ButtonEx::Click, this, [this] { hide(); });

    m_strip = new PictureBox(this);
    m_strip->setObjectName("imgOptions"_L1);
    m_strip->setGeometry(places::strip);
    m_choicesShown = new ElidedLabel(m_strip);
    m_choicesShown->setGeometry(places::choices);
    m_choicesShown->setAccessibleDescription(tr("What is searched"));
    m_optionsButton = addButton(m_strip, "btn_Options", {}, places::options);
    m_optionsButton->setToolTip(tr("Search options"));
    m_optionsButton->setAccessibleName(tr("Search options"));
    connect(m_optionsButton, &ButtonEx::Click, this, [this] { showOptions(m_optionsPanel->isHidden()); });
    m_bar = new XP_ProgressBar(m_strip);
    m_bar->setObjectName("PB"_L1);
    m_bar->setAccessibleName(tr("Progress"));
    m_bar->setScrolling(design::frmSearch_PB_Scrolling);
    m_bar->setGeometry(places::bar);
    m_bar->hide();
    m_progress = std::make_unique<ListProgress>(*m_bar);
}

void frmSearch::buildSearch()
{
    m_searchPanel = addPanel("frSearch", places::searchPanel);
    m_text = addLine(m_searchPanel, "txt_Search", tr("Search text"), places::text);
    m_text->setText(u"SEARCH"_s);
    m_text->installEventFilter(this);
    connect(m_text, &QLineEdit::returnPressed, this, &frmSearch::searchRequested);
    m_search = addButton(m_searchPanel, "cmdSearch", tr("Search"), places::search);
    connect(m_search, &ButtonEx::Click, this, &frmSearch::searchRequested);
    m_export = addButton(m_searchPanel, "cmdExport", tr("Export"), places::exportList);
    m_export->setToolTip(tr("Save both lists to a file"));
    connect(m_export, &ButtonEx::Click, this, &frmSearch::exportRequested);
}

void frmSearch::buildOptions()
{
    m_optionsPanel = addPanel("frm_Options", places::optionsPanel);
    const int step = places::optionsPanel.width() / 4;
    m_match = addChoice(u"vSearch"_s, u"lblSearch"_s, tr("Match"), 0,
                        {u"Whole Word"_s, u"Starts With"_s, u"Any"_s}, design::vSearch_Range.max);
    m_db[0] = addChoice(indexedName("vDB", 0), indexedName("lblDB", 0), tr("Table"), step,
                        {u"PS3Games"_s, u"PS3Links"_s, u"PS3Personal"_s}, 1);
    m_db[1] = addChoice(indexedName("vDB", 1), indexedName("lblDB", 1), tr("Column"), 2 * step,
                        {u"GameID"_s, u"GameName"_s}, 2);
    m_db[2] = addChoice(indexedName("vDB", 2), indexedName("lblDB", 2), tr("Order"), 3 * step,
                        {u"Ascending"_s, u"Descending"_s}, 1);
}

void frmSearch::buildLists()
{
    m_frame = addPanel("Frame2", {});
    m_lists[0] = addList("List1", tr("Ids found"), ResultList::idColumn);
    m_splitter = new PictureBox(m_frame);
    m_splitter->setObjectName("imgBar"_L1);
    m_splitter->setAccessibleName(tr("Between ids and names"));
    m_splitter->setCursor(Qt::SplitHCursor);
    m_splitter->setFocusPolicy(Qt::TabFocus);
    m_splitter->installEventFilter(this);
    tellAssistiveTools(*m_splitter,
                       {.role = QAccessible::Splitter,
                        .value = AccessibleTraits::Value{
                            .current = [this] { return m_splitter->x(); },
                            .move = [this](int left) { sVertical_Bar(twipsFromPixels(left)); },
                            .minimum = [] { return pixelsFromTwips(places::leastSplitTwips); },
                            .maximum = [this] { return m_frame->width() - places::splitWidth; }}});
    m_lists[1] = addList("List2", tr("Names found"), ResultList::nameColumn);
    // Only one of the two shows a bar; both go together.
    m_lists[0]->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    for (std::size_t i = 0; i < m_lists.size(); ++i) {
        QListView* const other = m_lists[1 - i];
        connect(m_lists[i]->verticalScrollBar(), &QScrollBar::valueChanged, other->verticalScrollBar(),
                &QScrollBar::setValue);
        connect(m_lists[i]->selectionModel(), &QItemSelectionModel::currentChanged, other,
                [this](const QModelIndex& now) { selectRow(now.row()); });
    }
}

void frmSearch::buildImport()
{
    m_importPanel = addPanel("frImport", places::importPanel);
    m_importCaption = new ElidedLabel(m_importPanel);
    m_importCaption->setGeometry(places::importCaption);
    setImportCaption(u"List Count: 0"_s);
    m_file = addLine(m_importPanel, "txtFile", tr("List file"), places::file);
    m_file->setReadOnly(true);
    m_file->setPlaceholderText(tr("No list yet"));
    m_grab = addButton(m_importPanel, "cmdGrab", tr("Open List"), places::grab);
    m_grab->setToolTip(tr("Read a list of ids and titles"));
    connect(m_grab, &ButtonEx::Click, this, &frmSearch::grabRequested);
    const ListFormat usual;
    const std::array headings{u"Left Margin"_s, u"Right Margin"_s};
    const std::array values{usual.left, usual.right};
    for (int i = 0; i < 2; ++i) {
        const auto at = static_cast<std::size_t>(i);
        const QPoint place(i * places::marginStep, places::marginTop);
        m_margins[at] = addBar(m_importPanel, indexedName("vsMargin", i), headings[at], place,
                               design::vsMargin_Range.max, values[at]);
        auto* const number = new QLabel(QString::number(values[at]), m_importPanel);
        number->setObjectName(indexedName("lblNumber", i));
        number->setGeometry(QRect(place + places::choiceLabel.topLeft(), places::choiceLabel.size()));
        connect(m_margins[at], &QScrollBar::valueChanged, number,
                [number](int value) { number->setText(QString::number(value)); });
        m_marginNumbers[at] = number;
    }
    addHeading(m_importPanel, tr("Remove from names"), places::splitHeading);
    m_split = addLine(m_importPanel, "txtSplit", tr("Texts to remove from names"), places::split);
    connect(m_split, &QLineEdit::textChanged, this,
            [this](const QString& text) { m_split->setToolTip(toolTipText(u"Remove: "_s + text)); });
    m_split->setText(u"Chr(13),vbCrLf,Chr(10),"_s);
    m_split->setCursorPosition(0);
    m_import = addButton(m_importPanel, "cmdImport", tr("Import"), places::importList);
    m_import->setToolTip(tr("Write both lists to a table"));
    connect(m_import, &ButtonEx::Click, this, &frmSearch::importRequested);
}

void frmSearch::orderTabs()
{
    QWidget* const order[] = {m_optionsButton, m_text,      m_search,    m_export,     m_match.bar,
                              m_db[0].bar,     m_db[1].bar, m_db[2].bar, m_lists[0],   m_splitter,
                              m_lists[1],      m_file,      m_grab,      m_margins[0], m_margins[1],
                              m_split,         m_import,    m_close};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
}

QFrame* frmSearch::addPanel(const char* name, const QRect& place)
{
    auto* panel = new QFrame(this);
    panel->setObjectName(QLatin1StringView(name));
    panel->setGeometry(place);
    return panel;
}

ButtonEx* frmSearch::addButton(QWidget* parent, const char* name, const QString& caption, const QRect& place)
{
    auto* button = new ButtonEx(parent);
    button->setObjectName(QLatin1StringView(name));
    button->setCaption(caption);
    button->setAccessibleName(caption);
    button->setGeometry(place);
    return button;
}

QLineEdit* frmSearch::addLine(QWidget* parent, const char* name, const QString& accessibleName,
                              const QRect& place)
{
    auto* line = new QLineEdit(parent);
    line->setObjectName(QLatin1StringView(name));
    line->setAccessibleName(accessibleName);
    line->setGeometry(place);
    return line;
}

QLabel* frmSearch::addHeading(QWidget* parent, const QString& text, const QRect& place)
{
    auto* heading = new QLabel(text, parent);
    heading->setProperty("quiet", true);
    heading->setGeometry(place);
    return heading;
}

QScrollBar* frmSearch::addBar(QWidget* parent, const QString& name, const QString& heading,
                              const QPoint& place, int most, int value)
{
    auto* bar = new QScrollBar(Qt::Vertical, parent);
    bar->setObjectName(name);
    bar->setAccessibleName(heading);
    bar->setRange(1, most);
    bar->setPageStep(1);
    bar->setValue(value);
    bar->setFocusPolicy(Qt::StrongFocus);
    bar->setGeometry(QRect(place, places::choiceBar));
    addHeading(parent, heading, places::choiceHeading.translated(place));
    return bar;
}

frmSearch::Choice frmSearch::addChoice(const QString& name, const QString& labelName, const QString& heading,
                                       int left, const QStringList& texts, int value)
{
    const QPoint place(left, places::choiceTop);
    Choice choice{.bar = addBar(m_optionsPanel, name, heading, place, static_cast<int>(texts.size()), value),
                  .label = new QLabel(m_optionsPanel),
                  .texts = texts};
    choice.label->setObjectName(labelName);
    choice.label->setGeometry(places::choiceLabel.translated(place));
    connect(choice.bar, &QScrollBar::valueChanged, this, &frmSearch::showChoices);
    return choice;
}

QListView* frmSearch::addList(const char* name, const QString& accessibleName, int column)
{
    auto* list = new QListView(m_frame);
    list->setObjectName(QLatin1StringView(name));
    list->setAccessibleName(accessibleName);
    list->setModel(&m_services.results);
    list->setModelColumn(column);
    list->setEditTriggers(QAbstractItemView::NoEditTriggers);
    list->setUniformItemSizes(true);
    list->setTextElideMode(Qt::ElideMiddle);
    list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    list->setTabKeyNavigation(false);
    list->setMouseTracking(true);
    list->installEventFilter(this);
    list->viewport()->installEventFilter(this);
    connect(list, &QListView::doubleClicked, this,
            [this](const QModelIndex& index) { Q_EMIT resultChosen(index.row()); });
    return list;
}

} // namespace varnhold
