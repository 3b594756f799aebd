#pragma once

#include <QString>

class QFrame;
class QLineEdit;
class QRect;

namespace varnhold {

struct TaggedText;

/// The pages of the settings window have one column of controls, 284 pixels wide with its margins.
namespace settingspage {
inline constexpr int column = 8;
inline constexpr int controlWidth = 268;
inline constexpr int rowHeight = 20;
} // namespace settingspage

/// A control's name with its index: "vOrder(1)".
QString indexed(const char* name, int index);

/// A box for a text that is chosen, not typed.
QLineEdit* addShownText(QFrame& page, const QString& name, const QString& accessibleName, const QRect& place);
/// Shows the text; the tag becomes the tool tip.
void showTagged(QLineEdit& box, const TaggedText& value);

} // namespace varnhold
