#pragma once

#include "platform/Screen.h"

#include <QString>

namespace varnhold {

/// The globals that the whole program shares: one flat record without locks. A field keeps its last value
/// until someone overwrites it, and none may be assumed stable across a pump.
struct ApplicationState
{
    qint16 SoundResult = 0; ///< last sound call's result; stored, never read
    QString LookupID;       ///< the GameID being looked up; a page without it is not parsed
    qint16 DLCount = 0;     ///< open download windows, as far as the limit test's resets let it be
    qint16 LoopIndex = 0;   ///< shared index of list walks; the planner's slot
    QString XMLText;        ///< the update document as text
    QString DLFolder;       ///< folder of the batch of checked rows
    qint16 PkgMark = 0;     ///< cleared at each parse
    WorkArea workArea;      ///< refreshed at start and at the end of each caption drag
    QString DBPath;         ///< the game database
    QString DBFile;         ///< its base name without extension
    QString IniValue;       ///< scratch: the last value read from a settings file
    QString SkinPath;       ///< folder of the skin in use
    QString SkinName;       ///< its last component
};

} // namespace varnhold
