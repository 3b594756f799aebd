#pragma once

#include <QString>

namespace varnhold {

/// What to hand to setToolTip() or QToolTip so that a text from outside shows as it stands: the toolkit would
/// take marks like <b> for its own, and make a window as wide as a text of any length. An ordinary text comes
/// back unchanged.
QString toolTipText(const QString& text);

} // namespace varnhold
