#include "Backgrounds.h"

#include "Surface.h"

namespace varnhold::assets {

namespace {

constexpr int margin = 8;

void paintWell(Picture& picture, const SkinDesign& design, const Area& inside)
{
    for (int y = inside.y; y < inside.bottom(); ++y) {
        for (int x = inside.x; x < inside.right(); ++x)
            picture.set(x, y, panelAt(design, inside.height, x, y - inside.y));
    }
    const Area edge = inside.grown(1);
    picture.frame(edge, design.panelEdge);
    if (design.texture == Texture::Paper)
        return;
    // Set in: the lip below catches the light that comes from above.
    const Color lip = design.texture == Texture::Brushed ? design.grooveLight
                                                         : mix(design.panelEdge, design.rimLight, 1, 4);
    picture.fill({edge.x + 1, edge.bottom() - 1, edge.width - 2, 1}, lip);
}

/// A line across the window that seems pressed in.
void paintGroove(Picture& picture, const SkinDesign& design, int left, int width, int y)
{
    picture.fill({left, y, width, 1}, design.grooveDark);
    if (design.texture != Texture::Paper)
        picture.fill({left, y + 1, width, 1}, design.grooveLight);
}

void paintStrip(Picture& picture, const SkinDesign& design, const Area& strip)
{
    if (design.texture == Texture::Paper) {
        // A line to write on, or the border of a page.
        if (strip.height < captionHeight)
            picture.fill({strip.x, strip.bottom(), strip.width, 1}, design.panelEdge);
        else
            picture.frame(strip.grown(1), design.grooveDark);
        return;
    }
    for (int y = strip.y; y < strip.bottom(); ++y) {
        for (int x = strip.x; x < strip.right(); ++x)
            picture.set(x, y, shifted(design.strip, grainAt(design, x, y) / 2));
    }
    picture.frame(strip.grown(1), design.grooveDark);
    picture.fill({strip.x, strip.bottom(), strip.width, 1}, design.grooveLight);
}

void paintCaption(Picture& picture, const SkinDesign& design, int width)
{
    if (design.texture == Texture::Paper) {
        picture.fill({0, 0, width, captionHeight - 1}, design.top);
        picture.fill({0, captionHeight - 1, width, 1}, design.rim);
        return;
    }
    paintGroove(picture, design, 0, width, captionHeight - 1);
}

void paintFoot(Picture& picture, const SkinDesign& design, const WindowPlan& plan)
{
    if (plan.footTop == 0)
        return;
    const Area foot{0, plan.footTop, plan.size.width, plan.size.height - plan.footTop};
    for (int y = foot.y; y < foot.bottom(); ++y) {
        for (int x = 0; x < foot.width; ++x) {
            const Color ground = picture.at(x, y);
            picture.set(x, y, design.texture == Texture::Paper ? design.bottom : shifted(ground, -4));
        }
    }
    picture.fill({0, foot.y, foot.width, 1}, design.grooveDark);
}

/// The back of the sheet, seen where its corner is folded over.
void paintFold(Picture& picture, const SkinDesign& design)
{
    const int side = foldSide(picture.size());
    const int left = picture.width() - side;
    const int top = picture.height() - side;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            if (x + y < side)
                picture.set(left + x, top + y, x == 0 || y == 0 ? design.rim : design.grooveDark);
        }
    }
}

void paintOutline(Picture& picture, const SkinDesign& design)
{
    const Size size = picture.size();
    const auto cut = [&](int x, int y) { return isCutAway(design, size, x, y); };
    const auto onRim = [&](int x, int y) {
        return !cut(x, y) && (cut(x - 1, y) || cut(x + 1, y) || cut(x, y - 1) || cut(x, y + 1));
    };
    if (design.outline == Outline::Folded)
        paintFold(picture, design);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            if (cut(x, y))
                picture.set(x, y, windowCut);
            else if (onRim(x, y))
                picture.set(x, y,
                            design.outline == Outline::Folded
                                ? design.rim
                                : mix(design.rim, design.bottom, y, size.height * 2));
            else if (y < size.height / 2 && onRim(x, y - 1) && (y < 2 || cut(x, y - 2)))
                picture.set(x, y, design.rimLight);
        }
    }
}

WindowPlan mainWindow(std::string_view file, Size size)
{
    const int columns = size.height - 65;
    const int footTop = size.height - 16;
    return {.file = file,
            .size = size,
            .wells = {{8, 23, 82, 18}, {8, 46, 90, columns}, {102, 46, size.width - 110, columns}},
            .strips = {{138, 24, size.width - 147, 16}},
            .footTop = footTop};
}

} // namespace

std::vector<WindowPlan> windowPlans()
{
    return {
        mainWindow("background-main.bmp", {447, 289}),
        mainWindow("background-mLarge.bmp", {595, 385}),
        {.file = "background-settings.bmp",
         .size = {400, 248},
         .wells = {{8, 28, 92, 212}},
         .strips = {{108, 28, 284, 212}}},
        {.file = "background-search.bmp", .size = {447, 321}, .strips = {{8, 43, 431, 270}}},
        {.file = "background-DB.bmp",
         .size = {595, 385},
         .wells = {{9, 29, 92, 18},
                   {106, 29, 180, 18},
                   {9, 52, 277, 324},
                   {296, 29, 132, 152},
                   {295, 193, 292, 184}},
         .strips = {{458, 29, 128, 18}}},
        {.file = "background-dl.bmp", .size = {352, 164}, .wells = {{8, 131, 336, 9}}, .rules = {69}},
        {.file = "background-slide.bmp",
         .size = {447, 221},
         .wells = {{24, 64, 110, 125}, {151, 24, 145, 165}, {313, 64, 110, 125}}}, // all stand on one line
        {.file = "background-splash.bmp", .size = {320, 160}},
    };
}

Picture drawWindow(const SkinDesign& design, const WindowPlan& plan)
{
    Picture picture(plan.size, design.middle);
    for (int y = 0; y < plan.size.height; ++y) {
        for (int x = 0; x < plan.size.width; ++x)
            picture.set(x, y, groundAt(design, plan.size, x, y));
    }
    paintCaption(picture, design, plan.size.width);
    paintFoot(picture, design, plan);
    for (const int rule : plan.rules)
        paintGroove(picture, design, margin, plan.size.width - 2 * margin, rule);
    for (const Area& strip : plan.strips)
        paintStrip(picture, design, strip);
    for (const Area& well : plan.wells)
        paintWell(picture, design, well);
    paintOutline(picture, design);
    return picture;
}

Picture drawPanel(const SkinDesign& design, Size size)
{
    Picture picture(size, design.panel);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x)
            picture.set(x, y, panelAt(design, size.height, x, y));
    }
    return picture;
}

Picture drawBar(const SkinDesign& design, Size size)
{
    const bool lying = size.width >= size.height;
    const int length = lying ? size.width : size.height;
    const int thickness = lying ? size.height : size.width;
    Picture picture(size, design.middle);
    const auto set = [&](int along, int across, Color color) {
        picture.set(lying ? along : across, lying ? across : along, color);
    };
    const FaceColors& face = design.faces[0];
    for (int along = 0; along < length; ++along) {
        for (int across = 0; across < thickness; ++across) {
            Color color = ditheredMix(face.top, face.bottom, across, thickness, along, across);
            if (design.texture == Texture::Paper)
                color = across == 0 || across == thickness - 1 ? design.panelEdge : design.top;
            else if (across == 0)
                color = design.texture == Texture::Glass ? design.panelEdge : face.light;
            else if (across == thickness - 1)
                color = design.grooveDark;
            else if (lying)
                color = shifted(color, grainAt(design, along, across));
            set(along, across, color);
        }
    }
    constexpr int grips = 5;
    constexpr int pitch = 4;
    const Color grip = design.texture == Texture::Paper ? design.rim : design.quiet;
    const int start = (length - (grips - 1) * pitch) / 2 - 1;
    for (int i = 0; i < grips; ++i) {
        set(start + i * pitch, thickness / 2, grip);
        set(start + i * pitch + 1, thickness / 2, grip);
    }
    return picture;
}

Picture drawCaptionStrip(const SkinDesign& design, Size size)
{
    Picture picture(size, design.top);
    for (int y = 0; y < size.height; ++y) {
        for (int x = 0; x < size.width; ++x) {
            const Color color = design.texture == Texture::Paper
                                    ? design.top
                                    : shifted(ditheredMix(design.top, design.middle, y, size.height, x, y),
                                              grainAt(design, x, y));
            picture.set(x, y, color);
        }
    }
    picture.fill({0, 0, size.width, 1},
                 design.texture == Texture::Paper ? design.panelEdge : design.rimLight);
    picture.fill({0, size.height - 1, size.width, 1},
                 design.texture == Texture::Paper ? design.panelEdge : design.grooveDark);
    return picture;
}

} // namespace varnhold::assets
