#include "app/menu/frmMenu.h"

#include "appearance/SkinCatalogue.h"
#include "state/Sounds.h"

#include <QAction>
#include <QLabel>
#include <QMenu>

namespace varnhold {

using namespace Qt::StringLiterals;

frmMenu::frmMenu(Sounds& sounds)
    : m_sounds(sounds),
      m_mnuMenu(addMenu("mnuMenu")),
      m_mnuLBox(addMenu("mnuLBox")),
      m_mnuLView(addMenu("mnuLView")),
      m_mnuSkins(addMenu("mnuSkins")),
      m_mnuImage(addMenu("mnuImage")),
      m_mnuLBIcons(m_mnuLBox->addAction(u"Icons"_s)),
      m_imgBlank(new QLabel(this))
{
    setObjectName("frmMenu"_L1);
    addEntry(*m_mnuMenu, "mnuSettings", u"Settings"_s, &frmMenu::mnuSettings_Click);
    m_mnuMenu->addSeparator()->setObjectName("line001"_L1);
    addEntry(*m_mnuMenu, "mnuWebOpen", u"Open Web"_s, &frmMenu::mnuWebOpen_Click);
    addEntry(*m_mnuMenu, "mnuRaw", u"Raw"_s, &frmMenu::mnuRaw_Click);
    m_mnuMenu->addSeparator()->setObjectName("line002"_L1);
    addEntry(*m_mnuMenu, "mnuExit", u"Exit"_s, &frmMenu::mnuExit_Click);
    m_mnuLBIcons->setObjectName("mnuLBIcons"_L1);
    m_mnuLBIcons->setCheckable(true);
    connect(m_mnuLBIcons, &QAction::triggered, this, [this](bool checked) {
        m_mnuLBIcons->setChecked(!checked); // the routine that follows decides
        Q_EMIT mnuLBIcons_Click();
    });
    addEntry(*m_mnuLView, "mnuDLoad", u"Download"_s, &frmMenu::mnuDLoad_Click);
    addEntry(*m_mnuSkins, "mnuSkinDL", u"Download"_s, &frmMenu::mnuSkinDL_Click);
    addEntry(*m_mnuSkins, "mnuSkin_Refresh", u"Refresh"_s, &frmMenu::mnuSkin_Refresh_Click);
    addEntry(*m_mnuSkins, "mnuSkin_Path", u"Skin Path"_s, &frmMenu::mnuSkin_Path_Click);
    QAction* const design = m_mnuSkins->addAction(u"-"_s); // the array's own entry, from its design
    design->setObjectName("mnuSkin(0)"_L1);
    design->setVisible(false);
    addEntry(*m_mnuImage, "mnuImageView", u"View"_s, &frmMenu::mnuImageView_Click);
    m_mnuImage->addSeparator()->setObjectName("space000001"_L1);
    addEntry(*m_mnuImage, "mnuImageExplore", u"Explore"_s, &frmMenu::mnuImageExplore_Click);
    addEntry(*m_mnuImage, "mnuImageOpen", u"Open"_s, &frmMenu::mnuImageOpen_Click);
    m_imgBlank->setObjectName("imgBlank"_L1);
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

void frmMenu::popUp_mnuLBox(const QPoint& globalPosition)
{
    popUp(*m_mnuLBox, globalPosition);
}

void frmMenu::popUp_mnuImage(const QPoint& globalPosition)
{
    popUp(*m_mnuImage, globalPosition);
}

void frmMenu::popUp_mnuLView(const QPoint& globalPosition)
{
    m_mnuLView->popup(globalPosition); // the list sounds when the button is released
}

bool frmMenu::iconsEntryChecked() const
{
    return m_mnuLBIcons->isChecked();
}

void frmMenu::checkIconsEntry(bool checked)
{
    m_mnuLBIcons->setChecked(checked);
}

void frmMenu::popUp_mnuSkins(const QPoint& globalPosition)
{
    m_mnuSkins->popup(globalPosition);
}

void frmMenu::fill_mnuSkin(const SkinCatalogue& catalogue)
{
    for (QAction* const entry : m_skinEntries)
        delete entry;
    m_skinEntries.clear();
    for (const SkinCatalogue::Entry& skin : catalogue.entries()) {
        const int index = static_cast<int>(m_skinEntries.size()) + 1;
        // A folder's "&" is no mnemonic.
        QAction* const entry = m_mnuSkins->addAction(QString(skin.caption).replace(u'&', u"&&"_s));
        entry->setObjectName(u"mnuSkin(%1)"_s.arg(index));
        // Queued: what it starts may refill this menu.
        connect(
            entry, &QAction::triggered, this, [this, index] { Q_EMIT mnuSkin_Click(index); },
            Qt::QueuedConnection);
        m_skinEntries.push_back(entry);
    }
}

void frmMenu::popUp(QMenu& menu, const QPoint& globalPosition)
{
    m_sounds.play(Sound::Menu);
    menu.popup(globalPosition);
}

} // namespace varnhold
