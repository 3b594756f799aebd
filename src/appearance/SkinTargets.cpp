#include "appearance/SkinTargets.h"

namespace varnhold {

namespace {

constexpr FaceFamily updown{{"btn-updown-11.bmp", "btn-updown-22.bmp", "btn-updown-33.bmp"}};
constexpr FaceFamily fileBtn{{"file-btn-111.bmp", "file-btn-222.bmp", "file-btn-333.bmp"}};
constexpr FaceFamily button{{"Button1.bmp", "Button2.bmp", "Button3.bmp"}};
constexpr FaceFamily narrow{{"Button-1.bmp", "Button-2.bmp", "Button-3.bmp"}};
constexpr FaceFamily wide{{"Button--1.bmp", "Button--2.bmp", "Button--3.bmp"}};
constexpr FaceFamily longButton{{"Button-l1.bmp", "Button-l2.bmp", "Button-l3.bmp"}};
constexpr FaceFamily top{{"Button-T1.bmp", "Button-T2.bmp", "Button-T3.bmp"}};

constexpr SkinTarget picture(const char* window, const char* control, const char* file,
                             const char* property = "Picture")
{
    return {window, control, nullptr, usualFaces, property, file};
}

constexpr SkinTarget faces(const char* window, const char* control, const FaceFamily& family,
                           const FaceOrder& order = usualFaces)
{
    return {window, control, &family, order};
}

constexpr SkinTarget iconOf(const char* control)
{
    return picture("frmSettings", control, "slider.ico", "SliderIcon");
}

// clang-format off

constexpr SkinTarget normalRows[] = {
    picture("frmMain", "", "background-main.bmp"),
    picture("frmMain", "picMain", "background-mPic.bmp"),
    picture("frmMain", "barMain", "mainBar.bmp"),
};

constexpr SkinTarget enlargedRows[] = {
    picture("frmMain", "", "background-mLarge.bmp"),
    picture("frmMain", "picMain", "background-mLPic.bmp"),
    picture("frmMain", "barMain", "mainLBar.bmp"),
};

constexpr SkinTarget mainRows[] = {
    picture("frmMain", "barLeft", "barLeft.bmp"),
    faces("frmMain", "btnFile", fileBtn),
    faces("frmMain", "btn_WinState(0)", updown),
    faces("frmMain", "btn_WinState(1)", updown),
    faces("frmMain", "btn_WinState(2)", updown),
    faces("frmMain", "btn_Tools(0)", updown),
    faces("frmMain", "btn_Tools(1)", updown),
    faces("frmMain", "btnFetch", button),
    faces("frmMain", "CmdRefresh", fileBtn),
    faces("frmMain", "CmdNewRecord", fileBtn),
    faces("frmMain", "CmdAdd", fileBtn),
    faces("frmMain", "cmdEdit", fileBtn),
    faces("frmMain", "CmdDelete", fileBtn),
    faces("frmMain", "cmdClear", fileBtn),
    faces("frmMain", "cmdView", fileBtn),
};

constexpr SkinTarget settingsRows[] = {
    picture("frmSettings", "", "background-settings.bmp"),
    faces("frmSettings", "btn_WinState(1)", updown),
    faces("frmSettings", "cmdCovers", wide),
    faces("frmSettings", "btn_Cover_Help", top),
    faces("frmSettings", "btn_fav_Change(0)", top),
    faces("frmSettings", "btn_fav_Change(1)", top),
    faces("frmSettings", "cmd_Fav(0)", wide),
    faces("frmSettings", "cmd_Fav(1)", wide),
    faces("frmSettings", "cmd_Fav(2)", wide),
    faces("frmSettings", "cmd_Fav(3)", wide),
    faces("frmSettings", "cmd_Fav(4)", longButton),
    faces("frmSettings", "cmd_Fav(5)", longButton),
    faces("frmSettings", "cmd_Tables(0)", wide),
    faces("frmSettings", "cmd_Tables(1)", longButton),
    faces("frmSettings", "cmd_Tables(2)", longButton),
    faces("frmSettings", "cmd_IDUpdate", longButton),
    faces("frmSettings", "cmd_ListUrl", wide),
    faces("frmSettings", "btnOpen", wide),
    faces("frmSettings", "cmd_Check", wide),
    faces("frmSettings", "cmd_Play(0)", wide),
    faces("frmSettings", "cmd_Play(1)", wide),
    faces("frmSettings", "cmd_Play(2)", wide),
    faces("frmSettings", "cmd_Play(3)", wide),
    iconOf("ucSlider1(0)"),
    iconOf("ucSlider1(1)"),
    iconOf("ucSlider1(2)"),
    iconOf("ucSlider1(3)"),
    iconOf("ucSlider1(4)"),
    faces("frmSettings", "btnSaveDir", narrow),
    faces("frmSettings", "btn_Skin_Path", narrow),
    faces("frmSettings", "btnLBxPicture", narrow),
    faces("frmSettings", "btnLvPicture", narrow),
    faces("frmSettings", "cmd_Color(0)", narrow),
    faces("frmSettings", "cmd_Color(1)", narrow),
    faces("frmSettings", "cmd_Color(2)", narrow),
    faces("frmSettings", "cmdSound", narrow),
    faces("frmSettings", "btnLstSkin(0)", longButton),
    faces("frmSettings", "btnLstSkin(1)", longButton),
    faces("frmSettings", "btnSkinUpDwn(0)", top),
    faces("frmSettings", "btnSkinUpDwn(1)", top),
    faces("frmSettings", "btnSkinUpDwn(2)", top),
    faces("frmSettings", "btnSkinUpDwn(3)", top),
};

constexpr SkinTarget searchRows[] = {
    picture("frmSearch", "", "background-search.bmp"),
    picture("frmSearch", "imgBar", "searchBar.bmp"),
    picture("frmSearch", "imgOptions", "caption-bar.bmp"),
    faces("frmSearch", "btn_WinState(1)", updown),
    faces("frmSearch", "cmdExport", wide),
    faces("frmSearch", "cmdImport", wide, hoverWhenFocused),
    faces("frmSearch", "cmdGrab", wide),
    faces("frmSearch", "cmdSearch", longButton),
    faces("frmSearch", "btn_Options", top),
};

constexpr SkinTarget databaseRows[] = {
    picture("frmDB", "", "background-DB.bmp"),
    picture("frmDB", "picBack", "background-nPic.bmp"),
};

constexpr SkinTarget databaseButtonRows[] = {
    faces("frmDB", "btn_WinState(1)", updown),
    faces("frmDB", "CmdBrowse", updown),
    faces("frmDB", "cmdUpdate", button),
    faces("frmDB", "CmdAdd", button),
    faces("frmDB", "cmd_Collapse(0)", wide),
    faces("frmDB", "cmd_Collapse(1)", wide, hoverWhenFocused),
    faces("frmDB", "cmd_Collapse(2)", wide),
    faces("frmDB", "cmd_Collapse(3)", wide),
    faces("frmDB", "cmd_Tools(0)", wide),
    faces("frmDB", "cmd_Tools(1)", wide, hoverWhenFocused),
    faces("frmDB", "cmd_Tools(2)", wide),
    faces("frmDB", "cmd_Tools(3)", wide),
    faces("frmDB", "cmd_Tools(4)", wide),
    faces("frmDB", "cmd_Tools(5)", wide),
    faces("frmDB", "cmd_Tools(6)", wide),
    faces("frmDB", "cmd_Tools(7)", wide),
    faces("frmDB", "cmd_Tools(8)", wide),
    faces("frmDB", "cmd_Tools(9)", wide),
    faces("frmDB", "cmd_Tools(10)", wide),
    faces("frmDB", "cmd_Tools(11)", wide),
    faces("frmDB", "cmd_Tools(12)", wide),
    faces("frmDB", "cmd_Tools(13)", wide),
    faces("frmDB", "cmd_Tools(14)", wide),
    faces("frmDB", "cmdOpen", wide),
    faces("frmDB", "cmdSave", wide),
};

constexpr SkinTarget renamerRows[] = {
    faces("frmReNamer", "btnLoad", narrow),
    faces("frmReNamer", "btnProcess", narrow),
    faces("frmReNamer", "btnReName", narrow),
    faces("frmReNamer", "btnSearch", narrow),
    faces("frmReNamer", "btnCancel", narrow),
};

constexpr SkinTarget thumbsRows[] = {
    picture("frmThumbs", "", "background-slide.bmp"),
    picture("frmThumbs", "picBar", "caption-bar.bmp"),
    faces("frmThumbs", "btn_WinState(1)", updown),
};

constexpr SkinTarget downloadRows[] = {
    picture("frm_Winsock", "", "background-dl.bmp"),
    faces("frm_Winsock", "btnExit", updown),
    faces("frm_Winsock", "cmdCancel", narrow),
};

// clang-format on

} // namespace

std::span<const SkinTarget> mainTargets()
{
    return mainRows;
}

std::span<const SkinTarget> settingsTargets()
{
    return settingsRows;
}

std::span<const SkinTarget> thumbsTargets()
{
    return thumbsRows;
}

std::span<const SkinTarget> searchTargets()
{
    return searchRows;
}

std::span<const SkinTarget> databaseTargets()
{
    return databaseRows;
}

std::span<const SkinTarget> databaseButtonTargets()
{
    return databaseButtonRows;
}

std::span<const SkinTarget> downloadTargets()
{
    return downloadRows;
}

std::span<const SkinTarget> renamerTargets()
{
    return renamerRows;
}

std::span<const SkinTarget> normalTargets()
{
    return normalRows;
}

std::span<const SkinTarget> enlargedTargets()
{
    return enlargedRows;
}

} // namespace varnhold
