#include "gamedb/ChooseDatabase.h"

#include "gamedb/GameList.h"
#include "platform/FileDialogs.h"
#include "platform/MessageBoxes.h"
#include "state/Settings.h"
#include "state/Sounds.h"

namespace varnhold {

using namespace Qt::StringLiterals;

void btnOpen_Click(Settings& settings, FileDialogs& dialogs, Sounds& sounds, MessageBoxes& boxes,
                   GameList& games)
{
    sounds.play(Sound::Click);
    const QString& current = settings.idList().tag;
    const std::optional<ChosenFile> chosen =
        dialogs.chooseFile({.title = {},
                            .startFolder = current.left(current.lastIndexOf(u'/')),
                            .filter = u"Database (*.mdb)|*.mdb"_s,
                            .defaultExtension = u"*.mdb"_s,
                            .fileName = {}});
    if (!chosen)
        return;
    settings.setIdList({chosen->title, chosen->path});
    const BoxAnswer answer = boxes.show({.text = u"Would you like to load the Database now?"_s,
                                         .title = u"Load Database?"_s,
                                         .icon = BoxIcon::Question,
                                         .buttons = BoxButtons::YesNo});
    if (answer == BoxAnswer::Yes)
        games.loadChosenDatabase();
}

} // namespace varnhold
