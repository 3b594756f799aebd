#pragma once

#include "controls/gallery/GalleryPage.h"

#include <QImage>

namespace varnhold {

/// One page as a picture, at the ratio of the screen.
[[nodiscard]] QImage renderPage(const GalleryPage& page);

/// All pages on one picture, each under its title, packed into columns of equal width.
[[nodiscard]] QImage contactSheet(const GalleryPages& pages);

} // namespace varnhold
