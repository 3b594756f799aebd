#include "gamedb/ChooseDatabase.h"

#include "gamedb/GameList.h"
#include "platform/FileDialogs.h"
#include "platform/MessageBoxes.h"
#include "state/Settings.h"
#include "state/Sounds.h"

namespace varnhold {

using namespace Qt::StringLiterals;

namespace {

std::optional<ChosenFile> chooseDatabase(const Settings& settings, FileDialogs& dialogs,
                                         const QString& fileName)
{
    const QString& current = settings.idList().tag;
    return dialogs.chooseFile({.title = {},
                               .startFolder = current.left(current.lastIndexOf(u'/')),
                               .filter = u"Database (*.mdb)|*.mdb"_s,
                               .defaultExtension = u"*.mdb"_s,
                               .fileName = fileName});
}

} // namespace

void btnOpen_Click(Settings& settings, FileDialogs& dialogs, Sounds& sounds, MessageBoxes& boxes,
                   GameList& games)
{
    sounds.play(Sound::Click);
    const std::optional<ChosenFile> chosen = chooseDatabase(settings, dialogs, {});
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

void mnuOpen_Click(Settings& settings, FileDialogs& dialogs, Sounds& sounds, GameList& games)
{
    sounds.play(Sound::Click);
    const std::optional<ChosenFile> chosen = chooseDatabase(settings, dialogs, u"*.mdb"_s);
    if (!chosen)
        return;
    settings.setIdListOnly({chosen->title, chosen->path});
    games.CmdRefresh_Click();
}

} // namespace varnhold
