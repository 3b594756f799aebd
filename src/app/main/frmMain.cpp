#include "app/main/frmMain.h"

#include "app/main/CoverPanel.h"
#include "app/main/GameListInput.h"
#include "app/main/MainLayout.h"
#include "app/main/SplitColumn.h"
#include "app/main/UpdateListInput.h"
#include "app/main/UpdateListView.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "controls/XP_ProgressBar/ListProgress.h"
#include "controls/XP_ProgressBar/XP_ProgressBar.h"
#include "gamedb/NotesBox.h"
#include "lookup/GameIdBox.h"
#include "platform/CaptionDrag.h"
#include "platform/ElidedLabel.h"
#include "platform/Twips.h"
#include "platform/Wayland.h"
#include "state/ApplicationState.h"
#include "state/Settings.h"
#include "state/Sounds.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QCoreApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPlainTextEdit>

namespace varnhold {

using namespace Qt::StringLiterals;

frmMain::frmMain(const Services& services)
    : ShapedWindow(nullptr),
      m_services(services),
      m_covers(services.settings),
      m_selection({services.state, services.settings, m_covers, services.list, services.sounds, *this, *this})
{
    setObjectName("frmMain"_L1);
    setWindowTitle(QCoreApplication::applicationName());
    m_drag = std::make_unique<CaptionDrag>(
        *this, m_services.screen,
        CaptionDrag::Hooks{
            .store = [this](double left, double top) { m_services.settings.writePosition(left, top); },
            .snaps = [this] { return m_services.settings.isChecked(Check::Edge); },
            .keepWorkArea = [this](const WorkArea& area) { m_services.state.workArea = area; }});
    buildCaption();
    buildWindowButtons();
    buildLeftColumn();
    buildMainColumn();
    buildFoot();
    for (ElidedLabel* label : {m_caption, m_info, m_status, m_blank})
        m_drag->addHandle(*label);
    m_info->installEventFilter(this);
    connectColumns();
    applyLayout(MainLayout::normal(), 1);
    orderTabs();
    m_gameId->setFocus();
}

frmMain::~frmMain() = default;

void frmMain::applyLayout(const MainLayout& layout, int number)
{
    setFixedSize(layout.window);
    for (int i = 0; i < 3; ++i)
        m_winState[i]->setGeometry(layout.winState[i]);
    m_caption->setGeometry(layout.lblCaption);
    m_info->setGeometry(layout.lblInfo);
    m_status->setGeometry(layout.lblStatus);
    m_blank->setGeometry(layout.lblBlank);
    m_progress->setGeometry(layout.lblBlank);
    m_count->setGeometry(layout.lblCnt);
    for (const FootButton& place : layout.footButtons) {
        if (auto* const button =
                findChild<ButtonEx*>(QLatin1StringView(place.name), Qt::FindDirectChildrenOnly))
            button->setGeometry(place.left, layout.footTop, footButtonSize.width(), footButtonSize.height());
    }
    m_picLeft->setGeometry(layout.picLeft);
    m_picMain->setGeometry(layout.picMain);
    const QSize inner = layout.picMain.size();
    m_browser->resize(inner);
    m_leftColumn->setSize(layout.picLeft.width(), layout.columnTwips);
    m_leftColumn->lay();
    m_mainColumn->setSize(inner.width(), layout.columnTwips);
    m_mainColumn->lay();
    m_cover->refit();
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
    if (number != 2 || !takesPictures(2))
        return;
    applyLayout(MainLayout::enlarged(), 2);
    if (!onWayland()) {
        m_placeBefore = pos();
        m_placeEnlarged = placeAtStart(pos(), true, m_services.screen.screens());
        move(m_placeEnlarged);
    }
}

bool frmMain::takesPictures(int number) const
{
    return !m_layoutPictures || m_layoutPictures(number);
}

void frmMain::EnlargeMainWindow()
{
    if (!takesPictures(2))
        return;
    // A change of skin comes this way too, with a window that is large already.
    const bool grows = layoutNumber() == 1;
    const QRect before(pos(), size());
    applyLayout(MainLayout::enlarged(), 2);
    if (grows && !onWayland()) {
        m_placeBefore = before.topLeft();
        m_placeEnlarged = placeEnlarged(before, size(), m_services.screen.workArea());
        move(m_placeEnlarged);
    }
    m_services.settings.writeLayout(2);
    Splitbar_Left();
    Splitbar_Main();
}

void frmMain::RestoreMainWindow()
{
    if (!takesPictures(1))
        return;
    applyLayout(MainLayout::normal(), 1);
    // Back to where it was, unless the user has moved it meanwhile.
    if (m_placeBefore && m_placeEnlarged == pos())
        move(*m_placeBefore);
    m_placeBefore.reset();
    m_services.settings.writeLayout(1);
    Splitbar_Left();
    Splitbar_Main();
}

void frmMain::setBarLeftTop(double twips)
{
    m_leftColumn->setBarTop(twips);
}

void frmMain::setBarMainTop(double twips)
{
    m_mainColumn->setBarTop(twips);
}

void frmMain::Splitbar_Left()
{
    m_leftColumn->lay();
    m_games->setTopIndex(0);
    m_games->Refresh();
    m_services.settings.writeBarLeft(m_leftColumn->barTop());
}

void frmMain::Splitbar_Main()
{
    m_mainColumn->lay();
    m_updates->scrollToTop();
    m_services.settings.writeBarMain(m_mainColumn->barTop());
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

void frmMain::createToolTip()
{
    m_updateInput->createToolTip(*this);
}

void frmMain::setTipColors(ColorValue fore, ColorValue back)
{
    m_updateInput->setTipColors(fore, back);
}

void frmMain::setTipTitle(std::function<QString()> title)
{
    m_updateInput->setTipTitle(std::move(title));
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
        m_browser->move(pixelsFromTwips(mainplaces::browserParkedTwips), 0);
        setStatus(QString::number(int(twipsFromPixels(m_picMain->width()))));
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
    }
    return ShapedWindow::eventFilter(watched, event);
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

void frmMain::contextMenuEvent(QContextMenuEvent* event)
{
    // With the mouse the menu opens when the button comes up.
    if (event->reason() == QContextMenuEvent::Keyboard)
        Q_EMIT mnuMenuWanted(m_btnFile->mapToGlobal(QPoint(0, m_btnFile->height())));
}

} // namespace varnhold
