#pragma once

#include "controls/SystemColors.h"
#include "state/SettingsValues.h"

#include <QObject>

#include <array>
#include <vector>

namespace varnhold {

/// What the skin page of the settings window holds: the cells from which all windows take their colours, and
/// how the lists are dressed. The values at first are those of the page's design.
class SkinPage : public QObject
{
    Q_OBJECT

public:
    enum Cell { Fore = 0, Highlight = 1, Back = 2 };

    /// A list's own background picture: the shown name, the path in its tool tip, the check box.
    struct ListPicture
    {
        TaggedText file;
        bool checked = false;
    };

    std::array<ColorValue, 3> Shape_Color{0xFFFFFF, 0x00FF00, 0xFF3333};
    std::array<ColorValue, 3> borderColor{0x00FF00, 0xFFFFFF, 0x00FF00};
    ListPicture gameList;   ///< txt_LBxPicture, chk_LBxPicture
    ListPicture updateList; ///< txt_LvPicture, chk_LvPicture
    int vscl_LBxAlign = 0;
    int vscl_LBxTheme = 0;
    int vscl_Align = 0;
    std::vector<ColorValue> customColors; ///< rows of ListView2, as customListColors(); empty before a skin
    int chosenColor = -1;                 ///< the row that lblLbColor(0) and shLstSkin show
    ColorValue menuGround = 0;            ///< of the plates that menu glyphs are drawn on
    bool skinLoaded = false;
    QString availableSkins;                              ///< lbl_Available_Skins(1)
    std::array<ColorValue, 2> availableSkinsColor{0, 0}; ///< of both labels

Q_SIGNALS:
    /// After anything of the above changed.
    void changed();
};

} // namespace varnhold
