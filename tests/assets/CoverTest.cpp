// Covers as they are printed.

#include "CoverArt.h"
#include "CoverScenes.h"
#include "SkinFiles.h"

#include <gtest/gtest.h>

#include <QSet>

#include <vector>

namespace varnhold::test {

using namespace Qt::StringLiterals;

namespace {

std::vector<assets::CoverScene> allScenes()
{
    std::vector<assets::CoverScene> scenes;
    for (const auto some : {assets::landscapes(), assets::works()})
        scenes.insert(scenes.end(), some.begin(), some.end());
    return scenes;
}

} // namespace

TEST(Covers, TitlesStandOutFromEveryScene)
{
    for (const assets::CoverScene& scene : allScenes()) {
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

TEST(Covers, EverySceneIsItsOwnAndFillsThePicture)
{
    QSet<QByteArray> drawn;
    for (const assets::CoverScene& scene : allScenes()) {
        const auto name = QString::fromLatin1(scene.name.data(), static_cast<qsizetype>(scene.name.size()));
        const assets::Picture cover = assets::drawCover({name, u"dusk"_s, {u"A"_s}});
        EXPECT_EQ(cover.size(), assets::coverSize);
        QByteArray pixels;
        QSet<assets::Color> shown;
        for (int y = 120; y < 276; ++y) {
            for (int x = 14; x < 255; ++x) {
                pixels.append(static_cast<char>(cover.at(x, y) >> 8));
                shown << cover.at(x, y);
            }
        }
        EXPECT_GT(shown.size(), 300) << scene.name;
        drawn << pixels;
    }
    EXPECT_EQ(std::size_t(drawn.size()), allScenes().size());
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

TEST(Covers, AreTheSamePictureAtEverySize)
{
    for (const char16_t* const title :
         {u"Straße 3: Über Łódź", u"\u706f\u53f0\u306e\u5cac", u"E\u0301", u"A  B-C"}) {
        const assets::CoverOrder order = assets::coverOrderFor(u"BLUS30443"_s, QString::fromUtf16(title));
        const assets::Picture small = assets::drawCover(order);
        const assets::Picture large = assets::drawCover(order, 4 * assets::coverSize.height);
        ASSERT_EQ(large.size(), (assets::Size{4 * small.width(), 4 * small.height()}));
        int differing = 0;
        for (int y = 0; y < small.height(); ++y) {
            for (int x = 0; x < small.width(); ++x) {
                const int other = assets::greenOf(large.at(4 * x + 2, 4 * y + 2));
                differing += qAbs(assets::greenOf(small.at(x, y)) - other) > 24 ? 1 : 0;
            }
        }
        EXPECT_LT(differing, small.width() * small.height() / 25); // at edges
    }
}

} // namespace varnhold::test
