#pragma once

#include <QString>

namespace varnhold {

class Lookup;
class frmMain;
struct ApplicationState;

/// What a double click on a game in another window does: the id goes into the box, its row is shown and
/// selected (none has it: the selection is taken back), the game is looked up, and its title shows. Pumps;
/// the window that asked may be gone afterwards. `gameText` is compared with whole rows, the first counts.
void chooseGame(const QString& gameText, ApplicationState& state, frmMain& main, Lookup& lookup);

} // namespace varnhold
