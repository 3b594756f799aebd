#pragma once

class QWidget;

namespace varnhold {

/// The window that a box or a dialog belongs over: the active one. While the desktop passes the activity on,
/// as when a dialog has just closed, it is the one that this told last, or else one that is shown, an owned
/// one first; null when none is.
QWidget* frontWindow();

} // namespace varnhold
