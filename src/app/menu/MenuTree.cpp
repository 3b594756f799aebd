#include "app/menu/MenuTree.h"

namespace varnhold {

namespace {

constexpr auto Sub = MenuRow::Submenu;
constexpr auto Hidden = MenuRow::Hidden;
constexpr auto Check = MenuRow::Checkable;
constexpr auto Array = MenuRow::Array;

// clang-format off
constexpr MenuRow tree[] = {
    {"mnuMenu", "Menu", ""},
    {"mnuDB", "Database", "mnuMenu", Sub},
    {"mnuOpen", "&Open", "mnuDB"},
    {"line000", "-", "mnuDB"},
    {"mnuLBAdd", "Add ID", "mnuDB"},
    {"mnuDB_Backup", "Backup", "mnuDB"},
    {"mnuImport", "Import", "mnuDB"},
    {"mnuSearch", "Search", "mnuDB"},
    {"mnuUpdateDB", "Update DB", "mnuDB"},
    {"line0", "-", "mnuMenu"},
    {"mnuSettings", "Settings", "mnuMenu"},
    {"mnuThumbnail", "Thumbnail", "mnuMenu"},
    {"line001", "-", "mnuMenu"},
    {"mnuWebOpen", "Open Web", "mnuMenu"},
    {"mnuRaw", "Raw", "mnuMenu"},
    {"line002", "-", "mnuMenu"},
    {"mnuExit", "Exit", "mnuMenu"},

    {"mnuLBox", "Menu", ""},
    {"mnuLBIcons", "Icons", "mnuLBox", Check},
    {"mnuCopyTo", "Copy To Personal", "mnuLBox"},
    {"line003", "-", "mnuLBox"},
    {"mnuCovers", "Covers", "mnuLBox", Sub},
    {"mnuCoverPath", "Cover Path", "mnuCovers"},
    {"mnuGoogle", "Google", "mnuCovers"},
    {"mnuCServs", "-", "mnuCovers", Array | Hidden},
    {"line004", "-", "mnuLBox"},
    {"mnuLBxDelete", "Delete", "mnuLBox"},

    {"mnuLView", "Menu", ""},
    {"mnuLVCheckBxs", "Check Box's", "mnuLView", Check},
    {"line005", "-", "mnuLView", Hidden},
    {"mnuLVSelectAll", "Select All", "mnuLView", Hidden},
    {"mnuLVSelectNone", "Selete None", "mnuLView", Hidden},
    {"mnuChkDLoad", "Download", "mnuLView", Hidden},
    {"line006", "-", "mnuLView"},
    {"mnuDLoad", "Download", "mnuLView"},
    {"mnuMarkDL", "Mark DL'ed", "mnuLView"},
    {"line007", "-", "mnuLView"},
    {"mnuLVCopyLink", "Copy Link", "mnuLView"},
    {"mnuLVListText", "List to Text", "mnuLView"},
    {"line008", "-", "mnuLView"},
    {"mnuExplore", "Explore Dir", "mnuLView"},
    {"mnuOpenDir", "Open Dir", "mnuLView"},
    {"mnuReNameDir", "ReName Dir", "mnuLView"},
    {"line009", "-", "mnuLView"},
    {"mnuKill", "Delete", "mnuLView"},

    {"mnuRTXT", "mnu", ""},
    {"mnuUndo", "Undo", "mnuRTXT"},
    {"space000", "-", "mnuRTXT"},
    {"mnuCut", "Cut", "mnuRTXT"},
    {"mnuCopy", "Copy", "mnuRTXT"},
    {"mnuPaste", "Paste", "mnuRTXT"},
    {"mnuDelete", "Delete", "mnuRTXT"},
    {"space001", "-", "mnuRTXT"},
    {"mnuSelectAll", "Select All", "mnuRTXT"},
    {"mnuFormat", "Font", "mnuRTXT", Sub},
    {"mnuFont", "Font", "mnuFormat"},
    {"space002", "-", "mnuFormat"},
    {"mnuColorBlack", "Black", "mnuFormat"},
    {"mnuColorBlue", "Blue", "mnuFormat"},
    {"mnuColorCyan", "Cyan", "mnuFormat"},
    {"mnuColorGray", "Gray", "mnuFormat"},
    {"mnuColorGreen", "Green", "mnuFormat"},
    {"mnuColorOrange", "Orange", "mnuFormat"},
    {"mnuColorPink", "Pink", "mnuFormat"},
    {"mnuColorPurple", "Purple", "mnuFormat"},
    {"mnuColorRed", "Red", "mnuFormat"},
    {"mnuColorWhite", "White", "mnuFormat"},
    {"mnuColorYellow", "Yellow", "mnuFormat"},
    {"space003", "-", "mnuFormat"},
    {"mnuColor", "Custom Color", "mnuFormat"},

    {"mnuSkins", "Menu", ""},
    {"mnuSkinDL", "Download", "mnuSkins"},
    {"mnuSkin_Refresh", "Refresh", "mnuSkins"},
    {"mnuSkin_Path", "Skin Path", "mnuSkins"},
    {"mnuSkin", "-", "mnuSkins", Array | Hidden},

    {"mnuImage", "Menu", ""},
    {"mnuImageView", "View", "mnuImage"},
    {"space000001", "-", "mnuImage"},
    {"mnuImageExplore", "Explore", "mnuImage"},
    {"mnuImageOpen", "Open", "mnuImage"},

    {"mnuSrch", "Menu", ""},
    {"mnuCpy", "Copy to Personal", "mnuSrch"},
    {"space0021", "-", "mnuSrch"},
    {"mnuSrchCopy", "Copy", "mnuSrch"},

    {"mnuLstTxt", "Menu", ""},
    {"mnuLTTools", "Tools", "mnuLstTxt", Check},
    {"space0000001", "-", "mnuLstTxt"},
    {"mnuLTUndo", "Undo", "mnuLstTxt"},
    {"space0000002", "-", "mnuLstTxt"},
    {"mnuLTCut", "Cut", "mnuLstTxt"},
    {"mnuLTCopy", "Copy", "mnuLstTxt"},
    {"mnuLTPaste", "Paste", "mnuLstTxt"},
    {"mnuLTDelete", "Delete", "mnuLstTxt"},
    {"space0000003", "-", "mnuLstTxt"},
    {"mnuLTSelectAll", "Select All", "mnuLstTxt"},

    {"mnulstView", "Menu", ""},
    {"mnuLstVwDL", "Download", "mnulstView"},
    {"space0000004", "-", "mnulstView"},
    {"mnuLstVwRS", "Copy Row", "mnulstView"},
    {"mnuLstVwCpy", "Copy Link", "mnulstView"},
    {"space1", "-", "mnulstView"},
    {"mnuLinkDel", "Delete Link", "mnulstView"},
};
// clang-format on

} // namespace

std::span<const MenuRow> menuTree()
{
    return tree;
}

} // namespace varnhold
