#pragma once

#include "Picture.h"

#include <string>

namespace varnhold::assets {

/// A still picture in at most 256 colours, chosen for it.
std::string gifFile(const Picture& picture);

} // namespace varnhold::assets
