#include "controls/ButtonEx/ButtonExMetrics.h"

#include <gtest/gtest.h>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;
using Kinds = std::vector<BevelStroke::Kind>;

Kinds kinds(const BevelRequest& request)
{
    Kinds found;
    for (const BevelStroke& stroke : bevelStrokes(request))
        found.push_back(stroke.kind);
    return found;
}

TEST(ButtonExMetrics, TheBevelFollowsStateBorderAndFocus)
{
    using S = BevelStroke;
    struct Case
    {
        const char* name;
        int state, appearance, border;
        bool focused, allowDefault;
        Kinds expected;
    };
    const std::vector<Case> cases = {
        {"up", 1, 1, 1, false, true, {S::Raised}},
        {"up, focused", 1, 1, 1, true, true, {S::MonoFrame, S::Raised, S::FocusDots}},
        {"up, focused, no default frame", 1, 1, 1, true, false, {S::Raised, S::FocusDots}},
        {"up, no border: the focus goes too", 1, 1, 0, true, true, {}},
        {"up, flat: nothing", 1, 0, 1, true, true, {}},
        {"up, flat with grey thin border", 1, 0, 4, false, true, {S::ThinRaised}},
        {"up, faces missing", 1, 2, 1, false, true, {}},
        {"over", 2, 1, 1, false, true, {S::Raised}},
        {"over a flat one", 2, 0, 3, false, true, {S::ThinRaised}},
        {"over, focused", 2, 1, 2, true, true, {S::MonoFrame, S::Bump, S::FocusDots}},
        {"pressed", 0, 1, 1, false, true, {S::Sunken}},
        {"pressed, etched pair", 0, 1, 2, false, true, {S::Etched}},
        {"pressed, thin", 0, 1, 4, false, true, {S::ThinSunken}},
        {"pressed, focused", 0, 1, 1, true, true, {S::MonoFrame, S::FlatFrame, S::FocusDots}},
        {"pressed, no border", 0, 1, 0, true, true, {S::FocusDots}},
        {"disabled", 3, 1, 1, false, true, {}},
    };
    for (const Case& one : cases) {
        BevelRequest request;
        request.size = QSize(60, 22);
        request.state = one.state;
        request.appearance = one.appearance;
        request.borderStyle = one.border;
        request.focused = one.focused;
        request.allowDefault = one.allowDefault;
        EXPECT_EQ(kinds(request), one.expected) << one.name;
    }
}

TEST(ButtonExMetrics, TheDefaultFrameMovesTheEdgeInward)
{
    BevelRequest request;
    request.size = QSize(60, 22);
    request.displayAsDefault = true;
    const std::vector<BevelStroke> strokes = bevelStrokes(request);
    ASSERT_EQ(strokes.size(), 2U);
    EXPECT_EQ(strokes[0].rect, QRect(0, 0, 60, 22));
    EXPECT_EQ(strokes[1].rect, QRect(1, 1, 58, 20));
}

TEST(ButtonExMetrics, StrokesThatDoNotFitAreLeftOut)
{
    for (const QSize& size : {QSize(0, 0), QSize(1, 1), QSize(-5, 20), QSize(2, 2), QSize(6, 6)}) {
        BevelRequest request;
        request.size = size;
        request.focused = true;
        for (request.state = 0; request.state < 4; ++request.state) {
            for (const BevelStroke& stroke : bevelStrokes(request))
                EXPECT_TRUE(QRect(QPoint(0, 0), size).contains(stroke.rect)) << size.width();
        }
    }
}

TEST(ButtonExMetrics, AFaceMeasuresItsOwnPixels)
{
    // 28 pixels are 741 hundredths of a millimetre; an exact conversion would give 420 twips.
    EXPECT_NEAR(skinTwips(28), 741 / 1.76, 1e-9);
    EXPECT_NEAR(skinTwips(96), 2540 / 1.76, 1e-9);
    for (const int pixels : {0, 1, 2, 14, 28, 100, 226, 227, 228, 300, 447, 700, 2000})
        EXPECT_EQ(skinSize(QSize(pixels, 14)), QSize(pixels, 14));
}

TEST(ButtonExMetrics, TheFirstMarkIsTheMnemonic)
{
    const auto is = [](const QString& caption, const QString& text, qsizetype mnemonic) {
        EXPECT_EQ(captionText(caption), text);
        EXPECT_EQ(captionMnemonic(caption), mnemonic) << qPrintable(caption);
    };
    is(u"&Open"_s, u"Open"_s, 0);
    is(u"Save &As"_s, u"Save As"_s, 5);
    is(u"&A && B"_s, u"A && B"_s, 0);
    is(u"Black && White"_s, u"Black & White"_s, -1);
    is(u"end&"_s, u"end"_s, -1);
    is(QString(), QString(), -1);
}

TEST(ButtonExMetrics, CaptionAndGlyphStandWhereTold)
{
    const QSize face(61, 22);
    EXPECT_EQ(captionPlace(face, QSize(30, 13), std::nullopt, QPoint()), QPoint(15, 4));
    EXPECT_EQ(captionPlace(face, QSize(30, 13), std::nullopt, QPoint(-3, 2)), QPoint(12, 6));
    EXPECT_EQ(captionPlace(face, QSize(100, 40), std::nullopt, QPoint()), QPoint(-19, -9));

    EXPECT_EQ(glyphPlace(face, QSize(16, 16), 1, QPoint()), QRect(6, 3, 16, 16)) << "margin of at least 6";
    EXPECT_EQ(glyphPlace(face, QSize(8, 8), 1, QPoint()), QRect(7, 7, 8, 8));
    EXPECT_EQ(glyphPlace(face, QSize(16, 16), 2, QPoint()), QRect(3, 3, 16, 16)) << "no margin on a face";
    EXPECT_EQ(glyphPlace(face, QSize(16, 16), 2, QPoint(2, -1)), QRect(5, 2, 16, 16));
    EXPECT_EQ(captionPlace(face, QSize(30, 13), QRect(6, 3, 16, 16), QPoint(1, 0)), QPoint(27, 4));
}

} // namespace
} // namespace varnhold
