#pragma once

#include "appearance/SkinPage.h"

class QWidget;

namespace varnhold {

class SkinHost;
class SkinIni;
class SkinPictures;

/// How the skin dresses the game list and the update list. Each change is one routine, whether a skin's run
/// makes it or the user.
class SkinLists
{
public:
    SkinLists(SkinPage& page, SkinIni& ini, SkinHost& host);

    /// Backgrounds, placement and theme from Skin.ini; each throws RunTimeError where it stops. A bar's new
    /// value acts as its own change does, on change only: it reaches the list and is written to Skin.ini.
    void readGameList(SkinPictures& pictures);
    void readUpdateList(SkinPictures& pictures);
    /// The rows of the seventeen colours anew, and on the list where they are its theme. Throws as SkinIni.
    void fillColorRows();

    /// A background picture that cannot be read any more stays as it is, without a word: a bar that is
    /// dragged comes here at each step.
    void changeTheme(int theme, SkinPictures& pictures);
    void changePictureMode(int mode);
    void changePictureAlignment(int alignment);
    /// The boxes chk_LBxPicture and chk_LvPicture. Throws before anything changes where the picture cannot be
    /// shown.
    void showGamePicture(bool checked, SkinPictures& pictures);
    void showUpdatePicture(bool checked, SkinPictures& pictures);
    /// Another picture for the list, shown where its box is checked. Throws as above.
    void takeGamePicture(const TaggedText& file, SkinPictures& pictures);
    void takeUpdatePicture(const TaggedText& file, SkinPictures& pictures);
    /// The rows on the list, and into Skin.ini.
    void applyCustomColors();
    void writeCustomColors();

private:
    void setTheme(int theme);
    void dressScrollBars();

    SkinPage& m_page;
    SkinIni& m_ini;
    SkinHost& m_host;
    QWidget* m_games;   ///< may be null
    QWidget* m_updates; ///< may be null
};

} // namespace varnhold
