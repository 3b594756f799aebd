#include "app/ThumbsOwner.h"

#include "app/ChooseGame.h"
#include "app/main/frmMain.h"
#include "app/menu/MenuCommands.h"
#include "app/menu/frmMenu.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "covers/frmThumbs.h"
#include "platform/Wayland.h"

#include <QLabel>

#include <utility>

namespace varnhold {

ThumbsOwner::ThumbsOwner(const Common& common, Lookup& lookup, std::function<void(QWidget&)> dress)
    : m_common(common), m_lookup(lookup), m_dress(std::move(dress))
{
    common.commands.bind("mnuThumbnail", [this] { mnuThumbnail_Click(); });
}

ThumbsOwner::~ThumbsOwner()
{
    delete m_window;
}

void ThumbsOwner::mnuThumbnail_Click()
{
    if (m_window != nullptr) {
        m_window->close();
        return;
    }
    frmMain& main = m_common.main;
    auto* const window = new frmThumbs({*this, main.covers(), m_common.settings, m_common.state,
                                        m_common.world.screen, m_common.menu.imgBlank().pixmap(), m_dress},
                                       &main);
    m_window = window;
    connect(window, &frmThumbs::unloaded, this, [this, window] {
        m_window = nullptr; // at once: the next opening makes another
        window->deleteLater();
    });
    connect(window, &frmThumbs::chosen, this,
            [this](const QString& gameId) { chooseGame(gameId, m_common.state, m_common.main, m_lookup); });
    if (!onWayland())
        window->move(main.frameGeometry().center() - window->rect().center());
    window->show();
}

int ThumbsOwner::count() const
{
    return m_common.main.games().ListCount();
}

QString ThumbsOwner::id(int row) const
{
    return row < 0 || row >= count() ? QString() : m_common.main.games().List(row);
}

QString ThumbsOwner::title(int row) const
{
    return m_common.main.titles().row(row);
}

int ThumbsOwner::listIndex() const
{
    return m_common.main.games().ListIndex();
}

bool ThumbsOwner::isSelected(int row) const
{
    return m_common.main.games().Selected(row);
}

} // namespace varnhold
