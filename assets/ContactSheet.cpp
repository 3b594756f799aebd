#include "ContactSheet.h"

#include "Backgrounds.h"
#include "ButtonFaces.h"
#include "CoverArt.h"
#include "Icons.h"
#include "MenuGlyphs.h"
#include "Ornaments.h"

namespace varnhold::assets {

namespace {

constexpr Size sheetSize{940, 860};

/// Copies what is not cut away.
void place(Picture& sheet, const Picture& picture, int left, int top)
{
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            const Color color = picture.at(x, y);
            if (color == windowCut || color == faceCut || alphaOf(color) == 0)
                continue;
            const int toX = left + x;
            const int toY = top + y;
            if (toX < sheet.width() && toY < sheet.height())
                sheet.set(toX, toY, mix(sheet.at(toX, toY), rgb(color & 0xFFFFFFU), alphaOf(color), 255));
        }
    }
}

Picture tiled(const Picture& tile, Size size)
{
    Picture picture(size, 0);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x)
            picture.set(x, y, tile.at(x % tile.width(), y % tile.height()));
    }
    return picture;
}

/// The main window as it stands with its buttons, bars and lists.
Picture mainWindow(const SkinDesign& design)
{
    Picture window = drawWindow(design, windowPlans().front());
    place(window, tiled(drawListTile(design), {90, 115}), 8, 46);
    place(window, drawBar(design, {90, 5}), 8, 161);
    place(window, drawBlankCover(design), 8, 166);
    place(window, tiled(drawUpdatesTile(design), {337, 150}), 102, 46);
    place(window, drawBar(design, {337, 5}), 102, 196);
    place(window, drawPanel(design, {337, 69}), 102, 201);
    place(window, drawFace(design, {28, 14}, 0), 8, 5);
    place(window, drawFace(design, {14, 14}, 0), 40, 5);
    for (int i = 0; i < 3; ++i)
        place(window, drawFace(design, {14, 14}, i), 399 + 15 * i, 5);
    place(window, drawFace(design, {40, 16}, 0), 94, 24);
    for (int i = 0; i < 7; ++i)
        place(window, drawFace(design, {28, 14}, i % 3), 127 + 30 * i, 274);
    return window;
}

void placeSkin(Picture& sheet, const SkinDesign& design, int left)
{
    int top = 8;
    place(sheet, mainWindow(design), left, top);
    top += 297;
    for (const WindowPlan& plan : windowPlans()) {
        if (plan.file == "background-dl.bmp")
            place(sheet, drawWindow(design, plan), left, top);
    }
    place(sheet, drawCaptionStrip(design, {84, 22}), left + 360, top);
    place(sheet, drawBar(design, {5, 120}), left + 360, top + 30);
    place(sheet, render(sliderKnob(design), 16, seeThrough), left + 372, top + 30);
    place(sheet, render(sliderKnob(design), 32, seeThrough), left + 372, top + 50);
    int at = 0;
    for (const std::string_view name : rowIconNames()) {
        place(sheet, render(rowIcon(name), 16, seeThrough), left + 410 + at % 2 * 20, top + 30 + at / 2 * 20);
        ++at;
    }
    top += 172;
    int x = left;
    for (const FaceFamily& family : faceFamilies) {
        for (int face = 0; face < 3; ++face)
            place(sheet, drawFace(design, family.size, face), x, top + face * 20);
        x += family.size.width + 6;
    }
    top += 64;
    at = 0;
    for (const std::string_view name : menuGlyphNames()) {
        place(sheet, drawMenuGlyph(design, name), left + at % 22 * 20, top + at / 22 * 20);
        ++at;
    }
    top += 48;
    for (const WindowPlan& plan : windowPlans()) {
        if (plan.file == "background-settings.bmp")
            place(sheet, drawWindow(design, plan), left, top);
    }
}

QImage enlarged(const Picture& sheet, int zoom)
{
    QImage image(sheet.width() * zoom, sheet.height() * zoom, QImage::Format_RGB32);
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            image.setPixel(x, y, sheet.at(x / zoom, y / zoom));
    }
    return image;
}

} // namespace

QImage contactSheet(int zoom)
{
    const int skins = static_cast<int>(skinDesigns().size());
    const int columns = sheetSize.width / 2;
    Picture sheet({columns * skins, sheetSize.height}, rgb(0xE4E7EA));
    for (int i = 0; i < skins; ++i) {
        const int left = columns * i;
        // The lower half lies on a dark desktop.
        sheet.fill({left + columns / 2, 0, columns / 2, sheetSize.height}, rgb(0x181A1E));
        placeSkin(sheet, skinDesigns()[static_cast<std::size_t>(i)], left + 8);
    }
    return enlarged(sheet, zoom);
}

QImage coverSheet(const std::vector<Title>& titles)
{
    constexpr int columns = 9;
    constexpr int margin = 12;
    std::vector<Picture> covers;
    for (const Title& title : titles) {
        if (title.cover)
            covers.push_back(drawCover(*title.cover));
    }
    const int rows = (static_cast<int>(covers.size()) + columns - 1) / columns;
    const Size cell{coverSize.width + margin, coverSize.height + margin};
    Picture sheet({columns * cell.width + margin, rows * cell.height + margin}, rgb(0x2A2D33));
    for (int i = 0; const Picture& cover : covers) {
        place(sheet, cover, margin + i % columns * cell.width, margin + i / columns * cell.height);
        ++i;
    }
    return enlarged(sheet, 1);
}

} // namespace varnhold::assets
