#pragma once

#include "appearance/SkinPage.h"

class QWidget;

namespace varnhold {

class SkinIni;
class SkinPictures;

/// How the skin dresses the game list and the update list. Either may be null.
class SkinLists
{
public:
    SkinLists(SkinPage& page, SkinIni& ini, QWidget* games, QWidget* updates);

    /// Backgrounds, placement and theme from Skin.ini; each throws RunTimeError where it stops. A bar's new
    /// value acts as its own change does, on change only: it reaches the list and is written to Skin.ini.
    void readGameList(SkinPictures& pictures);
    void readUpdateList(SkinPictures& pictures);
    /// The seventeen colours, where the theme is the custom one; an absent key keeps the list's own colour.
    void applyCustomColors();
    /// Of theme 0, which has none of its own.
    void applyForeColor();

private:
    void changeTheme(int theme, SkinPictures& pictures);
    void dressScrollBars();
    void showGamePicture(SkinPictures& pictures);

    SkinPage& m_page;
    SkinIni& m_ini;
    QWidget* m_games;
    QWidget* m_updates;
};

} // namespace varnhold
