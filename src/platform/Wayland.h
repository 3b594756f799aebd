#pragma once

namespace varnhold {

/// Whether windows go to a Wayland compositor, and not to X11, not even on top of one. It places windows by
/// itself, and cuts none to its mask.
bool onWayland();

} // namespace varnhold
