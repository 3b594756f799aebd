#pragma once

#include "controls/gallery/GalleryPage.h"

#include <QImage>

namespace varnhold {

/// One page as a picture, at the ratio of the screen.
[[nodiscard]] QImage renderPage(const GalleryPage& page);

/// The pages that belong on it on one picture, each under its title, packed into columns of equal width. Its
/// colours are rounded to 64 levels a channel, which cannot be seen and makes the file a quarter smaller.
[[nodiscard]] QImage contactSheet(const GalleryPages& pages);

} // namespace varnhold
