#include "app/BatchOnWindows.h"

#include "app/main/UpdateListView.h"
#include "app/main/frmMain.h"
#include "app/menu/frmMenu.h"
#include "controls/MorphListBox/MorphListBox.h"

#include <QAction>
#include <QEvent>

#include <algorithm>

namespace varnhold {

using namespace Qt::StringLiterals;

BatchOnWindows::BatchOnWindows(frmMain& main, frmMenu& menu)
    : m_main(main), m_menu(menu), m_timer(new QTimer(&menu))
{
    constexpr int interval = 1000;
    m_timer->setObjectName("tmr_Auto"_L1);
    m_timer->setInterval(interval);
    main.games().installEventFilter(this);
    main.updates().installEventFilter(this);
    main.updates().viewport()->installEventFilter(this);
}

void BatchOnWindows::onTick(std::function<void()> action)
{
    connect(m_timer, &QTimer::timeout, this, std::move(action));
}

void BatchOnWindows::end()
{
    m_ending = true;
    m_timer->stop();
}

void BatchOnWindows::lockLists(bool locked)
{
    const std::array<QWidget*, 2> lists{&m_main.games(), &m_main.updates()};
    if (locked) {
        m_focusBefore = m_main.focusWidget();
        // The toolkit would hand the focus of a locked list to the id box, where Enter empties the queue.
        if (std::ranges::find(lists, m_focusBefore.data()) != lists.end())
            m_main.setFocus();
        else
            m_focusBefore.clear();
    }
    m_main.games().setEnabled(!locked);
    m_main.updates().setEnabled(!locked);
    if (!locked && m_focusBefore && m_main.focusWidget() == &m_main)
        m_focusBefore->setFocus();
}

void BatchOnWindows::showCheckBoxEntries(bool shown)
{
    for (const QString& name : {u"line005"_s, u"mnuLVSelectAll"_s, u"mnuLVSelectNone"_s, u"mnuChkDLoad"_s})
        m_menu.entry(name).setVisible(shown);
    m_menu.entry(u"mnuLVCheckBxs"_s).setChecked(shown);
    m_menu.menu_ImgCheck();
}

void BatchOnWindows::fitColumns()
{
    m_main.updates().autosizeColumns();
}

void BatchOnWindows::showStatus(const QString& text)
{
    m_main.setStatus(text);
}

void BatchOnWindows::bringIntoView(int row)
{
    UpdateListView& view = m_main.updates();
    view.scrollTo(view.model()->index(row - 1, 0));
}

void BatchOnWindows::hideSearch()
{
    if (m_hideSearch)
        m_hideSearch();
}

void BatchOnWindows::runTimer(bool on)
{
    if (on && !m_ending)
        m_timer->start();
    else
        m_timer->stop();
}

bool BatchOnWindows::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::ContextMenu:
        if (!m_main.updates().isEnabled())
            return true;
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace varnhold
