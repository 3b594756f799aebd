#include "app/frmMenu.h"

#include "state/Sounds.h"

#include <QAction>
#include <QMenu>

namespace varnhold {

using namespace Qt::StringLiterals;

frmMenu::frmMenu(Sounds& sounds)
    : m_sounds(sounds), m_mnuMenu(addMenu("mnuMenu")), m_mnuLView(addMenu("mnuLView"))
{
    setObjectName("frmMenu"_L1);
    addEntry(*m_mnuMenu, "mnuSettings", u"Settings"_s, &frmMenu::mnuSettings_Click);
    m_mnuMenu->addSeparator()->setObjectName("line001"_L1);
    addEntry(*m_mnuMenu, "mnuWebOpen", u"Open Web"_s, &frmMenu::mnuWebOpen_Click);
    addEntry(*m_mnuMenu, "mnuRaw", u"Raw"_s, &frmMenu::mnuRaw_Click);
    m_mnuMenu->addSeparator()->setObjectName("line002"_L1);
    addEntry(*m_mnuMenu, "mnuExit", u"Exit"_s, &frmMenu::mnuExit_Click);
    addEntry(*m_mnuLView, "mnuDLoad", u"Download"_s, &frmMenu::mnuDLoad_Click);
}

QMenu* frmMenu::addMenu(const char* name)
{
    auto* menu = new QMenu(this);
    menu->setObjectName(QLatin1StringView(name));
    return menu;
}

void frmMenu::addEntry(QMenu& menu, const char* name, const QString& caption, void (frmMenu::*signal)())
{
    QAction* entry = menu.addAction(caption);
    entry->setObjectName(QLatin1StringView(name));
    connect(entry, &QAction::triggered, this, signal);
}

void frmMenu::popUp_mnuMenu(const QPoint& globalPosition)
{
    popUp(*m_mnuMenu, globalPosition);
}

void frmMenu::popUp_mnuLView(const QPoint& globalPosition)
{
    popUp(*m_mnuLView, globalPosition);
}

void frmMenu::popUp(QMenu& menu, const QPoint& globalPosition)
{
    m_sounds.play(Sound::Menu);
    menu.popup(globalPosition);
}

} // namespace varnhold
