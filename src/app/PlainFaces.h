#pragma once

#include <QString>

namespace varnhold {

class ButtonEx;

namespace plainlook {

/// Draws the five faces of a button, with the size and the sign that belong to its name.
void giveFaces(ButtonEx& button);

} // namespace plainlook

} // namespace varnhold
