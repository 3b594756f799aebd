#include "search/frmSearch.h"

#include "appearance/ButtonSigns.h"
#include "controls/ButtonEx/ButtonEx.h"
#include "controls/XP_ProgressBar/ListProgress.h"
#include "platform/ElidedLabel.h"
#include "platform/HandCursors.h"
#include "platform/PictureBox.h"
#include "platform/ToolTipText.h"
#include "platform/Twips.h"
#include "platform/Wayland.h"
#include "search/ResultList.h"
#include "search/SearchLayout.h"

#include <QCloseEvent>
#include <QContextMenuEvent>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMouseEvent>
#include <QScrollBar>
#include <QToolTip>

#include <algorithm>

namespace varnhold {

using namespace Qt::StringLiterals;
namespace places = searchplaces;

namespace {

constexpr int paintInterval = 50; // ms
constexpr int keyStep = 8;        // pixels

} // namespace

QString frmSearch::Choice::text() const
{
    return texts.at(bar->value() - 1);
}

void frmSearch::showSearch()
{
    enableSearch(true);
    enableImport(true);
    setCaption(u"Search - "_s);
    m_text->setText(u"SEARCH"_s);
    const bool wasImport = !m_importPanel->isHidden();
    m_importPanel->hide();
    m_searchPanel->show();
    m_optionsButton->show();
    m_choicesShown->show();
    showOptions(!m_optionsPanel->isHidden());
    if (wasImport)
        sVertical_Bar(twipsFromPixels(places::firstSplit));
    m_text->setFocus();
}

void frmSearch::showImport()
{
    enableSearch(true);
    enableImport(true);
    setCaption(u"Import: "_s);
    m_searchPanel->hide();
    m_optionsPanel->hide();
    m_optionsButton->hide(); // its panel has no room here
    m_choicesShown->hide();
    m_importPanel->show();
    placeFrame(places::importListsTop, static_cast<int>(std::lround(places::importListsHeight)));
    sVertical_Bar(twipsFromPixels(m_frame->width() - places::splitWidth) - places::importNamesTwips);
    m_grab->setFocus();
}

void frmSearch::open(const QPoint& place)
{
    if (!isVisible() && !onWayland())
        move(place);
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

QString frmSearch::table() const
{
    return m_db[0].text();
}

int frmSearch::currentRow() const
{
    return m_lists[0]->currentIndex().row();
}

SearchQuery frmSearch::query() const
{
    return {.table = table(),
            .column = m_db[1].text(),
            .match = static_cast<SearchQuery::Match>(m_match.bar->value()),
            .descending = m_db[2].bar->value() == 2,
            .text = m_text->text()};
}

ListFormat frmSearch::format() const
{
    return {.left = m_margins[0]->value(), .right = m_margins[1]->value(), .split = m_split->text()};
}

void frmSearch::showBusy(bool busy)
{
    if (busy)
        setCursor(Qt::WaitCursor);
    else
        unsetCursor();
}

void frmSearch::enableSearch(bool enabled)
{
    m_searchPanel->setEnabled(enabled);
}

void frmSearch::enableImport(bool enabled)
{
    m_importPanel->setEnabled(enabled);
}

void frmSearch::showProgress(int maximum)
{
    m_progress->setMaximum(maximum);
    m_progress->show(0);
    m_walkShown.start();
}

void frmSearch::setProgress(int value)
{
    m_progress->setValue(value);
}

void frmSearch::hideProgress()
{
    m_progress->show(0);
    m_progress->hide();
}

void frmSearch::selectRow(int row)
{
    if (row < 0 || row >= m_services.results.count())
        return;
    for (QListView* const list : m_lists) {
        if (list->currentIndex().row() != row)
            list->setCurrentIndex(m_services.results.index(row, list->modelColumn()));
    }
}

void frmSearch::walkTo(int row)
{
    setProgress(row);
    if (m_walkShown.elapsed() < paintInterval)
        return;
    selectRow(row);
    m_frame->repaint();
    m_walkShown.start();
}

QString frmSearch::caption() const
{
    return m_caption->text();
}

void frmSearch::setCaption(const QString& text)
{
    m_caption->setText(text);
    setWindowTitle(text);
}

void frmSearch::setImportCaption(const QString& text)
{
    m_importCaption->setText(text);
    m_importPanel->setAccessibleName(text);
}

void frmSearch::showFile(const QString& title, const QString& path)
{
    m_file->setText(title);
    m_file->setCursorPosition(0);
    m_file->setToolTip(toolTipText(path));
}

void frmSearch::focusImport()
{
    m_import->setFocus();
}

void frmSearch::showOptions(bool shown)
{
    m_optionsPanel->setVisible(shown);
    m_optionsButton->setProperty("open", shown);
    drawButtonSign(*m_optionsButton);
    const int top = shown ? places::listsTopBelowOptions : places::listsTop;
    placeFrame(top, places::listsBottom - top);
}

/// What the bars say, beside each and, for when they are out of sight, in the strip above.
void frmSearch::showChoices()
{
    QStringList texts;
    for (const Choice& choice : {m_match, m_db[0], m_db[1], m_db[2]}) {
        if (choice.bar == nullptr)
            return;
        choice.label->setText(choice.text());
        choice.bar->setAccessibleDescription(choice.text());
        texts.append(choice.text());
    }
    m_choicesShown->setText(texts.join(u"  ·  "_s));
}

void frmSearch::placeFrame(int top, int height)
{
    m_frame->setGeometry(places::listsLeft, top, places::listsWidth, height);
    sVertical_Bar(m_splitterLeft);
}

void frmSearch::sVertical_Bar(double leftTwips)
{
    const double most = twipsFromPixels(m_frame->width()) - places::splitEndTwips;
    m_splitterLeft = std::max(places::leastSplitTwips, std::min(leftTwips, most));
    const int left = pixelsFromTwips(m_splitterLeft);
    const int right = left + places::splitWidth;
    m_lists[0]->setGeometry(0, 0, left, m_frame->height());
    m_splitter->setGeometry(left, 0, places::splitWidth, m_frame->height());
    m_lists[1]->setGeometry(right, 0, m_frame->width() - right, m_frame->height());
}

void frmSearch::hover(QListView& list, const QPoint& position)
{
    const QModelIndex row = list.indexAt(position);
    if (!row.isValid()) {
        list.viewport()->setToolTip({});
        list.viewport()->unsetCursor();
        return;
    }
    // Without a scroll, which would bring another row under the pointer.
    for (QListView* const each : m_lists) {
        const QSignalBlocker still(each->verticalScrollBar());
        each->selectionModel()->setCurrentIndex(m_services.results.index(row.row(), each->modelColumn()),
                                                QItemSelectionModel::ClearAndSelect);
    }
    list.viewport()->setCursor(imgCurser(2));
    list.viewport()->setToolTip(toolTipText(m_services.results.label(row.row())));
}

void frmSearch::openMenu(QListView& list, const QContextMenuEvent& wanted)
{
    if (wanted.reason() == QContextMenuEvent::Keyboard) {
        const QModelIndex row = list.currentIndex();
        Q_EMIT mnuSrchWanted(row.row(), list.viewport()->mapToGlobal(list.visualRect(row).bottomLeft()));
        return;
    }
    const QPoint position = list.viewport()->mapFromGlobal(wanted.globalPos());
    Q_EMIT mnuSrchWanted(list.indexAt(position).row(), wanted.globalPos());
}

bool frmSearch::filterList(QListView& list, bool onViewport, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseMove:
        if (onViewport && static_cast<QMouseEvent*>(event)->buttons() == Qt::NoButton)
            hover(list, static_cast<QMouseEvent*>(event)->position().toPoint());
        return false;
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (onViewport || (key != Qt::Key_Return && key != Qt::Key_Enter))
            return false;
        if (list.currentIndex().isValid())
            Q_EMIT resultChosen(list.currentIndex().row());
        return true;
    }
    case QEvent::ContextMenu:
        openMenu(list, *static_cast<QContextMenuEvent*>(event));
        return true;
    default:
        return false;
    }
}

bool frmSearch::filterBar(QEvent* event)
{
    if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key != Qt::Key_Left && key != Qt::Key_Right)
            return false;
        sVertical_Bar(m_splitterLeft + twipsFromPixels(key == Qt::Key_Left ? -keyStep : keyStep));
        return true;
    }
    if (event->type() != QEvent::MouseMove)
        return false;
    const auto* mouse = static_cast<QMouseEvent*>(event);
    if ((mouse->buttons() & Qt::LeftButton) != 0)
        sVertical_Bar(m_splitterLeft + twipsFromPixels(mouse->position().x() - places::splitWidth / 2.0));
    return true;
}

bool frmSearch::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_text) {
        if (event->type() == QEvent::MouseButtonPress && m_text->text() == u"SEARCH")
            m_text->clear();
    } else if (watched == m_splitter) {
        return filterBar(event);
    } else {
        for (QListView* const list : m_lists) {
            if (list != nullptr && (watched == list || watched == list->viewport()))
                return filterList(*list, watched != list, event);
        }
    }
    return ShapedWindow::eventFilter(watched, event);
}

void frmSearch::closeEvent(QCloseEvent* event)
{
    event->ignore();
    hide();
}

} // namespace varnhold
