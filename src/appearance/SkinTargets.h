#pragma once

#include <array>
#include <span>

namespace varnhold {

/// Properties of a button's five faces, in the order in which they are set.
inline constexpr std::array faceProperties{"SkinUp", "SkinOver", "SkinFocus", "SkinDown", "SkinDisabled"};

/// Three pictures of a button: 1 idle, 2 under the mouse, 3 pressed.
struct FaceFamily
{
    std::array<const char*, 3> files;
};

/// Which picture (1 to 3) each of faceProperties takes.
using FaceOrder = std::array<int, 5>;
inline constexpr FaceOrder usualFaces{1, 2, 1, 3, 3};
/// Three buttons show the hover face while they have the focus; this is meant.
inline constexpr FaceOrder hoverWhenFocused{1, 2, 2, 3, 3};

/// One row of the table of what a skin puts where.
struct SkinTarget
{
    const char* window;
    const char* control;      ///< object name with its index; empty: the window itself
    const FaceFamily* family; ///< null: `file` goes to `property`
    FaceOrder faces = usualFaces;
    const char* property = "Picture";
    const char* file = "";
};

/// The rows by the step in which they are applied, in order. Pictures that depend on the main window's size
/// are not among them.
std::span<const SkinTarget> mainTargets();
std::span<const SkinTarget> settingsTargets();
std::span<const SkinTarget> searchTargets();
std::span<const SkinTarget> databaseTargets();       ///< up to bImage.bmp
std::span<const SkinTarget> databaseButtonTargets(); ///< after it
std::span<const SkinTarget> downloadTargets();       ///< of each frm_Winsock
std::span<const SkinTarget> thumbsTargets();         ///< of frmThumbs
std::span<const SkinTarget> renamerTargets();        ///< of frmReNamer
/// The main window's pictures in its normal and in its enlarged size.
std::span<const SkinTarget> normalTargets();
std::span<const SkinTarget> enlargedTargets();

} // namespace varnhold
