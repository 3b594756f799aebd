#include "app/RenamerOwner.h"

#include "app/ChildPlace.h"
#include "app/main/frmMain.h"
#include "app/menu/MenuCommands.h"
#include "appearance/TransForm.h"
#include "platform/Wayland.h"
#include "tools/FolderRenamer.h"
#include "tools/frmReNamer.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace varnhold {

RenamerOwner::RenamerOwner(const Common& common, Asks asks) : m_common(common), m_asks(std::move(asks))
{
    if (common.world.trash != nullptr)
        common.commands.bind("mnuReNameDir", [this] { mnuReNameDir_Click(); });
}

RenamerOwner::~RenamerOwner() = default;

void RenamerOwner::mnuReNameDir_Click()
{
    if (!m_window)
        make();
    if (!m_window->isVisible())
        m_asks.dress(*m_window);
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

void RenamerOwner::followOpacity(int opacity)
{
    if (m_window)
        SetOpacity(opacity, *m_window);
}

void RenamerOwner::make()
{
    m_renamer = std::make_unique<FolderRenamer>(
        FolderRenamer::Services{.settings = m_common.settings,
                                .dialogs = m_common.world.dialogs,
                                .boxes = m_common.world.boxes,
                                .pump = m_common.pump,
                                .shell = m_common.world.shell,
                                .sounds = m_common.sounds,
                                .trash = *m_common.world.trash,
                                .paths = m_common.paths,
                                .applicationTitle = QCoreApplication::applicationName(),
                                .isInUse = [this](const QString& folder) { return isInUse(folder); },
                                .setBusy = [this](bool busy) { m_window->showBusy(busy); }});
    m_window = std::make_unique<frmReNamer>(*m_renamer);
    if (!onWayland()) {
        constexpr QSize frame(8, 32); // about what a window manager draws round it
        m_window->move(
            childPlace(m_common.main.geometry(), m_window->size() + frame, m_common.world.screen.workArea()));
    }
}

bool RenamerOwner::isInUse(const QString& folder) const
{
    const QString below = folder + u'/';
    const QString batch = m_asks.batchFolder();
    if (!batch.isEmpty() && (batch == folder || batch.startsWith(below)))
        return true;
    return std::ranges::any_of(m_asks.filesInUse(),
                               [&](const QString& path) { return path.startsWith(below); });
}

} // namespace varnhold
