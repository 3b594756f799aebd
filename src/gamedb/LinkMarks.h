#pragma once

#include "platform/richtext/RichText.h"

namespace varnhold {

/// Underlines the links of the text and gives them blue. False when nothing was to be changed.
bool markLinks(RichText& text);

} // namespace varnhold
