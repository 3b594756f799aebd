#pragma once

#include "SkinDesign.h"

#include <array>
#include <string_view>

namespace varnhold::assets {

/// Three plates of one size: idle, under the mouse, pressed. A button is as large as its face.
struct FaceFamily
{
    std::array<std::string_view, 3> files;
    Size size;
};

inline constexpr std::array faceFamilies{
    FaceFamily{{"btn-updown-11.bmp", "btn-updown-22.bmp", "btn-updown-33.bmp"}, {14, 14}},
    FaceFamily{{"file-btn-111.bmp", "file-btn-222.bmp", "file-btn-333.bmp"}, {28, 14}},
    FaceFamily{{"Button1.bmp", "Button2.bmp", "Button3.bmp"}, {40, 16}},
    FaceFamily{{"Button-1.bmp", "Button-2.bmp", "Button-3.bmp"}, {56, 16}},
    // 14 high: it heads panels that are 14 pixels high when closed. Wide enough for "Check Update?".
    FaceFamily{{"Button--1.bmp", "Button--2.bmp", "Button--3.bmp"}, {92, 14}},
    FaceFamily{{"Button-l1.bmp", "Button-l2.bmp", "Button-l3.bmp"}, {128, 16}},
    FaceFamily{{"button-T1.bmp", "button-T2.bmp", "button-T3.bmp"}, {20, 14}},
};

/// `face` is 0 idle, 1 under the mouse, 2 pressed.
Picture drawFace(const SkinDesign& design, Size size, int face);

} // namespace varnhold::assets
