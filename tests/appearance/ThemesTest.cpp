#include "SkinWorld.h"

#include "appearance/SkinChoices.h"
#include "controls/Contrast.h"
#include "controls/MorphListBox/MorphListBox.h"
#include "controls/SystemColorsUi.h"
#include "support/FakeColorDialog.h"

#include <algorithm>

namespace varnhold::test {

namespace {

/// The best contrast of a text's pixels to what lies below them, of the row where it is least.
double worstRow(MorphListBox& games, qreal ratio, bool enabled = true)
{
    const auto render = [&](const QString& text) {
        games.setEnabled(true); // or it takes no items
        games.Clear();
        for (int i = 0; i < 12; ++i)
            games.AddItem(text);
        games.setListIndex(4);
        games.setEnabled(enabled);
        QImage image(games.size() * ratio, QImage::Format_RGB32);
        image.setDevicePixelRatio(ratio);
        games.render(&image);
        return image;
    };
    const QImage bare = render(u" "_s);
    const QImage written = render(u"BLUS30443"_s);
    double worst = 21;
    for (int row = 0; row < 12; ++row) {
        const QRect place = games.rowRect(row);
        double best = 1;
        for (int y = qRound(place.top() * ratio); y < qRound((place.bottom() + 1) * ratio); ++y) {
            for (int x = qRound(place.left() * ratio); x < qRound((place.right() + 1) * ratio); ++x) {
                best = std::max(best, contrastRatio(toColorValue(bare.pixelColor(x, y)),
                                                    toColorValue(written.pixelColor(x, y))));
            }
        }
        worst = std::min(worst, best);
    }
    return worst;
}

} // namespace

TEST_F(SkinWorld, TheIdsCanBeReadInEachThemeOfEachSkin)
{
    copyFolder(QStringLiteral(VARNHOLD_SKINS "/copper"), root.path(u"skin/copper"_s));
    FakeColorDialog colors;
    SkinChoices choices{{page, state, file, dialogs, colors, boxes, sounds, skin, windows}};
    MorphListBox& games = main.games();
    games.setShowItemImages(false);
    constexpr double readable = 4.45; // 4.5, of which smoothing takes a little
    double plain = 21;
    for (const QString& name : {u"default"_s, u"paper"_s, u"copper"_s}) {
        settings.writeSkinPath(root.path(u"skin/"_s + name));
        ASSERT_TRUE(skin.ApplySkin());
        for (int theme = 0; theme <= 10; ++theme) {
            choices.vscl_LBxTheme_Change(theme);
            for (const bool picture : {true, false}) {
                choices.chk_LBxPicture_Click(picture);
                EXPECT_GE(worstRow(games, 1), readable) << qPrintable(name) << theme << picture;
                EXPECT_GE(worstRow(games, 2), readable) << qPrintable(name) << theme << picture;
                EXPECT_GE(worstRow(games, 1, false), readable) << qPrintable(name) << theme << picture;
                games.setReadableText(false);
                plain = std::min(plain, worstRow(games, 1));
                games.setReadableText(true);
            }
        }
    }
    EXPECT_LT(plain, 2) << "without it they could not";
}

} // namespace varnhold::test
