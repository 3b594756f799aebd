#include "app/menu/frmMenu.h"

#include "app/menu/MenuCommands.h"
#include "app/menu/MenuTree.h"
#include "state/Sounds.h"

#include <QAction>
#include <QLabel>
#include <QMenu>
#include <QTimer>

#include <stdexcept>

namespace varnhold {

using namespace Qt::StringLiterals;

frmMenu::frmMenu(const MenuCommands& commands, Sounds& sounds)
    : m_commands(commands), m_sounds(sounds), m_imgBlank(new QLabel(this)), m_scroll(new QTimer(this))
{
    setObjectName("frmMenu"_L1);
    m_imgBlank->setObjectName("imgBlank"_L1);
    m_scroll->setObjectName("tmr_Scroll"_L1);
    build();
    connect(&commands, &MenuCommands::bound, this, [this](const QString& name) {
        if (QAction* const found = m_entries.value(name))
            found->setEnabled(true);
    });
}

void frmMenu::build()
{
    for (const MenuRow& row : menuTree()) {
        const QString name = QString::fromLatin1(row.name);
        const QString caption = QString::fromLatin1(row.caption);
        QMenu* const parent = m_menus.value(QString::fromLatin1(row.parent));
        if (row.isPopup() || row.is(MenuRow::Submenu)) {
            auto* const menu = row.isPopup() ? new QMenu(caption, this) : parent->addMenu(caption);
            menu->setObjectName(name);
            menu->setAccessibleName(caption);
            m_menus.insert(name, menu);
            m_entries.insert(name, menu->menuAction());
        } else {
            QAction* const entry = row.isSeparator() ? parent->addSeparator() : parent->addAction(caption);
            entry->setVisible(!row.is(MenuRow::Hidden));
            entry->setCheckable(row.is(MenuRow::Checkable));
            prepare(*entry, row.is(MenuRow::Array) ? name + u"(0)"_s : name);
        }
    }
}

void frmMenu::prepare(QAction& entry, const QString& name)
{
    entry.setObjectName(name);
    m_entries.insert(name, &entry);
    if (entry.isSeparator())
        return;
    entry.setEnabled(m_commands.has(name));
    connect(&entry, &QAction::triggered, this, [this, &entry, name](bool checked) {
        if (entry.isCheckable())
            entry.setChecked(!checked); // the routine that follows decides
        m_commands.run(name);
    });
}

QAction& frmMenu::entry(const QString& name) const
{
    QAction* const found = m_entries.value(name);
    if (found == nullptr)
        throw std::out_of_range("no such menu entry: " + name.toStdString());
    return *found;
}

void frmMenu::popUp(const char* name, const QPoint& globalPosition, WithSound sound)
{
    if (sound == WithSound::Menu)
        m_sounds.play(Sound::Menu);
    m_menus.value(QString::fromLatin1(name))->popup(globalPosition);
}

void frmMenu::fill(const char* array, const QStringList& captions)
{
    QMap<int, QString> entries;
    for (int i = 0; i < captions.size(); ++i)
        entries.insert(i + 1, captions.at(i));
    fill(array, entries);
}

void frmMenu::fill(const char* array, const QMap<int, QString>& captions)
{
    const QString start = QLatin1StringView(array) + u"("_s;
    const QAction& design = entry(start + u"0)"_s);
    auto* const menu = qobject_cast<QMenu*>(design.parent());
    const QList<QAction*> actions = menu->actions();
    for (QAction* const old : actions) {
        if (old == &design || !old->objectName().startsWith(start))
            continue;
        m_entries.remove(old->objectName());
        menu->removeAction(old);
        old->setParent(nullptr);
        old->deleteLater(); // what refills a menu may have been started from this entry
    }
    QAction* const next = menu->actions().value(menu->actions().indexOf(&design) + 1);
    for (auto caption = captions.cbegin(); caption != captions.cend(); ++caption) {
        auto* const added = new QAction(QString(caption.value()).replace(u'&', u"&&"_s), menu);
        menu->insertAction(next, added);
        prepare(*added, start + QString::number(caption.key()) + u')');
    }
    menu_ImgCheck();
}

void frmMenu::menu_ImgCheck()
{
    if (m_attachGlyphs)
        m_attachGlyphs();
}

} // namespace varnhold
