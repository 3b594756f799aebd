#include "appearance/MenuGlyphs.h"

namespace varnhold {

namespace {

// clang-format off
constexpr const char* picture1[] = {"menu/db.bmp", "menu/open.bmp", "menu/add.bmp", "menu/copy.bmp", "menu/edit.bmp", "menu/search.bmp", "menu/update.bmp", "menu/settings.bmp", "menu/thumbnail.bmp", "menu/link.bmp", "menu/raw.bmp", "menu/exit.bmp"};
constexpr const char* picture2[] = {"menu/unchecked.bmp", "menu/icon.bmp", "menu/move.bmp", "menu/cover.bmp", "menu/path.bmp", "menu/link.bmp", "menu/cover.bmp", "menu/delete.bmp"};
constexpr const char* picture3[] = {"menu/unchecked.bmp", "menu/dl-check.bmp", "menu/select_all.bmp", "menu/deselect_all.bmp", "menu/dl-check.bmp", "menu/dl.bmp", "menu/dl-check.bmp", "menu/link.bmp", "menu/list.bmp", "menu/explore.bmp", "menu/dir.bmp", "menu/edit.bmp", "menu/delete.bmp"};
constexpr const char* picture4[] = {"menu/undo.bmp", "menu/cut.bmp", "menu/copy.bmp", "menu/paste.bmp", "menu/delete.bmp", "menu/selectall.bmp"};
constexpr const char* picture5[] = {"menu/font.bmp", "menu/black.bmp", "menu/blue.bmp", "menu/cyan.bmp", "menu/gray.bmp", "menu/green.bmp", "menu/orange.bmp", "menu/pink.bmp", "menu/purple.bmp", "menu/red.bmp", "menu/white.bmp", "menu/yellow.bmp", "menu/custom.bmp"};
constexpr const char* picture6[] = {"menu/dl.bmp", "menu/refresh.bmp", "menu/path.bmp", "menu/skin.bmp"};
constexpr const char* picture7[] = {"menu/cover.bmp", "menu/explore.bmp", "menu/dir.bmp"};
constexpr const char* picture8[] = {"menu/move.bmp", "menu/copy.bmp"};

constexpr GlyphArray arrays[] = {
    {"Picture1", picture1},
    {"Picture2", picture2},
    {"Picture3", picture3},
    {"Picture4", picture4},
    {"Picture5", picture5},
    {"Picture6", picture6},
    {"Picture7", picture7},
    {"Picture8", picture8},
};

constexpr MenuGlyph glyphs[] = {
    {"mnuDB", "menu/db.bmp"},
    {"mnuOpen", "menu/open.bmp"},
    {"mnuLBAdd", "menu/add.bmp"},
    {"mnuDB_Backup", "menu/copy.bmp"},
    {"mnuImport", "menu/edit.bmp"},
    {"mnuSearch", "menu/search.bmp"},
    {"mnuUpdateDB", "menu/update.bmp"},
    {"mnuSettings", "menu/settings.bmp"},
    {"mnuThumbnail", "menu/thumbnail.bmp"},
    {"mnuWebOpen", "menu/link.bmp"},
    {"mnuRaw", "menu/raw.bmp"},
    {"mnuExit", "menu/exit.bmp"},

    {"mnuLBIcons", "menu/icon.bmp"},
    {"mnuCopyTo", "menu/move.bmp"},
    {"mnuCovers", "menu/cover.bmp"},
    {"mnuCoverPath", "menu/path.bmp"},
    {"mnuGoogle", "menu/link.bmp"},
    {"mnuLBxDelete", "menu/delete.bmp"},
    {"mnuCServs", "menu/cover.bmp"},

    {"mnuLVCheckBxs", "menu/dl-check.bmp"},
    {"mnuLVSelectAll", "menu/select_all.bmp"},
    {"mnuLVSelectNone", "menu/deselect_all.bmp"},
    {"mnuChkDLoad", "menu/dl-check.bmp"},
    {"mnuDLoad", "menu/dl.bmp"},
    {"mnuMarkDL", "menu/dl-check.bmp"},
    {"mnuLVCopyLink", "menu/link.bmp"},
    {"mnuLVListText", "menu/list.bmp"},
    {"mnuExplore", "menu/explore.bmp"},
    {"mnuOpenDir", "menu/dir.bmp"},
    {"mnuReNameDir", "menu/edit.bmp"},
    {"mnuKill", "menu/delete.bmp"},

    {"mnuUndo", "menu/undo.bmp"},
    {"mnuCut", "menu/cut.bmp"},
    {"mnuCopy", "menu/copy.bmp"},
    {"mnuPaste", "menu/paste.bmp"},
    {"mnuDelete", "menu/delete.bmp"},
    {"mnuSelectAll", "menu/selectall.bmp"},

    {"mnuFont", "menu/font.bmp"},
    {"mnuColorBlack", "menu/black.bmp"},
    {"mnuColorBlue", "menu/blue.bmp"},
    {"mnuColorCyan", "menu/cyan.bmp"},
    {"mnuColorGray", "menu/gray.bmp"},
    {"mnuColorGreen", "menu/green.bmp"},
    {"mnuColorOrange", "menu/orange.bmp"},
    {"mnuColorPink", "menu/pink.bmp"},
    {"mnuColorPurple", "menu/purple.bmp"},
    {"mnuColorRed", "menu/red.bmp"},
    {"mnuColorWhite", "menu/white.bmp"},
    {"mnuColorYellow", "menu/yellow.bmp"},
    {"mnuColor", "menu/custom.bmp"},

    {"mnuSkinDL", "menu/dl.bmp"},
    {"mnuSkin_Refresh", "menu/refresh.bmp"},
    {"mnuSkin_Path", "menu/path.bmp"},
    {"mnuSkin", "menu/skin.bmp"},

    {"mnuImageView", "menu/cover.bmp"},
    {"mnuImageExplore", "menu/explore.bmp"},
    {"mnuImageOpen", "menu/dir.bmp"},

    {"mnuCpy", "menu/move.bmp"},
    {"mnuSrchCopy", "menu/copy.bmp"},

    {"mnuLTTools", "menu/settings.bmp"},
    {"mnuLTUndo", "menu/undo.bmp"},
    {"mnuLTCut", "menu/cut.bmp"},
    {"mnuLTCopy", "menu/copy.bmp"},
    {"mnuLTPaste", "menu/paste.bmp"},
    {"mnuLTDelete", "menu/delete.bmp"},
    {"mnuLTSelectAll", "menu/selectall.bmp"},

    {"mnuLstVwDL", "menu/dl.bmp"},
    {"mnuLstVwRS", "menu/copy.bmp"},
    {"mnuLstVwCpy", "menu/link.bmp"},
    {"mnuLinkDel", "menu/delete.bmp"},
};
// clang-format on

} // namespace

std::span<const GlyphArray> glyphArrays()
{
    return arrays;
}

const char* glyphOf(QStringView entry)
{
    const qsizetype bracket = entry.indexOf(u'(');
    const QStringView name = bracket < 0 ? entry : entry.first(bracket);
    for (const MenuGlyph& glyph : glyphs) {
        if (name == QLatin1StringView(glyph.entry))
            return glyph.file;
    }
    return nullptr;
}

std::span<const MenuGlyph> menuGlyphs()
{
    return glyphs;
}

} // namespace varnhold
