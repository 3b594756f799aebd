// What each look draws, in which order and colours.

#include "controls/XP_ProgressBar/ProgressLooks.h"
#include "controls/DesignValues.h"
#include "controls/XP_ProgressBar/ProgressSurface.h"
#include "support/PrintText.h"

#include <gtest/gtest.h>

#include <QStringList>

namespace varnhold {
namespace {

using namespace Qt::StringLiterals;
namespace look = design::progresslook;

constexpr QSize client(104, 20);
constexpr ColorValue base = 0x000080FF; // #ff8000

/// Keeps what a look asks for, one line of text each: "fill 0,0-168,20 #ffffff". Colours are RRGGBB as a
/// reader knows them. A character of text is 6 x 10 pixels.
class RecordingSurface : public ProgressSurface
{
public:
    explicit RecordingSurface(QSize size) : m_client(size) {}

    [[nodiscard]] const QStringList& calls() const { return m_calls; }
    [[nodiscard]] QStringList callsOf(const QString& kind) const { return m_calls.filter(kind); }

    [[nodiscard]] QSize clientSize() const override { return m_client; }
    void fillRect(const BarRect& rect, ColorValue color) override { add("fill", rect, hex(color)); }
    void drawLine(QPoint from, QPoint to, ColorValue color) override
    {
        add("line", {from.x(), from.y(), to.x(), to.y()}, hex(color));
    }
    void drawEdge(const BarRect& rect, EdgeKind kind) override
    {
        add("edge", rect, QString::number(static_cast<int>(kind)));
    }
    void fillHatch(const BarRect& rect, int style, ColorValue color, ColorValue background) override
    {
        add("hatch", rect,
            QString::number(style) + QLatin1Char(' ') + hex(color) + QLatin1Char(' ') + hex(background));
    }
    void fillPicture(const BarRect& rect) override { add("picture", rect, {}); }
    [[nodiscard]] ColorValue pictureColor() const override { return 0x202020; }
    [[nodiscard]] QSize textSize(const QString& text) const override
    {
        return {6 * static_cast<int>(text.size()), 10};
    }
    void drawText(const BarRect& rect, const BarRect& clip, const QString& text, ColorValue color) override
    {
        if (!clip.isEmpty())
            add("text", clip, hex(color) + QStringLiteral(" at %1,%2 ").arg(rect.left).arg(rect.top) + text);
    }

private:
    static QString hex(ColorValue color)
    {
        const ColorValue plain = GetLngColor(color);
        const int rgb = redOf(plain) << 16 | greenOf(plain) << 8 | blueOf(plain);
        return QStringLiteral("#%1").arg(rgb, 6, 16, QLatin1Char('0'));
    }
    void add(const char* kind, const BarRect& r, const QString& rest)
    {
        m_calls << QStringLiteral("%1 %2,%3-%4,%5 %6")
                       .arg(QLatin1String(kind))
                       .arg(r.left)
                       .arg(r.top)
                       .arg(r.right)
                       .arg(r.bottom)
                       .arg(rest)
                       .trimmed();
    }

    QSize m_client;
    QStringList m_calls;
};

RecordingSurface drawn(int scrolling, int percent, bool vertical = false, bool text = false,
                       QSize size = client)
{
    ProgressState state;
    state.color = base;
    state.scrolling = scrolling;
    state.vertical = vertical;
    state.showText = text;
    state.setValue(percent);
    RecordingSurface surface(size);
    PBarDraw(state, surface);
    return surface;
}

TEST(ProgressLooks, DrawTheirRectangles)
{
    const struct
    {
        int look;
        QStringList calls; ///< all of them occur, in this order
    } cases[] = {
        {look::continuous,
         {u"fill 3,4-53,5 #ffca96"_s, u"fill 3,6-53,7 #ff9932"_s, u"fill 3,7-53,13 #ff8000"_s,
          u"fill 3,13-53,14 #ff8000"_s, u"fill 3,15-53,16 #ffb164"_s, u"line 2,1-102,1 #bebebe"_s}},
        {look::pastel, {u"fill 0,0-104,20 #ffb164"_s, u"fill 1,1-52,19 #ffd9b4"_s}},
        {look::sunken, {u"edge 0,0-104,20 2"_s, u"fill 2,2-52,3 #ffc58c"_s, u"fill 2,16-52,17 #ffe1c4"_s}},
        {look::office,
         {u"fill 0,0-104,20 #ff840a"_s, u"fill 2,2-102,3 #ffb164"_s, u"fill 2,16-102,17 #ff8710"_s,
          u"fill 3,3-51,4 #ffb164"_s, u"fill 3,16-51,17 #fff7ef"_s, u"fill 51,2-52,18 #ff8c19"_s}},
        {look::metal, {u"fill 0,0-104,20 #371b00"_s, u"fill 2,2-51,3 #9e530a"_s}},
        {look::brush, {u"edge 0,0-104,20 3"_s, u"hatch 2,2-51,18 4 #ff8000 #ffc58c"_s}},
        {look::picture, {u"edge 0,0-104,20 0"_s, u"picture 2,2-51,18"_s}},
        {look::media,
         {u"fill 2,2-103,3 #c0c0c0"_s, u"fill 2,10-103,11 #ffffff"_s, u"fill 2,2-52,3 #ffca96"_s,
          u"fill 2,10-52,11 #412000"_s, u"line 2,1-102,1 #bebebe"_s}},
    };
    for (const auto& c : cases) {
        const QStringList calls = drawn(c.look, 50).calls();
        EXPECT_EQ(calls.first(),
                  u"fill 0,0-104,20 %1"_s.arg(c.look == look::metal ? u"#000000" : u"#ffffff"));
        qsizetype at = 0;
        for (const QString& wanted : c.calls) {
            const qsizetype found = calls.indexOf(wanted, at);
            EXPECT_GE(found, 0) << "look " << c.look << " lacks " << qPrintable(wanted) << " in\n"
                                << qPrintable(calls.join(u'\n'));
            at = qMax(at, found);
        }
    }
}

TEST(ProgressLooks, OnlyTheSegmentedOneIsDivided)
{
    EXPECT_EQ(drawn(look::segmented, 50).callsOf(u"fill 9,0-11,20 #ffffff"_s).size(), 1);
    EXPECT_EQ(drawn(look::continuous, 50).callsOf(u"#ffffff"_s), QStringList{u"fill 0,0-104,20 #ffffff"_s});
}

TEST(ProgressLooks, NothingToShowLeavesTheTrackEmpty)
{
    for (const int scrolling : {look::segmented, look::continuous, look::searching}) {
        for (const int percent : {0, -40})
            EXPECT_EQ(drawn(scrolling, percent).callsOf(u"fill"_s).size(), 1) << "look " << scrolling;
    }
    EXPECT_EQ(drawn(look::media, 300).calls(), drawn(look::media, 100).calls());
}

TEST(ProgressLooks, UprightBarsGrowFromTheBottom)
{
    const QSize upright = client.transposed();
    EXPECT_EQ(drawn(look::pastel, 25, true, false, upright).calls().last(), u"fill 1,78-19,103 #ffd9b4"_s);
    const QStringList bands = drawn(look::continuous, 25, true, false, upright).callsOf(u"fill"_s);
    EXPECT_EQ(bands.at(1), u"fill 4,77-5,101 #ffca96"_s); // light from the left
    // The border does not turn with the bar.
    EXPECT_EQ(drawn(look::continuous, 25, true, false, upright).callsOf(u"line 2,1-18,1 #bebebe"_s).size(),
              1);
}

TEST(ProgressLooks, TextIsSplitWhereTheBarEnds)
{
    const struct
    {
        int look, percent;
        QStringList texts;
    } cases[] = {
        // "10 %" is 24 wide and starts at 40. The bar ends before it: one piece, black.
        {look::pastel, 10, {u"text 0,0-104,20 #000000 at 40,5 10 %"_s}},
        {look::pastel,
         50,
         {u"text 0,0-52,20 #000000 at 40,5 50 %"_s, u"text 52,0-104,20 #000000 at 40,5 50 %"_s}},
        {look::picture,
         50,
         {u"text 0,0-51,20 #ffffff at 40,5 50 %"_s, u"text 51,0-104,20 #000000 at 40,5 50 %"_s}},
        {look::metal,
         10,
         {u"text 0,0-11,20 #ffffff at 40,5 10 %"_s, u"text 11,0-104,20 #c0c0c0 at 40,5 10 %"_s}},
        {look::media,
         10,
         {u"text 0,0-12,20 #ffffff at 40,5 10 %"_s, u"text 12,0-104,20 #000000 at 40,5 10 %"_s}},
        {look::searching, 0, {u"text 0,0-104,20 #000000 at 19,5 Searching.."_s}},
        {look::media,
         400,
         {u"text 0,0-102,20 #ffffff at 37,5 100 %"_s, u"text 102,0-104,20 #000000 at 37,5 100 %"_s}},
    };
    for (const auto& c : cases)
        EXPECT_EQ(drawn(c.look, c.percent, false, true).callsOf(u"text"_s), c.texts) << "look " << c.look;
    EXPECT_EQ(drawn(look::media, 50).callsOf(u"text"_s), QStringList());
    EXPECT_EQ(drawn(look::media, 50, true, true, {40, 104}).callsOf(u"text"_s).first(),
              u"text 0,52-40,104 #ffffff at 8,47 50 %"_s);
}

} // namespace
} // namespace varnhold
