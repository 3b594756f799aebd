#pragma once

#include "SkinDesign.h"

#include <string_view>
#include <vector>

namespace varnhold::assets {

/// What is drawn into a window's ground, in the window's pixels, so that its controls seem set in.
struct WindowPlan
{
    std::string_view file;
    Size size;
    std::vector<Area> wells = {};  ///< insides; the edge lies round them
    std::vector<Area> strips = {}; ///< rows of text with a ground of their own
    std::vector<int> rules = {};   ///< rows of lines across, between the margins
    int footTop = 0;               ///< 0 without a foot
};

/// Height of the line with a window's name and its small buttons.
inline constexpr int captionHeight = 21;

std::vector<WindowPlan> windowPlans();

Picture drawWindow(const SkinDesign& design, const WindowPlan& plan);
/// A panel inside a window: no outline of its own.
Picture drawPanel(const SkinDesign& design, Size size);
/// A movable bar between two controls, lying or standing, with a grip in its middle.
Picture drawBar(const SkinDesign& design, Size size);
/// A strip of caption, without an outline.
Picture drawCaptionStrip(const SkinDesign& design, Size size);

} // namespace varnhold::assets
