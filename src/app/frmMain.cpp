#include "app/frmMain.h"

#include "app/GameIdBox.h"
#include "app/MainLayout.h"
#include "app/UpdateListView.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/DesignValues.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "controls/XP_ProgressBar/XP_ProgressBar.h"
#include "platform/CaptionDrag.h"
#include "platform/ElidedLabel.h"
#include "platform/PictureBox.h"
#include "platform/Twips.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/Sounds.h"

#include <QCloseEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr double browserParkedTwips = 8600;

} // namespace

frmMain::frmMain(const Services& services) : ShapedWindow(nullptr), m_services(services)
{
    setObjectName("frmMain"_L1);
    setWindowTitle(QCoreApplication::applicationName());
    m_drag = new CaptionDrag(
        *this, m_services.screen,
        {.store = [this](double left, double top) { m_services.settings.writePosition(left, top); },
         .snaps = [this] { return m_services.settings.isChecked(Check::Edge); },
         .keepWorkArea = [this](const WorkArea& area) { m_services.state.workArea = area; }});
    buildCaption();
    buildLeftColumn();
    buildMainColumn();
    buildFoot();
    for (ElidedLabel* label : {m_caption, m_info, m_status, m_blank})
        m_drag->addHandle(*label);
    m_info->installEventFilter(this);
    connectGames();
    connectUpdates();
    m_barLeftTop = m_barMainTop = MainLayout::normal().columnTwips - splitBarHeight;
    applyLayout(MainLayout::normal(), 1);
    orderTabs();
    m_gameId->setFocus();
}

frmMain::~frmMain() = default;

ButtonEx* frmMain::addButton(const char* name, const QString& toolTip)
{
    auto* button = new ButtonEx(this);
    button->setObjectName(QLatin1StringView(name));
    button->setCaption({});
    button->setAppearance(2);
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    return button;
}

ElidedLabel* frmMain::addLabel(const char* name, const QString& accessibleName)
{
    auto* label = new ElidedLabel(this);
    label->setObjectName(QLatin1StringView(name));
    label->setAccessibleName(accessibleName);
    return label;
}

void frmMain::buildCaption()
{
    // Labels first: they lie below the buttons where they overlap.
    m_caption = addLabel("lblCaption", tr("Window name"));
    m_caption->setText(QCoreApplication::applicationName());
    m_info = addLabel("lblInfo", tr("Title"));
    m_info->setContentsMargins(4, 0, 0, 0);

    m_gameId = new GameIdBox(m_services.boxes, this);
    m_gameId->setObjectName("txtGameID"_L1);
    m_gameId->setAccessibleName(tr("Game ID"));
    m_gameId->setPlaceholderText(tr("Game ID"));
    m_gameId->setGeometry(mainplaces::txtGameID);
    connect(m_gameId, &GameIdBox::fetchRequested, this, &frmMain::fetchRequested);

    m_fetch = addButton("btnFetch", u"Click to Fetch / OLEDragDrop text URL for download."_s);
    m_fetch->setCaption(tr("Fetch"));
    m_fetch->setAccessibleName(tr("Fetch"));
    m_fetch->setGeometry(mainplaces::btnFetch);
    m_fetch->setOLEDropMode(1);
    connect(m_fetch, &ButtonEx::Click, this, &frmMain::fetchRequested);
    connect(m_fetch, &ButtonEx::OLEDragOver, this,
            [](const QMimeData* dragged, int* effect) { *effect = dragged->hasText() ? 1 : 0; });
    connect(m_fetch, &ButtonEx::OLEDragDrop, this, [this](const QMimeData* dropped) {
        if (dropped->hasText())
            Q_EMIT textDropped(dropped->text());
    });

    m_btnFile = addButton("btnFile", u"Menu"_s);
    m_btnFile->setGeometry(mainplaces::btnFile);
    const auto openMenu = [this] {
        Q_EMIT mnuMenuWanted(m_btnFile->mapToGlobal(QPoint(0, m_btnFile->height())));
    };
    connect(m_btnFile, &ButtonEx::Click, this, openMenu);
    connect(m_btnFile, &ButtonEx::MouseUp, this, [openMenu](int button) {
        if (button == 2)
            openMenu();
    });

    m_settingsButton = addButton("btn_Tools(1)", u"Settings"_s);
    m_settingsButton->setGeometry(mainplaces::btn_Tools1);
    connect(m_settingsButton, &ButtonEx::Click, this, &frmMain::settingsRequested);

    m_winState[0] = addButton("btn_WinState(0)", u"Minimize"_s);
    connect(m_winState[0], &ButtonEx::Click, this, [this] {
        m_services.sounds.play(Sound::Menu);
        if (!isMinimized())
            showMinimized();
    });
    m_winState[2] = addButton("btn_WinState(2)", u"Maximize"_s);
    // The caption is the layout's number, not a text to be read: the face carries the sign for it.
    m_winState[2]->setCaptionOffsetX(1000);
    connect(m_winState[2], &ButtonEx::Click, this, [this] {
        if (layoutNumber() == 1)
            EnlargeMainWindow();
        else
            RestoreMainWindow();
    });
    m_winState[1] = addButton("btn_WinState(1)", u"Exit"_s);
    connect(m_winState[1], &ButtonEx::Click, this, [this] {
        // The focus would pass on to the game list, and there the key that answers the question clears rows.
        m_gameId->setFocus();
        m_winState[1]->setEnabled(false);
        Q_EMIT exitRequested();
    });
}

void frmMain::buildLeftColumn()
{
    m_picLeft = new QWidget(this);
    m_picLeft->setObjectName("picLeft"_L1);
    m_games = new MorphListBox(m_picLeft);
    m_games->setObjectName("MorphListBox1"_L1);
    m_games->setAccessibleName(tr("Games"));
    m_games->setBorderWidth(0); // the window draws the well
    m_games->setSorted(false);  // List1 runs beside it, row by row
    m_picPreview = new QLabel(m_picLeft);
    m_picPreview->setObjectName("PicPreview"_L1);
    m_picPreview->setAccessibleName(tr("Cover"));
    m_picPreview->setAlignment(Qt::AlignCenter);
    m_barLeft = new PictureBox(m_picLeft);
    m_barLeft->setObjectName("barLeft"_L1);
    m_barLeft->setCursor(Qt::SplitVCursor);
    m_barLeft->installEventFilter(this);
}

void frmMain::buildMainColumn()
{
    m_picMain = new PictureBox(this);
    m_picMain->setObjectName("picMain"_L1);
    m_updates = new UpdateListView(m_services.list, m_picMain);
    m_updates->setObjectName("ListView1"_L1);
    m_updates->setAccessibleName(tr("Updates"));
    m_notes = new QTextEdit(m_picMain);
    m_notes->setObjectName("txtGameNotes"_L1);
    m_notes->setAccessibleName(tr("Notes"));
    m_notes->setReadOnly(true);
    m_notes->setTabChangesFocus(true);
    m_barMain = new PictureBox(m_picMain);
    m_barMain->setObjectName("barMain"_L1);
    m_barMain->setCursor(Qt::SplitVCursor);
    m_barMain->installEventFilter(this);
    for (QFrame* const framed : std::initializer_list<QFrame*>{m_updates, m_notes})
        framed->setFrameShape(QFrame::NoFrame); // the window's picture draws the well
    m_imgPreview = new QLabel(m_picMain);
    m_imgPreview->setObjectName("imgPreview"_L1);
    m_imgPreview->setAccessibleName(tr("Large cover"));
    m_imgPreview->setAlignment(Qt::AlignCenter);
    m_imgPreview->hide();
    m_browser = new QPlainTextEdit(m_picMain);
    m_browser->setObjectName("WebBrowser1"_L1);
    m_browser->setAccessibleName(tr("Raw document"));
    m_browser->setFrameShape(QFrame::NoFrame);
    m_browser->setReadOnly(true);
    m_browser->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_browser->setTabChangesFocus(true);
    m_browser->setFocusPolicy(Qt::ClickFocus); // while parked it takes no turn in the tab order
    m_browser->move(pixelsFromTwips(browserParkedTwips), 0);
}

void frmMain::buildFoot()
{
    m_status = addLabel("lblStatus", tr("Status"));
    m_status->setContentsMargins(8, 0, 4, 0);
    m_blank = addLabel("lblBlank", tr("Updates found"));
    m_progress = new XP_ProgressBar(this);
    m_progress->setObjectName("ProgressBar1"_L1);
    m_progress->setAccessibleName(tr("Progress"));
    m_progress->setScrolling(design::frmMain_ProgressBar1_Scrolling);
    m_progress->hide();
    m_count = new QLabel(u"0"_s, this);
    m_count->setObjectName("lblCnt"_L1);
    m_count->setAccessibleName(tr("Open downloads"));
    m_count->setToolTip(tr("Open downloads"));
    m_count->setAlignment(Qt::AlignCenter);
}

void frmMain::orderTabs()
{
    QWidget* const order[] = {m_btnFile, m_settingsButton, m_winState[0], m_winState[2], m_winState[1],
                              m_gameId,  m_fetch,          m_games,       m_updates,     m_notes};
    for (std::size_t i = 1; i < std::size(order); ++i)
        setTabOrder(order[i - 1], order[i]);
}

void frmMain::applyLayout(const MainLayout& layout, int number)
{
    setFixedSize(layout.window);
    for (int i = 0; i < 3; ++i)
        m_winState[i]->setGeometry(layout.winState[i]);
    m_caption->setGeometry(layout.lblCaption);
    m_info->setGeometry(layout.lblInfo);
    m_status->setGeometry(layout.lblStatus);
    m_blank->setGeometry(layout.lblBlank);
    m_progress->setGeometry(layout.lblBlank.adjusted(0, 4, 0, -4));
    m_count->setGeometry(layout.lblCnt);
    m_picLeft->setGeometry(layout.picLeft);
    m_picMain->setGeometry(layout.picMain);
    const QSize inner = layout.picMain.size();
    m_browser->resize(inner);
    m_imgPreview->setGeometry(QRect({0, 0}, inner));
    m_columnTwips = layout.columnTwips;
    layLeftColumn();
    layMainColumn();
    m_winState[2]->setCaption(QString::number(number));
    const QString action = number == 1 ? u"Maximize"_s : u"Restore Down"_s;
    m_winState[2]->setToolTip(action);
    m_winState[2]->setAccessibleName(action);
    Q_EMIT layoutChanged();
}

int frmMain::layoutNumber() const
{
    return m_winState[2]->Caption().toInt();
}

void frmMain::startLayout(int number)
{
    if (number == 2 && takesPictures(2))
        applyLayout(MainLayout::enlarged(), 2);
}

bool frmMain::takesPictures(int number) const
{
    return !m_layoutPictures || m_layoutPictures(number);
}

void frmMain::EnlargeMainWindow()
{
    if (!takesPictures(2))
        return;
    applyLayout(MainLayout::enlarged(), 2);
    m_services.settings.writeLayout(2);
    Splitbar_Left();
    Splitbar_Main();
}

void frmMain::RestoreMainWindow()
{
    if (!takesPictures(1))
        return;
    applyLayout(MainLayout::normal(), 1);
    m_services.settings.writeLayout(1);
    Splitbar_Left();
    Splitbar_Main();
}

void frmMain::setBarLeftTop(double twips)
{
    m_barLeftTop = twips;
}

void frmMain::setBarMainTop(double twips)
{
    m_barMainTop = twips;
}

void frmMain::Splitbar_Left()
{
    layLeftColumn();
    m_games->setTopIndex(0);
    m_games->Refresh();
    m_services.settings.writeBarLeft(m_barLeftTop);
}

void frmMain::Splitbar_Main()
{
    layMainColumn();
    m_services.settings.writeBarMain(m_barMainTop);
}

void frmMain::layLeftColumn()
{
    const SplitPlaces places = splitColumn(m_barLeftTop, barLeftFloor, 0, m_columnTwips);
    m_barLeftTop = places.barTop;
    placeColumn(places, *m_games, *m_barLeft, *m_picPreview, m_picLeft->width());
}

void frmMain::layMainColumn()
{
    const SplitPlaces places = splitColumn(m_barMainTop, barMainFloor, 0, m_columnTwips);
    m_barMainTop = places.barTop;
    placeColumn(places, *m_updates, *m_barMain, *m_notes, m_picMain->width());
}

void frmMain::placeColumn(const SplitPlaces& places, QWidget& upper, QWidget& bar, QWidget& lower, int width)
{
    // Edges are rounded, not lengths, so that no gap opens between the three.
    const int barTop = pixelsFromTwips(places.barTop);
    const int lowerTop = pixelsFromTwips(places.lowerTop);
    const int end = pixelsFromTwips(m_columnTwips);
    upper.setGeometry(0, 0, width, barTop);
    bar.setGeometry(0, barTop, width, lowerTop - barTop);
    lower.setGeometry(0, lowerTop, width, end - lowerTop);
}

int frmMain::selectedUpdateRow() const
{
    return m_updates->selectedRow();
}

QString frmMain::caption() const
{
    return m_caption->text();
}

void frmMain::setCaption(const QString& text)
{
    m_caption->setText(text);
}

void frmMain::showCount(int count)
{
    m_count->setText(QString::number(count));
}

void frmMain::enableExitButton()
{
    m_winState[1]->setEnabled(true);
}

bool frmMain::showsPage() const
{
    return m_browser->x() == 0;
}

void frmMain::mnuRaw()
{
    if (showsPage()) {
        m_browser->move(pixelsFromTwips(browserParkedTwips), 0);
        setStatus(QString::number(m_picMain->width()));
    } else {
        m_browser->move(0, 0);
        m_browser->raise();
        setStatus(u"Raw XML"_s);
    }
}

void frmMain::setPage(const std::optional<QString>& text)
{
    m_browser->setPlainText(text.value_or(QString()));
}

bool frmMain::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_info && event->type() == QEvent::MouseButtonRelease &&
        static_cast<QMouseEvent*>(event)->button() == Qt::LeftButton) {
        m_info->setText(m_info->text().remove(u'.'));
        return false;
    }
    const bool left = watched == m_barLeft;
    if (!left && watched != m_barMain)
        return ShapedWindow::eventFilter(watched, event);
    if (event->type() == QEvent::MouseMove) {
        const auto* mouse = static_cast<QMouseEvent*>(event);
        if ((mouse->buttons() & Qt::LeftButton) != 0)
            (left ? m_barLeftTop : m_barMainTop) += twipsFromPixels(mouse->position().y());
    } else if (event->type() != QEvent::MouseButtonRelease) {
        return false;
    }
    if (left)
        Splitbar_Left();
    else
        Splitbar_Main();
    return true;
}

void frmMain::closeEvent(QCloseEvent* event)
{
    event->ignore();
    if (event->spontaneous())
        Q_EMIT closedByDesktop();
    else
        Q_EMIT exitRequested();
}

void frmMain::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::RightButton)
        Q_EMIT mnuMenuWanted(event->globalPosition().toPoint());
}

} // namespace varnhold
