#include "CoverArt.h"

#include "CoverScenes.h"
#include "Lettering.h"
#include "Surface.h"

#include <algorithm>
#include <array>
#include <stdexcept>

namespace varnhold::assets {

using namespace Qt::StringLiterals;

namespace {

constexpr int spineWidth = 10;
constexpr int footTop = 276;
constexpr Area letteringArea{24, 22, 214, 0};

constexpr std::array inkSets{
    CoverInks{"night", rgb(0x0B1430), rgb(0x31508A), rgb(0x2A4474), rgb(0x1A2C54), rgb(0x0C1630),
              rgb(0xFFE39A), rgb(0xF4F0E0)},
    CoverInks{"sea", rgb(0x14667F), rgb(0xBFE8DF), rgb(0x7CC3C4), rgb(0x2E8FA3), rgb(0x0F4A63), rgb(0xFFF3D0),
              rgb(0xFFFFFF)},
    CoverInks{"ember", rgb(0x5A1320), rgb(0xF0813A), rgb(0xC2472E), rgb(0x8A2527), rgb(0x3A0E18),
              rgb(0xFFD884), rgb(0xFFF1DC)},
    CoverInks{"dusk", rgb(0x2B1B4D), rgb(0xF08A7A), rgb(0x8C4A7C), rgb(0x5A2F66), rgb(0x24163F),
              rgb(0xFFD7A0), rgb(0xFFF0E2)},
    CoverInks{"dawn", rgb(0x3A679C), rgb(0xFFD9B8), rgb(0xC79AA8), rgb(0x7A6C98), rgb(0x34406B),
              rgb(0xFFF6DC), rgb(0xFFFDF5)},
    CoverInks{"moss", rgb(0x1F3B2C), rgb(0xC9D48A), rgb(0x7F9F5C), rgb(0x4C7444), rgb(0x1B3325),
              rgb(0xF6F0B0), rgb(0xFBF8DF)},
    CoverInks{"frost", rgb(0x3F6488), rgb(0xEAF3F7), rgb(0xB5CCDB), rgb(0x7F9FB8), rgb(0x2F4A63),
              rgb(0xFFFFFF), rgb(0xFFFFFF)},
    CoverInks{"sand", rgb(0xA64B28), rgb(0xF7DDA4), rgb(0xE0A868), rgb(0xB87341), rgb(0x5A3220),
              rgb(0xFFF5D6), rgb(0xFFFAEC)},
    CoverInks{"rose", rgb(0x7C2A52), rgb(0xF7BFC3), rgb(0xD9839A), rgb(0xA34E78), rgb(0x451A3A),
              rgb(0xFFEFD9), rgb(0xFFF5F2)},
    CoverInks{"ink", rgb(0xE6E0D2), rgb(0xF6F2E8), rgb(0xB9B6B0), rgb(0x77777A), rgb(0x24262C), rgb(0xC8352E),
              rgb(0x24262C)},
    CoverInks{"wheat", rgb(0x2A6583), rgb(0xF6E3A2), rgb(0xE3BE62), rgb(0xBE8B36), rgb(0x5D3D1A),
              rgb(0xFFF7D8), rgb(0xFFFDF0)},
};

template <typename Named, typename Set> const Named* called(const QString& name, const Set& set)
{
    const auto found = std::find_if(set.begin(), set.end(), [&](const Named& one) {
        return name == QLatin1StringView(one.name.data(), static_cast<qsizetype>(one.name.size()));
    });
    return found == set.end() ? nullptr : &*found;
}

std::uint32_t seedOf(const CoverOrder& order)
{
    std::uint32_t seed = 2166136261U;
    for (const QChar character : order.lettering.join(u'/') + order.inks)
        seed = (seed ^ character.unicode()) * 16777619U;
    return seed;
}

/// What every cover of the series has.
void frame(CoverCanvas& canvas)
{
    const CoverInks& inks = canvas.inks;
    const Color cloth = mix(inks.near, rgb(0x0A0A0E), 1, 2);
    canvas.box(0, footTop, coverSize.width, coverSize.height - footTop, cloth);
    canvas.box(0, footTop, coverSize.width, 1, mix(cloth, inks.light, 1, 3));
    // The imprint: a hexagon with a lamp in it.
    const auto sign = [](double x, double y) { return Point(240 + x, 286 + y); };
    const std::array corners{sign(0, -6), sign(5.25, -3), sign(5.25, 3),
                             sign(0, 6),  sign(-5.25, 3), sign(-5.25, -3)};
    for (std::size_t i = 0; i < corners.size(); ++i)
        canvas.line(corners.at(i), corners.at((i + 1) % corners.size()), 1.25, mix(cloth, inks.skyLow, 2, 3));
    canvas.disc(240, 286, 1.75, inks.light);
    for (int i = 0; i < 3; ++i)
        canvas.box(24 + i * 9, 283.5, 6, 5,
                   std::array{inks.far, inks.middle, inks.light}.at(static_cast<std::size_t>(i)));
    // The spine, folded to the left.
    canvas.box(0, 0, spineWidth, coverSize.height, cloth);
    canvas.box(2, 0, 1, coverSize.height, faint(rgb(0xFFFFFF), 14));
    canvas.box(spineWidth, 0, 1, coverSize.height, faint(rgb(0xFFFFFF), 30));
    canvas.box(spineWidth + 1, 0, 3, coverSize.height, faint(rgb(0), 14));
    canvas.box(0, 0, coverSize.width, 1, faint(rgb(0xFFFFFF), 30));
    canvas.box(coverSize.width - 1, 0, 1, coverSize.height, faint(rgb(0), 40));
    canvas.box(0, coverSize.height - 1, coverSize.width, 1, faint(rgb(0), 40));
}

} // namespace

std::span<const CoverInks> coverInks()
{
    return inkSets;
}

Picture drawCover(const CoverOrder& order, int height)
{
    const CoverInks* inks = called<CoverInks>(order.inks, inkSets);
    const CoverScene* scene = called<CoverScene>(order.scene, landscapes());
    if (scene == nullptr)
        scene = called<CoverScene>(order.scene, works());
    if (inks == nullptr || scene == nullptr)
        throw std::runtime_error("there is no cover " + order.scene.toStdString() + ' ' +
                                 order.inks.toStdString());
    CoverCanvas canvas(*inks, seedOf(order), height);
    scene->draw(canvas);
    if (canvas.random(2) == 0)
        canvas.mirror();
    canvas.grain();
    // A title in a script that the series has no letters for stands without.
    if (!order.lettering.isEmpty()) {
        const int end = drawLettering(canvas, order.lettering, letteringArea, inks->letter);
        canvas.box(letteringArea.x - 1, end + 11, 34, 2.5, inks->light);
    }
    frame(canvas);
    return canvas.take();
}

CoverOrder coverOrderFor(const QString& id, const QString& name)
{
    CoverOrder order;
    const std::uint32_t seed = seedOf({{}, id, {}});
    const auto pick = [&](const auto& set, std::uint32_t salt) {
        const auto at = static_cast<std::size_t>(noiseAt(seed, static_cast<int>(salt), 0)) % std::size(set);
        const std::string_view found = (std::data(set) + at)->name;
        return QString::fromLatin1(found.data(), static_cast<qsizetype>(found.size()));
    };
    order.scene = noiseAt(seed, 3, 0) % 2 == 0 ? pick(landscapes(), 1) : pick(works(), 1);
    order.inks = pick(inkSets, 2);
    for (const QString& word : drawableText(name).split(u' ', Qt::SkipEmptyParts)) {
        constexpr qsizetype lineLength = 9;
        if (!order.lettering.isEmpty() && order.lettering.last().size() + word.size() < lineLength)
            order.lettering.last() += u' ' + word;
        else
            order.lettering.append(word);
    }
    return order;
}

} // namespace varnhold::assets
