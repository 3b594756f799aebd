#pragma once

#include <QString>

#include <functional>
#include <vector>

class QWidget;

namespace varnhold {

/// One page of the gallery: a control in its states. `make` returns a new widget that holds the samples,
/// already at its final size (resize() it); the gallery owns it, shows it in a window or renders it into
/// `name`.png. A page must look the same on every run: no clock, no random numbers, no network.
struct GalleryPage
{
    QString name;  ///< file name without its ending, for example "buttonex-states"
    QString title; ///< shown above the page
    std::function<QWidget*()> make;
};

using GalleryPages = std::vector<GalleryPage>;

// One function a control, each in its own source (ButtonExPages.cpp, ...), listed in GalleryPages.cpp.
GalleryPages progressBarPages();
GalleryPages sliderPages();

} // namespace varnhold
