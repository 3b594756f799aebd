#include "app/CoverOwner.h"

#include "app/main/frmMain.h"
#include "app/menu/MenuCommands.h"

namespace varnhold {

CoverOwner::CoverOwner(const Common& common)
    : m_commands(common.settings, common.world.shell, common.world.boxes)
{
    common.commands.bind("mnuImageView",
                         [this, &main = common.main] { m_commands.mnuImageView_Click(main.gameIdText()); });
    common.commands.bind("mnuImageExplore", [this] { m_commands.mnuImageExplore_Click(); });
    common.commands.bind("mnuImageOpen", [this] { m_commands.mnuImageOpen_Click(); });
}

} // namespace varnhold
