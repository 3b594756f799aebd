#pragma once

class QApplication;
class QWidget;

/// "Night harbour", drawn in code: what the program looks like as long as it has no skins. Everything that
/// knows of it calls one of these two.
namespace varnhold::plainlook {

/// Colours, font and style sheet of the whole program.
void apply(QApplication& application);

/// Background, outline, button faces and list colours of one window. Call it again when the window's size
/// changed.
void dress(QWidget& window);

} // namespace varnhold::plainlook
