// Covers as they are printed.

#include "CoverArt.h"
#include "CoverScenes.h"
#include "SkinFiles.h"

#include <gtest/gtest.h>

#include <QSet>

#include <cmath>
#include <numbers>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

QStringList allScenes()
{
    QStringList names;
    for (const auto scenes : {assets::landscapes(), assets::works()}) {
        for (const assets::CoverScene& scene : scenes)
            names << QString::fromUtf8(scene.name.data(), static_cast<qsizetype>(scene.name.size()));
    }
    return names;
}

} // namespace

TEST(Covers, TitlesStandOutFromEveryScene)
{
    for (const auto scenes : {assets::landscapes(), assets::works()}) {
        for (const assets::CoverScene& scene : scenes) {
            for (const assets::CoverInks& inks : assets::coverInks()) {
                // In the others the sky differs more from the letters.
                if (inks.name != "frost" && inks.name != "sand" && inks.name != "ink")
                    continue;
                assets::CoverCanvas canvas(inks, 5);
                scene.draw(canvas);
                const assets::Picture ground = canvas.take();
                int weak = 0;
                int all = 0;
                for (int y = 22; y < 114; y += 4) {
                    for (int x = 24; x < 238; x += 4, ++all)
                        weak += contrast(QColor(inks.letter), QColor(ground.at(x, y))) < 3 ? 1 : 0;
                }
                EXPECT_LE(weak * 100 / all, 5) << scene.name << ' ' << inks.name;
            }
        }
    }
}

TEST(Covers, EverySceneIsItsOwnAndFillsThePicture)
{
    QSet<QByteArray> drawn;
    for (const QString& scene : allScenes()) {
        const assets::Picture cover = assets::drawCover({scene, u"dusk"_s, {u"A"_s}});
        EXPECT_EQ(cover.size(), assets::coverSize);
        QByteArray pixels;
        QSet<assets::Color> shown;
        for (int y = 120; y < 276; ++y) {
            for (int x = 14; x < 255; ++x) {
                pixels.append(static_cast<char>(cover.at(x, y) >> 8));
                shown << cover.at(x, y);
            }
        }
        EXPECT_GT(shown.size(), 300) << qPrintable(scene);
        drawn << pixels;
    }
    EXPECT_EQ(drawn.size(), allScenes().size());
}

TEST(Covers, LetteringKeepsWithinItsPlace)
{
    const QString alphabet = u"ABCDEFGHIJKLMNOPQRSTUVWXYZ&-’"_s;
    const QStringList lines[] = {
        {alphabet}, {u"I"_s}, {u"ÀÉÎÑÖ"_s, u"WM"_s}, {u"A"_s, u"B"_s, u"C"_s, u"D"_s}};
    for (const QStringList& lettering : lines) {
        const assets::Picture with = assets::drawCover({u"maze"_s, u"night"_s, lettering});
        int letters = 0;
        const assets::Color paper = assets::rgb(0xF4F0E0);
        for (int y = 0; y < 276; ++y) {
            for (int x = 0; x < 256; ++x) {
                if (with.at(x, y) != paper || y > 122)
                    continue;
                ++letters;
                EXPECT_TRUE(x >= 20 && x < 242 && y >= 2 && y < 118) << x << ' ' << y;
            }
        }
        EXPECT_GT(letters, 40) << qPrintable(lettering.join(u'/'));
    }
}

TEST(Covers, SineIsNearTheRealOne)
{
    for (int turn = -600; turn < 600; ++turn)
        EXPECT_NEAR(assets::sineOf(turn) / 1024.0, std::sin(turn * std::numbers::pi / 128), 0.003) << turn;
}

} // namespace varnhold::test
