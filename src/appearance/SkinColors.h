#pragma once

#include "controls/SystemColors.h"

#include <array>

class QObject;
class QVariant;
class QWidget;

namespace varnhold {

/// Fore, highlight and back colour, as the cells of the skin page hold them.
using SkinColors = std::array<ColorValue, 3>;

/// Assigns ForeColor, HighlightColor and BackColor by name; a property that the control lacks is passed over.
/// The toolkit's own parts, which have none, take fore and back colour by their palette.
void assignSkinColors(QWidget& control, const SkinColors& colors);

/// The same for each control of a window.
void assignSkinColorsInside(const QWidget& window, const SkinColors& colors);

/// Sets a declared property; false when the control has none of that name that can be written.
bool assignProperty(QObject& control, const char* name, const QVariant& value);

} // namespace varnhold
