#pragma once

class QWidget;

namespace varnhold {

class ButtonEx;

/// Draws the sign that a button bears by its name, in the button's own colours: the small buttons of a
/// caption share one family of faces.
void drawButtonSign(ButtonEx& button);
/// Of all buttons of a window.
void drawButtonSigns(const QWidget& window);

} // namespace varnhold
