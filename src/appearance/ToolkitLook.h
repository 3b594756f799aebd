#pragma once

#include "appearance/SkinColors.h"

class QApplication;

namespace varnhold {

struct MorphListDesign;

/// Sets up the toolkit's own parts once, before any window: their style, and the size of all text.
void setUpToolkitLook(QApplication& application);

/// Colours what belongs to no window of the program (menus, tool tips, scroll bars, dialogs) by the skin.
/// `ground`: what menus and dialogs lie on; where text would not stand out from it, the back colour is taken.
void colorToolkit(const SkinColors& colors, ColorValue ground);

/// Draws the toolkit's scroll bars as the game list draws its own, in the same colours.
void dressScrollBars(const MorphListDesign& design);

} // namespace varnhold
