// How the main window is put together.

#include "app/main/CoverPanel.h"
#include "app/main/GameListInput.h"
#include "app/main/MainLayout.h"
#include "app/main/SplitColumn.h"
#include "app/main/UpdateListInput.h"
#include "app/main/UpdateListView.h"
#include "app/main/frmMain.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/DesignValues.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "controls/XP_ProgressBar/ListProgress.h"
#include "controls/XP_ProgressBar/XP_ProgressBar.h"
#include "covers/CoverBox.h"
#include "gamedb/NotesBox.h"
#include "lookup/GameIdBox.h"
#include "platform/DroppedText.h"
#include "platform/ElidedLabel.h"
#include "platform/PictureBox.h"
#include "platform/Twips.h"
#include "state/Sounds.h"

#include <QCoreApplication>
#include <QLabel>
#include <QPlainTextEdit>

namespace varnhold {

using namespace Qt::StringLiterals;

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

ElidedLabel* frmMain::addLabel(const char* name, const QString& description)
{
    auto* label = new ElidedLabel(this);
    label->setObjectName(QLatin1StringView(name));
    label->setAccessibleDescription(description); // its name is its text
    return label;
}

void frmMain::buildCaption()
{
    // Labels first: they lie below the buttons where they overlap.
    m_caption = addLabel("lblCaption", tr("Window name"));
    m_caption->setText(QCoreApplication::applicationName());
    m_caption->setContentsMargins(10, 0, 0, 0); // it begins below btn_Tools(0)
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
            [](const QMimeData* dragged, int* effect) { *effect = offersText(*dragged) ? 1 : 0; });
    connect(m_fetch, &ButtonEx::OLEDragDrop, this, [this](const QMimeData* dropped) {
        if (offersText(*dropped))
            Q_EMIT textDropped(droppedText(*dropped));
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

    m_searchButton = addButton("btn_Tools(0)", u"Search"_s);
    m_searchButton->setGeometry(mainplaces::btn_Tools0);
    connect(m_searchButton, &ButtonEx::Click, this, &frmMain::searchRequested);
}

void frmMain::buildWindowButtons()
{
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
    m_games->setBorderWidth(0);     // the window draws the well
    m_games->setReadableText(true); // whatever theme and picture the user lays under it
    m_games->setSorted(false);      // List1 runs beside it, row by row
    QFont narrow = m_games->font();
    narrow.setStretch(QFont::SemiCondensed); // an id is to be read whole beside its icon and the bar
    m_games->setFont(narrow);
    m_picPreview = new CoverBox(m_picLeft);
    m_picPreview->setObjectName("PicPreview"_L1);
    m_picPreview->setAccessibleName(tr("Cover"));
    m_barLeft = new PictureBox(m_picLeft);
    m_barLeft->setObjectName("barLeft"_L1);
    m_barLeft->setAccessibleName(tr("Between games and cover"));
    m_games->setRowDescriptions([this](int row) { return m_titles.row(row); });
}

void frmMain::buildMainColumn()
{
    m_picMain = new PictureBox(this);
    m_picMain->setObjectName("picMain"_L1);
    m_updates = new UpdateListView(m_services.list, m_picMain);
    m_updates->setObjectName("ListView1"_L1);
    m_updates->setAccessibleName(tr("Updates"));
    m_notes = new NotesBox(m_picMain);
    m_notes->setObjectName("txtGameNotes"_L1);
    m_notes->setAccessibleName(tr("Notes"));
    m_notes->setLocked(true);
    m_notes->setTabChangesFocus(true);
    connect(m_notes, &NotesBox::linkActivated, this, &frmMain::linkActivated);
    m_barMain = new PictureBox(m_picMain);
    m_barMain->setObjectName("barMain"_L1);
    m_barMain->setAccessibleName(tr("Between updates and notes"));
    for (QFrame* const framed : std::initializer_list<QFrame*>{m_updates, m_notes})
        framed->setFrameShape(QFrame::NoFrame); // the window's picture draws the well
    m_imgPreview = new CoverBox(m_picMain);
    m_imgPreview->setObjectName("imgPreview"_L1);
    m_imgPreview->setAccessibleName(tr("Large cover"));
    m_imgPreview->setFocusPolicy(Qt::NoFocus);
    m_imgPreview->unsetCursor();
    m_imgPreview->hide();
    m_browser = new QPlainTextEdit(m_picMain);
    m_browser->setObjectName("WebBrowser1"_L1);
    m_browser->setAccessibleName(tr("Raw document"));
    m_browser->setFrameShape(QFrame::NoFrame);
    m_browser->setReadOnly(true);
    m_browser->setLineWrapMode(QPlainTextEdit::NoWrap);
    m_browser->setTabChangesFocus(true);
    m_browser->setFocusPolicy(Qt::ClickFocus); // while parked it takes no turn in the tab order
    m_browser->move(pixelsFromTwips(mainplaces::browserParkedTwips), 0);
}

void frmMain::buildFoot()
{
    m_status = addLabel("lblStatus", tr("Status"));
    m_status->setContentsMargins(8, 0, 4, 0);
    m_blank = addLabel("lblBlank", tr("Count"));
    m_progress = new XP_ProgressBar(this);
    m_progress->setObjectName("ProgressBar1"_L1);
    m_progress->setAccessibleName(tr("Progress"));
    m_progress->setScrolling(design::frmMain_ProgressBar1_Scrolling);
    m_progress->hide();
    m_listProgress = std::make_unique<ListProgress>(*m_progress);
    const auto addFootButton = [this](const char* name, const QString& text, const QString& toolTip,
                                      void (frmMain::*requested)()) {
        ButtonEx* const button = addButton(name, toolTip);
        button->setAccessibleName(text);
        connect(button, &ButtonEx::Click, this, requested);
        m_footButtons.push_back(button);
    };
    addFootButton("cmdView", u"View Notes"_s, u"View / Menu"_s, &frmMain::viewRequested);
    addFootButton("cmdClear", u"Clear Stuff"_s, u"Clear Stuff"_s, &frmMain::clearRequested);
    addFootButton("CmdAdd", u"Add DB Entry"_s, u"Add DB Entry"_s, &frmMain::addRequested);
    addFootButton("CmdDelete", u"Delete DB Entry"_s, u"Delete DB Entry"_s, &frmMain::deleteRequested);
    addFootButton("cmdEdit", u"Edit DB Entry"_s, u"Edit DB Entry"_s, &frmMain::editRequested);
    addFootButton("CmdNewRecord", u"New DB Entry"_s, u"New DB Entry"_s, &frmMain::newRecordRequested);
    addFootButton("CmdRefresh", u"Reload Database"_s, u"Reload Database"_s, &frmMain::refreshRequested);
    m_count = new QLabel(u"0"_s, this);
    m_count->setObjectName("lblCnt"_L1);
    m_count->setAccessibleDescription(tr("Open downloads"));
    m_count->setToolTip(tr("Open downloads"));
    m_count->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void frmMain::connectColumns()
{
    m_leftColumn = std::make_unique<SplitColumn>(*m_games, *m_barLeft, *m_picPreview, barLeftFloor);
    m_mainColumn = std::make_unique<SplitColumn>(*m_updates, *m_barMain, *m_notes, barMainFloor);
    for (SplitColumn* const column : {m_leftColumn.get(), m_mainColumn.get()})
        column->setBarTop(MainLayout::normal().columnTwips - splitBarHeight);
    connect(m_leftColumn.get(), &SplitColumn::barMoved, this, &frmMain::Splitbar_Left);
    connect(m_mainColumn.get(), &SplitColumn::barMoved, this, &frmMain::Splitbar_Main);

    m_cover = std::make_unique<CoverPanel>(
        CoverPanel::Parts{*m_picPreview, *m_imgPreview, {m_updates, m_barMain, m_notes}}, m_services.paths,
        m_services.sounds);
    connect(m_cover.get(), &CoverPanel::mnuImageWanted, this, &frmMain::mnuImageWanted);

    m_gameInput = std::make_unique<GameListInput>(*m_games, m_selection, *this);
    connect(m_gameInput.get(), &GameListInput::enterPressed, this, [this] {
        Q_EMIT fetchRequested(); // comes back when the lookup is over
        m_selection.loadEntry();
    });
    connect(m_gameInput.get(), &GameListInput::rowDoubleClicked, this, [this] {
        m_selection.loadEntry();
        Q_EMIT gameRowDoubleClicked();
    });
    connect(m_gameInput.get(), &GameListInput::menuWanted, this, &frmMain::mnuLBoxWanted);

    m_updateInput = std::make_unique<UpdateListInput>(*m_updates, m_services.list, m_services.sounds);
    connect(m_updateInput.get(), &UpdateListInput::menuWanted, this, &frmMain::mnuLViewWanted);
    connect(m_updateInput.get(), &UpdateListInput::rowActivated, this, &frmMain::updateRowActivated);
}

void frmMain::orderTabs()
{
    std::vector<QWidget*> order{m_btnFile,     m_settingsButton, m_searchButton, m_winState[0], m_winState[2],
                                m_winState[1], m_gameId,         m_fetch,        m_games,       m_barLeft,
                                m_picPreview,  m_updates,        m_barMain,      m_notes};
    order.insert(order.end(), m_footButtons.begin(), m_footButtons.end());
    for (std::size_t i = 1; i < order.size(); ++i)
        setTabOrder(order[i - 1], order[i]);
}

} // namespace varnhold
