#include "Delivery.h"

#include "Backgrounds.h"
#include "ButtonFaces.h"
#include "Files.h"
#include "Icons.h"
#include "MenuGlyphs.h"
#include "Ornaments.h"
#include "SkinIni.h"
#include "Sounds.h"

#include <utility>

namespace varnhold::assets {

namespace {

std::string icon(const Drawing& drawing, std::initializer_list<int> sides)
{
    std::vector<Picture> pictures;
    for (const int side : sides)
        pictures.push_back(render(drawing, side, seeThrough));
    return icoFile(pictures);
}

} // namespace

std::vector<DeliveredFile> skinFiles(const SkinDesign& design)
{
    std::vector<DeliveredFile> files;
    const std::string folder = "skin/" + std::string(design.name) + '/';
    const auto deliver = [&](std::string_view name, std::string bytes) {
        files.push_back({folder + std::string(name), std::move(bytes)});
    };
    for (const WindowPlan& plan : windowPlans())
        deliver(plan.file, bmpFile(drawWindow(design, plan)));
    deliver("background-mPic.bmp", bmpFile(drawPanel(design, {337, 224})));
    deliver("background-mLPic.bmp", bmpFile(drawPanel(design, {485, 320})));
    deliver("background-nPic.bmp", bmpFile(drawPanel(design, {292, 184})));
    deliver("mainBar.bmp", bmpFile(drawBar(design, {337, 5})));
    deliver("mainLBar.bmp", bmpFile(drawBar(design, {485, 5})));
    deliver("barLeft.bmp", bmpFile(drawBar(design, {90, 5})));
    deliver("searchBar.bmp", bmpFile(drawBar(design, {5, 240})));
    deliver("caption-bar.bmp", bmpFile(drawCaptionStrip(design, {431, 22})));
    deliver("bImage.bmp", bmpFile(drawBlankCover(design)));
    deliver("list.bmp", bmpFile(drawListTile(design)));
    deliver("back.bmp", bmpFile(drawUpdatesTile(design)));
    deliver("slider.ico", icon(sliderKnob(design), {16, 24, 32}));
    for (const std::string_view name : rowIconNames())
        deliver(name, icon(rowIcon(name), {16, 24, 32}));
    for (const FaceFamily& family : faceFamilies) {
        for (int face = 0; face < 3; ++face)
            deliver(family.files[static_cast<std::size_t>(face)],
                    bmpFile(drawFace(design, family.size, face)));
    }
    for (const std::string_view name : menuGlyphNames())
        deliver("menu/" + std::string(name) + ".bmp", bmpFile(drawMenuGlyph(design, name)));
    deliver("Skin.ini", skinIni(design));
    return files;
}

std::vector<DeliveredFile> soundFiles()
{
    std::vector<DeliveredFile> files;
    for (const SoundDesign& sound : soundDesigns())
        files.push_back({"wav/" + std::string(sound.file), wavFile(play(sound))});
    return files;
}

} // namespace varnhold::assets
