#include "controls/gallery/GalleryPage.h"

#include <iterator>
#include <utility>

namespace varnhold {

GalleryPages allGalleryPages()
{
    GalleryPages all;
    for (const auto& pagesOf :
         {morphListBoxPages, buttonExPages, tooltipPages, progressBarPages, sliderPages}) {
        GalleryPages pages = pagesOf();
        std::move(pages.begin(), pages.end(), std::back_inserter(all));
    }
    return all;
}

} // namespace varnhold
