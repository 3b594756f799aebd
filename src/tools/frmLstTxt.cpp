#include "tools/frmLstTxt.h"

#include "controls/CTooltip/CTooltip.h"
#include "controls/ReadableColor.h"
#include "controls/SystemColorsUi.h"
#include "platform/Accessible.h"
#include "platform/Clipboard.h"
#include "platform/ElidedLabel.h"
#include "platform/MessageBoxes.h"
#include "platform/ShapedWindow.h"
#include "platform/Shell.h"
#include "platform/ToolTipText.h"
#include "platform/Wayland.h"
#include "state/ErrorReport.h"
#include "state/Sounds.h"
#include "tools/GotoLine.h"
#include "tools/ReportBox.h"
#include "tools/ReportFile.h"
#include "tools/ReportHost.h"

#include <QCloseEvent>
#include <QFrame>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QStatusBar>
#include <QTimer>
#include <QVBoxLayout>

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

constexpr int grid = 4;
constexpr int margin = 8;
constexpr QSize smallest{380, 220};
constexpr int gameIdLength = 9;

enum Panel { IdPanel, NamePanel, LinePanel, ColumnPanel };

/// The toolkit would take "[*]" for its own mark.
QString windowTitleOf(QString text)
{
    return text.replace("[*]"_L1, "[*][*]"_L1);
}

} // namespace

frmLstTxt::frmLstTxt(const Services& services, ReportHost& host, const WindowPlace& main)
    : m_services(services), m_host(host)
{
    setObjectName("frmLstTxt"_L1);
    tellAssistiveTools(*this, {.role = QAccessible::Window});
    build();
    setAttribute(Qt::WA_QuitOnClose, false); // the program goes on without it
    setMinimumSize(smallest);
    const WindowPlace place = readReportPlace(
        services.file, main, {0, 0, smallest.width(), smallest.height()}, services.screen.screens());
    resize(place.width, place.height);
    if (!onWayland())
        move(place.x, place.y);
    m_balloon = new CTooltip(this);
    m_balloon->setStyle(1);
    m_balloon->setIcon(1);
}

void frmLstTxt::build()
{
    buildTools();
    m_box = new ReportBox(this);
    m_box->setObjectName("RTFbox"_L1);
    m_box->setAccessibleName(tr("Text"));
    m_box->setFrameShape(QFrame::NoFrame);
    m_list = new LinksView(m_links, m_services.pictureOf, this);
    m_list->setObjectName("lstVwLinks"_L1);
    m_list->setAccessibleName(tr("Saved links"));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->hide();

    m_status = new QStatusBar(this);
    m_status->setObjectName("StatusBar1"_L1);
    const QString names[] = {tr("Game ID"), tr("Game name"), tr("Line of the caret"),
                             tr("Column of the caret")};
    for (int i = 0; i < 4; ++i) {
        m_panels[i] = new ElidedLabel(m_status);
        m_panels[i]->setObjectName(u"StatusBar1(%1)"_s.arg(i + 1));
        m_panels[i]->setAccessibleDescription(names[i]);
        m_panels[i]->setTextFormat(Qt::PlainText);
        m_panels[i]->setContentsMargins(grid, 0, grid, 0);
        m_status->addWidget(m_panels[i], i == NamePanel ? 1 : 0);
    }
    m_panels[IdPanel]->setMinimumWidth(fontMetrics().horizontalAdvance(u"Record(s) 00000"_s) + 2 * grid);
    m_panels[LinePanel]->setMinimumWidth(fontMetrics().horizontalAdvance(u"Line: 000000"_s) + 2 * grid);
    m_panels[ColumnPanel]->setMinimumWidth(fontMetrics().horizontalAdvance(u"Col: 0000"_s) + 2 * grid);

    auto* all = new QVBoxLayout(this);
    all->setContentsMargins(0, 0, 0, 0);
    all->setSpacing(0);
    all->addWidget(m_tools);
    all->addWidget(m_box, 1);
    all->addWidget(m_list, 1);
    all->addWidget(m_status);

    m_follow = new QTimer(this);
    m_follow->setObjectName("Timer1"_L1);
    m_follow->setSingleShot(true);
    m_follow->setInterval(0);
    connect(m_follow, &QTimer::timeout, this, &frmLstTxt::Timer1_Timer);
    connect(m_box, &ReportBox::placeChanged, m_follow, qOverload<>(&QTimer::start));
    connect(m_box, &ReportBox::menuWanted, this,
            [this](const QPoint& place) { m_host.openReportMenu(place); });
    connect(m_list, &LinksView::menuWanted, this,
            [this](const QPoint& place) { m_host.openLinksMenu(place); });
    connect(m_list, &LinksView::rowHovered, this, &frmLstTxt::lstVwLinks_MouseMove);
    connect(m_list, &LinksView::rowActivated, this, &frmLstTxt::lstVwLinks_DblClick);
    // Later than the key itself, for a question follows.
    connect(m_list, &LinksView::deleteWanted, this, &frmLstTxt::mnuLinkDel_Click, Qt::QueuedConnection);
}

void frmLstTxt::buildTools()
{
    m_tools = new QFrame(this);
    m_tools->setObjectName("Frame1"_L1);
    auto* row = new QHBoxLayout(m_tools);
    row->setContentsMargins(margin, grid, margin, grid);
    row->setSpacing(grid);
    m_goto = addButton("Command1", tr("Goto"));
    m_line = new QLineEdit(m_tools);
    m_line->setObjectName("txtLine"_L1);
    m_line->setAccessibleName(tr("Line"));
    m_line->setFixedWidth(fontMetrics().horizontalAdvance(u"0000000000"_s) + 2 * margin);
    m_line->installEventFilter(this);
    row->addWidget(m_goto);
    row->addWidget(m_line);
    row->addStretch(1);
    QPushButton* const view = addButton("Command2", tr("View"));
    view->setToolTip(tr("Save the text and open it"));
    row->addWidget(view);
    row->addWidget(addButton("Command3", tr("Save"))); // drawn, and does nothing; meant
    QPushButton* const help = addButton("Command4", tr("Help"));
    row->addWidget(help);

    const auto nameLine = [this] {
        m_goto->setToolTip(toolTipText(u"Goto Line: "_s + m_line->text()));
        m_line->setToolTip(toolTipText(u"ENTER: "_s + m_line->text()));
    };
    nameLine();
    connect(m_line, &QLineEdit::textChanged, this, nameLine);
    connect(m_goto, &QPushButton::clicked, this, &frmLstTxt::Command1_Click);
    connect(view, &QPushButton::clicked, this, &frmLstTxt::Command2_Click);
    connect(help, &QPushButton::clicked, this, &frmLstTxt::Command4_Click);
}

QPushButton* frmLstTxt::addButton(const char* name, const QString& caption)
{
    auto* button = new QPushButton(caption, m_tools);
    button->setObjectName(QLatin1StringView(name));
    button->setAutoDefault(true);
    return button;
}

void frmLstTxt::showReport(const ReportTitle& title, const QString& text)
{
    showFace(Face::Report, title.name);
    m_box->setReport(reportContents(text));
    nameTitle(title);
    comeToFront();
    m_box->setFocus();
}

void frmLstTxt::showNotes(const ReportTitle& title, const QString& rtf, ColorValue fore, ColorValue ground)
{
    showFace(Face::Notes, title.name);
    nameTitle(title);
    m_box->setLocked(false);
    if (!rtf.isEmpty()) {
        QPalette palette = m_box->palette();
        palette.setColor(QPalette::Base, toQColor(ground));
        palette.setColor(QPalette::Text, toQColor(readableOn(fore, ground)));
        m_box->setPalette(palette);
    }
    m_box->setTextRTF(rtf);
    m_box->moveCursor(QTextCursor::End);
    comeToFront();
    m_box->setFocus();
}

void frmLstTxt::showLinks(std::vector<LinkRow> rows, const QString& heading)
{
    const QString count = u"Record(s) "_s + QString::number(rows.size());
    m_links.setRows(std::move(rows));
    m_list->autosizeColumns();
    showFace(Face::Links, heading);
    nameTitle({count, {}});
    setToolTip({});
    comeToFront();
    m_list->setFocus();
}

void frmLstTxt::showFace(Face face, const QString& title)
{
    m_face = face;
    m_tools->setVisible(face == Face::Report);
    m_host.markTools(face == Face::Report);
    m_box->setVisible(face != Face::Links);
    m_list->setVisible(face == Face::Links);
    m_panels[LinePanel]->setVisible(face != Face::Links);
    m_panels[ColumnPanel]->setVisible(face != Face::Links);
    lstVwLinks_MouseMove(-1);
    setWindowTitle(windowTitleOf(title));
}

void frmLstTxt::nameTitle(const ReportTitle& title)
{
    m_panels[IdPanel]->setText(title.gameId);
    m_panels[IdPanel]->setToolTip(toolTipText(title.gameId));
    m_panels[NamePanel]->setText(title.name);
    m_panels[NamePanel]->setToolTip(toolTipText(title.name));
    setToolTip(toolTipText(title.gameId + u"-["_s + title.name + u']'));
}

void frmLstTxt::comeToFront()
{
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void frmLstTxt::unload()
{
    if (m_isUnloaded)
        return;
    m_isUnloaded = true;
    m_balloon->Destroy();
    writeReportPlace(m_services.file, currentPlace(), !onWayland());
    m_host.markTools(false);
    hide();
    m_host.unloaded();
}

WindowPlace frmLstTxt::currentPlace() const
{
    const QRect inside = isMaximized() || isFullScreen() ? normalGeometry() : geometry();
    const QPoint corner = inside.topLeft() - (geometry().topLeft() - frameGeometry().topLeft());
    return {corner.x(), corner.y(), inside.width(), inside.height()};
}

void frmLstTxt::closeEvent(QCloseEvent* event)
{
    event->ignore(); // it hides itself, and is deleted later
    unload();
}

bool frmLstTxt::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_line && event->type() == QEvent::KeyPress)
        return txtLine_KeyPress(*static_cast<QKeyEvent*>(event));
    return QWidget::eventFilter(watched, event);
}

void frmLstTxt::mnuLTTools_Click()
{
    if (m_face != Face::Report)
        return;
    m_tools->setVisible(m_tools->isHidden());
    m_host.markTools(!m_tools->isHidden());
}

void frmLstTxt::edit(Edit command)
{
    m_box->setFocus();
    switch (command) {
    case Edit::Undo:
        m_box->undo();
        break;
    case Edit::Cut:
        m_box->cut();
        break;
    case Edit::Copy:
        m_box->copy();
        break;
    case Edit::Paste:
        m_box->paste();
        break;
    case Edit::Delete:
        m_box->edit([](QTextCursor& selection) { selection.removeSelectedText(); });
        break;
    case Edit::SelectAll:
        m_box->selectAll();
        break;
    }
}

const LinkRow* frmLstTxt::selectedLink() const
{
    const int row = m_list->selectedRow();
    return row < 0 ? nullptr : &m_links.row(row);
}

void frmLstTxt::mnuLstVwRS_Click()
{
    if (const LinkRow* const link = selectedLink())
        m_services.clipboard.setText(linkRowText(*link));
}

void frmLstTxt::mnuLstVwCpy_Click()
{
    if (const LinkRow* const link = selectedLink())
        m_services.clipboard.setText((*link)[LinkRow::Url]);
}

void frmLstTxt::mnuLinkDel_Click()
{
    const LinkRow* const selected = selectedLink();
    if (selected == nullptr)
        return;
    const LinkRow link = *selected;
    // Other rows may have come while the question stood, and the window may be gone.
    const QPersistentModelIndex place(m_links.index(m_list->selectedRow(), 0));
    m_host.deleteLink(link, [this, place] {
        if (!place.isValid())
            return;
        lstVwLinks_MouseMove(-1);
        m_links.removeRow(place.row());
    });
}

void frmLstTxt::Command1_Click()
{
    m_box->goTo(GotoLine::from(m_line->text()));
}

void frmLstTxt::Command2_Click()
{
    if (m_box->plainText().isEmpty())
        return;
    m_services.sounds.play(Sound::Click);
    QString path;
    const bool isSaved = reporting(m_services.boxes, DescriptionLabel::WithBlank, [&] {
        path = reportPath(m_services.paths, m_panels[IdPanel]->text());
        m_box->blacken();
        saveReport(path, m_box->contents());
    });
    if (!isSaved)
        return;
    m_services.shell.open(path);
    fadeOut();
    unload();
    m_host.bringMainToFront();
}

void frmLstTxt::fadeOut()
{
    for (int opacity = 254; opacity >= 0; --opacity)
        SetFadeOpacity(opacity, *this);
}

void frmLstTxt::Command4_Click()
{
    constexpr int lines = 8;
    const QStringList text(lines, u"Reserved...................."_s);
    m_services.boxes.show({text.join(u"\r\n"_s), u"List>Text Help"_s, BoxIcon::Information, BoxButtons::Ok});
}

/// True for a key that is swallowed.
bool frmLstTxt::txtLine_KeyPress(const QKeyEvent& event)
{
    if (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter) {
        Command1_Click();
        return true;
    }
    constexpr auto commands = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    const QString text = event.text();
    if ((event.modifiers() & commands) != Qt::NoModifier || text.isEmpty() || !text.front().isPrint())
        return false;
    if (text.front() >= u'0' && text.front() <= u'9')
        return false;
    m_services.boxes.show({u"Invalid Character.\rPlease enter 0-9"_s, m_services.applicationTitle,
                           BoxIcon::None, BoxButtons::Ok});
    return true;
}

void frmLstTxt::Timer1_Timer()
{
    const ReportBox::Place place = m_box->caretPlace();
    m_panels[LinePanel]->setText(u"Line: "_s + QString::number(place.line));
    m_panels[ColumnPanel]->setText(u"Col: "_s + QString::number(place.column));
}

void frmLstTxt::lstVwLinks_MouseMove(int row)
{
    if (row == m_balloonRow || m_balloon == nullptr)
        return;
    m_balloonRow = row;
    m_balloon->Destroy();
    if (row < 0)
        return;
    const LinkRow& link = m_links.row(row);
    const std::array<ColorValue, 2> colors = m_host.balloonColors();
    m_balloon->setForeColor(colors[0]);
    m_balloon->setBackColor(colors[1]);
    m_balloon->setTitle(link[LinkRow::Name]);
    m_balloon->setTipText(linkTip(link));
    m_balloon->Create(m_list->viewport());
}

void frmLstTxt::lstVwLinks_DblClick(int row)
{
    m_services.sounds.play(Sound::Click);
    // Later than the click itself: the lookup pumps, and this window may be closed meanwhile.
    QMetaObject::invokeMethod(
        this,
        [this, link = m_links.row(row)] {
            m_host.loadTitle(link[LinkRow::GameId].left(gameIdLength), link[LinkRow::Name]);
        },
        Qt::QueuedConnection);
}

} // namespace varnhold
