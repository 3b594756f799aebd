#pragma once

#include <QString>

#include <functional>
#include <vector>

class QWidget;

namespace varnhold {

/// One page of the gallery: a control in its states.
struct GalleryPage
{
    QString name;  ///< file name without its ending, for example "buttonex-states"
    QString title; ///< shown above the page
    /// Returns a new widget that holds the samples, at its final size (GallerySheet makes one). The gallery
    /// owns it, shows it in a window, or renders it into `name`.png. It looks the same on every run: no
    /// clock, no random numbers, no network.
    std::function<QWidget*()> make;
    bool onSheet = true; ///< also on the contact sheet, which has to stay small
};

using GalleryPages = std::vector<GalleryPage>;

// One function a control, each in a source of its own beside this file. To add one: declare it here, list
// it in allGalleryPages() (GalleryPages.cpp), and name its source in CMakeLists.txt.
GalleryPages buttonExPages();
GalleryPages morphListBoxPages();
GalleryPages progressBarPages();
GalleryPages sliderPages();
GalleryPages tooltipPages();

/// All pages, in the order in which they are shown.
GalleryPages allGalleryPages();

} // namespace varnhold
