#pragma once

#include "appearance/SkinLists.h"

#include <functional>

namespace varnhold {

class ColorDialog;
class FileDialogs;
class MessageBoxes;
class MorphListBox;
class SettingsFile;
class Skin;
class Sounds;
struct ApplicationState;
struct ChosenFile;

/// What the user does on the skin page. All of it is kept in the skin's own Skin.ini; a file that cannot be
/// written keeps its contents, and the choice holds for this run.
class SkinChoices
{
public:
    struct Services
    {
        SkinPage& page;
        ApplicationState& state;
        SettingsFile& file;
        FileDialogs& dialogs;
        ColorDialog& colors;
        MessageBoxes& boxes;
        Sounds& sounds;
        Skin& skin;
        SkinHost& host;
    };

    explicit SkinChoices(const Services& services) : m_services(services) {}

    void vscl_LBxTheme_Change(int theme);
    void vscl_LBxAlign_Change(int mode);
    void vscl_Align_Change(int alignment);
    void chk_LBxPicture_Click(bool checked);
    void chk_LvPicture_Click(bool checked);
    /// Crossed, which is meant: this one is the update list's picture, the other one the game list's.
    void btnLBxPicture_Click();
    void btnLvPicture_Click();
    /// One of the skin's three colours.
    void cmd_Color_Click(int index);
    /// Of the row with that index: opens the colour dialog.
    void ListView2_Click(int row);
    void ListView2_KeyUp(int row);
    /// 0: the rows on the list and into Skin.ini; 1: out of Skin.ini, the screen stays.
    void btnLstSkin_Click(int index);

private:
    using Change = std::function<void(SkinLists&, SkinPictures&)>;
    /// Runs it with the skin in use. A failure is told in a sentence.
    void change(const Change& action);
    [[nodiscard]] MorphListBox* gameList() const;
    void choosePicture(void (SkinLists::*take)(const TaggedText&, SkinPictures&));

    Services m_services;
};

} // namespace varnhold
