#include "app/ChooseGame.h"

#include "app/main/HiddenList.h"
#include "app/main/frmMain.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "lookup/Lookup.h"
#include "state/ApplicationState.h"

namespace varnhold {

namespace {

int rowOf(const MorphListBox& games, const QString& text)
{
    for (int row = 0; row < games.ListCount(); ++row)
        if (games.List(row) == text)
            return row;
    return -1;
}

} // namespace

void chooseGame(const QString& gameText, ApplicationState& state, frmMain& main, Lookup& lookup)
{
    main.setGameIdText(gameText);
    state.LookupID = gameText;
    MorphListBox& games = main.games();
    const int row = rowOf(games, gameText);
    if (row >= 0)
        games.DisplayFrom(row);
    games.setListIndex(row);
    const QString title = main.titles().row(row);
    lookup.ID_Click();
    if (row >= 0)
        main.setInfo(title);
}

} // namespace varnhold
